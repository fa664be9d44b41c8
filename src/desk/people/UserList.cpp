#include "desk/people/UserList.h"

#include "desk/data/Guarded.h"
#include "desk/data/UserDirectory.h"
#include "desk/icons/DeskIcon.h"
#include "desk/people/UserEditor.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace desk {

using platform::ReportGrid;

UserList::UserList(UserDirectory& users, SignIn& signIn, QString signedInId, QWidget* parent)
    : QDialog(parent)
    , users_(users)
    , signIn_(signIn)
    , signedInId_(std::move(signedInId)) {
    setObjectName(QStringLiteral("frmUtenti"));
    setWindowTitle(QStringLiteral("Utenti dello studio"));
    setWindowIcon(deskIcon("utenti"));
    buildGrid();
    QPushButton* add = platform::form::button(QStringLiteral("cbNuovo"), QStringLiteral("&Nuovo"), this);
    edit_ = platform::form::button(QStringLiteral("cbModifica"), QStringLiteral("&Modifica"), this);
    edit_->setDefault(true);
    remove_ = platform::form::button(QStringLiteral("cbElimina"), QStringLiteral("&Elimina"), this);
    QPushButton* close = platform::form::button(QStringLiteral("cbChiudi"), QStringLiteral("Chiudi"), this);
    for (QPushButton* each : {add, remove_, close})
        each->setAutoDefault(false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(10);
    column->addWidget(grid_, 1);
    column->addLayout(platform::form::buttonRow({add, edit_, remove_, close}));
    resize(900, 380);
    QWidget* const order[] = {grid_, add, edit_, remove_, close};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);

    connect(add, &QPushButton::clicked, this, &UserList::add);
    connect(edit_, &QPushButton::clicked, this, &UserList::edit);
    connect(remove_, &QPushButton::clicked, this, &UserList::remove);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(grid_, &ReportGrid::rowDoubleClicked, this, &UserList::edit);
    connect(grid_, &ReportGrid::keyPressed, this, &UserList::handleKey);
    load(signedInId_);
    platform::FormRegistry::add(this);
}

void UserList::buildGrid() {
    grid_ = new ReportGrid(this);
    grid_->setObjectName(QStringLiteral("rcUtenti"));
    grid_->addColumn({.caption = QStringLiteral("Codice"), .width = 110, .resizable = true});
    grid_->addColumn({.caption = QStringLiteral("Cognome e Nome"), .width = 220, .resizable = true});
    grid_->addColumn({.caption = QStringLiteral("Qualifica"), .width = 90});
    grid_->addColumn({.caption = QStringLiteral("Attività"), .width = 70});
    grid_->addColumn({.caption = QStringLiteral("Codice Fiscale"), .width = 160});
    grid_->addColumn({.caption = QStringLiteral("Password"), .width = 80});
    grid_->addColumn({.caption = QStringLiteral("Stato"), .width = 110});
    grid_->setTexts(QStringLiteral("Nessun utente"), QString(), QString());
    grid_->setGroupBoxVisible(false);
    grid_->setSort(-1, Qt::AscendingOrder);
}

void UserList::load(const QString& idToSelect) {
    QList<UserData> users;
    const QString failure = guarded([&] { users = users_.all(); });
    grid_->beginUpdate();
    grid_->clear();
    for (const UserData& user : std::as_const(users)) {
        platform::ReportRecord* record = grid_->addRecord();
        record->tag = user.ID;
        record->cell(0).value = user.codice;
        record->cell(1).value = user.nomeCompleto();
        record->cell(2).value = user.isDoctor() ? QStringLiteral("Medico") : QStringLiteral("Assistente");
        record->cell(3).value = user.codiceAttivita;
        record->cell(4).value = user.codicefiscale;
        record->cell(5).value = user.conPassword ? QStringLiteral("Sì") : QStringLiteral("No");
        record->cell(6).value = user.ID == signedInId_ ? QStringLiteral("In uso")
                                : user.attivo          ? QStringLiteral("Attivo")
                                                       : QStringLiteral("Disattivato");
    }
    grid_->endUpdate();
    for (int row = 0; row < grid_->rowCount(); ++row) {
        if (row == 0 || grid_->rowRecord(row)->tag == idToSelect) grid_->setFocusedRecord(grid_->rowRecord(row));
    }
    edit_->setEnabled(!users.isEmpty());
    remove_->setEnabled(!users.isEmpty());
    if (!failure.isEmpty()) tell(failure);
}

std::optional<UserData> UserList::known(const QString& id) {
    const QList<UserData> users = users_.all();
    const auto found =
        std::find_if(users.cbegin(), users.cend(), [&id](const UserData& user) { return user.ID == id; });
    return found == users.cend() ? std::nullopt : std::optional(*found);
}

std::optional<UserData> UserList::focused() {
    const platform::ReportRecord* record = grid_->focusedRecord();
    return record ? known(record->tag) : std::nullopt;
}

void UserList::add() {
    UserData user;
    user.codiceAttivita = QStringLiteral("OD");
    runEditor(user);
}

void UserList::edit() {
    std::optional<UserData> user;
    const QString failure = guarded([&] { user = focused(); });
    if (!failure.isEmpty()) return tell(failure);
    if (user) runEditor(*user);
}

void UserList::runEditor(const UserData& user) {
    std::optional<UserData> signedIn;
    const QString failure = guarded([&] { signedIn = known(signedInId_); });
    if (!failure.isEmpty()) return tell(failure);
    UserEditor editor(users_, signIn_, signedIn.value_or(UserData{}), this);
    editor.fill(user);
    if (editor.exec() == QDialog::Accepted) load(editor.user().ID);
}

void UserList::remove() {
    QString told;
    const QString failure = guarded([&] {
        if (const std::optional<UserData> user = focused()) told = removeOrDeactivate(*user);
    });
    if (!failure.isEmpty()) told = failure;
    if (!told.isEmpty()) tell(told);
}

QString UserList::removeOrDeactivate(UserData user) {
    if (user.ID == signedInId_) return QStringLiteral("Non si può eliminare l'utente che sta usando il programma.");
    const QString name = user.nomeCompleto();
    if (users_.hasRecords(user)) {
        if (!user.attivo) return QStringLiteral("%1 ha dati registrati e resta nell'archivio, disattivato.").arg(name);
        if (!ask(QStringLiteral("%1 ha dati registrati e non può essere eliminato.\nDisattivarlo? Non potrà più "
                                "accedere al programma.")
                     .arg(name)))
            return {};
        user.attivo = false;
        users_.save(user);
    } else {
        if (!ask(QStringLiteral("Eliminare l'utente %1?").arg(name))) return {};
        if (!users_.remove(user.ID)) return QStringLiteral("L'utente non è stato eliminato.");
    }
    load(user.ID);
    return {};
}

void UserList::handleKey(QKeyEvent* event) {
    const int key = event->key();
    const bool enters = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!enters && key != Qt::Key_Delete) return;
    event->accept();
    if (enters)
        edit();
    else
        remove();
}

void UserList::tell(const QString& text) {
    platform::dialogs().message(text, platform::MB_WARNING, windowTitle());
}

bool UserList::ask(const QString& question) {
    return platform::dialogs().message(question, platform::MB_QUESTION_DEFAULT_NO, windowTitle()) ==
           platform::Answer::Yes;
}

} // namespace desk
