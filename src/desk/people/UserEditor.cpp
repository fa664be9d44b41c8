#include "desk/people/UserEditor.h"

#include "desk/data/Guarded.h"
#include "desk/data/UserDirectory.h"
#include "desk/icons/DeskIcon.h"
#include "desk/people/TaxCode.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace desk {

namespace {

constexpr int SHORTEST_PASSWORD = 8;

QGridLayout* gridIn(QGroupBox* area) {
    auto* grid = new QGridLayout(area);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return grid;
}

QLineEdit* passwordBox(const QString& name, QWidget* parent) {
    QLineEdit* box = platform::form::textBox(name, parent);
    box->setEchoMode(QLineEdit::Password);
    return box;
}

} // namespace

UserEditor::UserEditor(UserDirectory& users, SignIn& signIn, UserData signedIn, QWidget* parent)
    : QDialog(parent)
    , users_(users)
    , signIn_(signIn)
    , signedIn_(std::move(signedIn)) {
    setObjectName(QStringLiteral("frmUtente"));
    setWindowIcon(deskIcon("utenti"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 14, 14, 14);
    column->setSpacing(12);
    column->addWidget(buildPerson());
    column->addWidget(buildPassword());
    column->addStretch();
    QPushButton* confirm = platform::form::button(QStringLiteral("cbConferma"), QStringLiteral("Salva"), this);
    confirm->setDefault(true);
    QPushButton* cancel = platform::form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cancel->setAutoDefault(false);
    column->addLayout(platform::form::buttonRow({confirm, cancel}));
    connect(confirm, &QPushButton::clicked, this, &UserEditor::save);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    resize(640, sizeHint().height());
    platform::FormRegistry::add(this);
}

QGroupBox* UserEditor::buildPerson() {
    QGroupBox* area = platform::form::titledArea(QStringLiteral("Utente"), this);
    code_ = platform::form::textBox(QStringLiteral("tbCodice"), area);
    surname_ = platform::form::textBox(QStringLiteral("tbCognome"), area);
    name_ = platform::form::textBox(QStringLiteral("tbNome"), area);
    taxCode_ = platform::form::textBox(QStringLiteral("tbCodiceFiscale"), area);
    kind_ = platform::form::named(new QComboBox(area), QStringLiteral("cbTipo"));
    kind_->addItem(QStringLiteral("Medico"), UserData::doctor);
    kind_->addItem(QStringLiteral("Assistente"), UserData::assistant);
    activity_ = platform::form::named(new QComboBox(area), QStringLiteral("cbAttivita"));
    activity_->setEditable(true);
    activity_->addItems({QStringLiteral("OD"), QStringLiteral("AS")});
    activity_->setToolTip(QStringLiteral("Due lettere; OD apre i comandi di odontoiatria"));
    active_ = platform::form::named(new QCheckBox(QStringLiteral("Può accedere al programma"), area),
                                    QStringLiteral("ckAttivo"));
    QGridLayout* grid = gridIn(area);
    platform::form::labelledRow(grid, 0, 0, QStringLiteral("Co&dice:"), code_);
    platform::form::labelledRow(grid, 0, 2, QStringLiteral("&Qualifica:"), kind_);
    platform::form::labelledRow(grid, 1, 0, QStringLiteral("Co&gnome:"), surname_);
    platform::form::labelledRow(grid, 1, 2, QStringLiteral("&Nome:"), name_);
    platform::form::labelledRow(grid, 2, 0, QStringLiteral("Codice &fiscale:"), taxCode_);
    platform::form::labelledRow(grid, 2, 2, QStringLiteral("Codice &attività:"), activity_);
    grid->addWidget(active_, 3, 1, 1, 3);
    QWidget* const order[] = {code_, kind_, surname_, name_, taxCode_, activity_, active_};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
    return area;
}

QGroupBox* UserEditor::buildPassword() {
    secret_ = platform::form::titledArea(QStringLiteral("Password"), this);
    oldPassword_ = passwordBox(QStringLiteral("tbPasswordAttuale"), secret_);
    newPassword_ = passwordBox(QStringLiteral("tbPasswordNuova"), secret_);
    repeated_ = passwordBox(QStringLiteral("tbPasswordRipetuta"), secret_);
    noPassword_ = platform::form::named(new QCheckBox(QStringLiteral("&Togli la password"), secret_),
                                        QStringLiteral("ckTogliPassword"));
    QGridLayout* grid = gridIn(secret_);
    oldCaption_ = platform::form::labelledRow(grid, 0, 0, QStringLiteral("&Password attuale:"), oldPassword_);
    grid->addWidget(noPassword_, 0, 3);
    platform::form::labelledRow(grid, 1, 0, QStringLiteral("N&uova password:"), newPassword_);
    platform::form::labelledRow(grid, 1, 2, QStringLiteral("&Ripetere:"), repeated_);
    QWidget* const order[] = {oldPassword_, noPassword_, newPassword_, repeated_};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
    connect(noPassword_, &QCheckBox::toggled, this, [this](bool none) {
        newPassword_->setEnabled(!none);
        repeated_->setEnabled(!none);
    });
    return secret_;
}

void UserEditor::fill(const UserData& user) {
    user_ = user;
    setWindowTitle(user.ID.isEmpty() ? QStringLiteral("Nuovo utente") : QStringLiteral("Dati dell'utente"));
    code_->setText(user.codice);
    surname_->setText(user.Cognome);
    name_->setText(user.Nome);
    taxCode_->setText(user.codicefiscale);
    const bool mayBeDoctor = signedIn_.isDoctor() || !user.ID.isEmpty();
    kind_->setCurrentIndex(qMax(0, kind_->findData(mayBeDoctor ? user.tipo : UserData::assistant)));
    activity_->setCurrentText(user.codiceAttivita);
    active_->setChecked(user.attivo);
    active_->setEnabled(!isSignedIn());
    kind_->setEnabled(signedIn_.isDoctor());
    secret_->setTitle(user.conPassword ? QStringLiteral("Password (impostata)")
                                       : QStringLiteral("Password (non impostata: si accede con un clic)"));
    noPassword_->setEnabled(user.conPassword);
    askForPassword();
    code_->setFocus();
}

/// Says whose password is wanted for a change.
void UserEditor::askForPassword() {
    const bool own = isSignedIn() || !user_.conPassword;
    const bool resets = &whosePassword() == &signedIn_;
    oldCaption_->setText(own      ? QStringLiteral("&Password attuale:")
                         : resets ? QStringLiteral("La &propria password:")
                                  : QStringLiteral("&Password dell'utente:"));
    oldPassword_->setAccessibleName(oldCaption_->text().remove(QLatin1Char('&')).chopped(1));
    oldPassword_->setEnabled(user_.conPassword);
    if (!user_.conPassword) return oldPassword_->setPlaceholderText(QString());
    oldPassword_->setPlaceholderText(resets ? QStringLiteral("quella di ") + signedIn_.nomeCompleto()
                                            : QStringLiteral("solo per cambiarla o toglierla"));
}

UserData UserEditor::fromFields() const {
    UserData user = user_;
    user.codice = code_->text().trimmed();
    user.Cognome = surname_->text().trimmed();
    user.Nome = name_->text().trimmed();
    user.codicefiscale = taxcode::normalized(taxCode_->text());
    user.tipo = kind_->currentData().toInt();
    user.codiceAttivita = activity_->currentText().trimmed().toUpper();
    user.attivo = active_->isChecked();
    return user;
}

bool UserEditor::changesPassword() const {
    return noPassword_->isChecked() || !newPassword_->text().isEmpty() || !repeated_->text().isEmpty();
}

QString UserEditor::refuse(QWidget* field, const QString& why) {
    field->setFocus();
    return why;
}

QString UserEditor::whatIsWrong(const UserData& user) {
    static const QRegularExpression twoLetters(QStringLiteral("^[A-Z]{2}$"));
    if (user.codice.isEmpty()) return refuse(code_, QStringLiteral("Indicare il codice con cui l'utente accede."));
    if (user.Cognome.isEmpty()) return refuse(surname_, QStringLiteral("Indicare il cognome dell'utente."));
    if (user.Nome.isEmpty()) return refuse(name_, QStringLiteral("Indicare il nome dell'utente."));
    if (!user.codicefiscale.isEmpty() && !taxcode::isValid(user.codicefiscale))
        return refuse(taxCode_, QStringLiteral("Il codice fiscale non è valido."));
    if (!twoLetters.match(user.codiceAttivita).hasMatch())
        return refuse(activity_, QStringLiteral("Il codice attività è di due lettere, per esempio OD."));
    for (const UserData& other : users_.all()) {
        if (other.ID == user.ID) continue;
        if (other.codice.compare(user.codice, Qt::CaseInsensitive) == 0)
            return refuse(code_, QStringLiteral("Un altro utente ha già questo codice."));
        if (!user.codicefiscale.isEmpty() && other.codicefiscale == user.codicefiscale)
            return refuse(taxCode_, QStringLiteral("Un altro utente ha già questo codice fiscale."));
    }
    return changesPassword() ? whatIsWrongWithPassword() : QString();
}

QString UserEditor::whatIsWrongWithPassword() {
    if (!noPassword_->isChecked()) {
        if (newPassword_->text().size() < SHORTEST_PASSWORD)
            return refuse(newPassword_,
                          QStringLiteral("La password deve avere almeno %1 caratteri.").arg(SHORTEST_PASSWORD));
        if (newPassword_->text() != repeated_->text())
            return refuse(repeated_, QStringLiteral("Le due password non sono uguali."));
    }
    return user_.conPassword ? judgePassword() : QString();
}

// Who has no password proves nothing by signing in, so only one who has may reset that of another.
const UserData& UserEditor::whosePassword() const {
    const bool mayReset = user_.conPassword && !isSignedIn() && signedIn_.isDoctor() && signedIn_.conPassword;
    return mayReset ? signedIn_ : user_;
}

// Through the sign-in's own check, so that guessing is no faster here.
QString UserEditor::judgePassword() {
    const UserData& whose = whosePassword();
    switch (signIn_.attempt(whose.codice, oldPassword_->text())) {
    case SignIn::Outcome::Accepted:
        return {};
    case SignIn::Outcome::Wrong:
        oldPassword_->selectAll();
        return refuse(oldPassword_,
                      isSignedIn() ? QStringLiteral("La password attuale non è corretta.")
                                   : QStringLiteral("La password di %1 non è corretta.").arg(whose.nomeCompleto()));
    case SignIn::Outcome::Wait:
        break;
    }
    return refuse(
        oldPassword_,
        QStringLiteral("Troppi tentativi errati: riprovare fra %1 secondi.").arg(signIn_.secondsToWait(whose.codice)));
}

void UserEditor::save() {
    UserData user = fromFields();
    QString wrong;
    const QString failure = guarded([&] {
        wrong = whatIsWrong(user);
        if (!wrong.isEmpty()) return;
        std::optional<QString> hash;
        if (changesPassword()) hash = noPassword_->isChecked() ? QString() : hashPassword(newPassword_->text());
        if (!users_.save(user, hash)) wrong = QStringLiteral("L'utente non è più nell'archivio.");
    });
    if (!failure.isEmpty()) wrong = QStringLiteral("L'utente non è stato salvato.\n") + failure;
    if (!wrong.isEmpty()) {
        platform::dialogs().message(wrong, platform::MB_WARNING, windowTitle());
        return;
    }
    user_ = user;
    accept();
}

} // namespace desk
