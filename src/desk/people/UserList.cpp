#include "desk/people/UserList.h"

#include "desk/data/UserDirectory.h"
#include "desk/icons/DeskIcon.h"
#include "desk/people/UserEditor.h"
#include "platform/FormRegistry.h"
#include "platform/ListPage.h"

#include <QVBoxLayout>
#include <stdexcept>

namespace desk {

namespace {

[[noreturn]] void refuse(const QString& why) {
    throw std::runtime_error(why.toStdString());
}

} // namespace

UserList::UserList(UserDirectory& users, SignIn& signIn, QString signedInId, QWidget* parent)
    : QDialog(parent)
    , users_(users)
    , signIn_(signIn)
    , signedInId_(std::move(signedInId)) {
    setObjectName(QStringLiteral("frmUtenti"));
    setWindowTitle(QStringLiteral("Utenti dello studio"));
    setWindowIcon(deskIcon("utenti"));
    platform::ListSource source{
        .name = QStringLiteral("pagina"),
        .grid = QStringLiteral("rcUtenti"),
        .status = QStringLiteral("laErrore"),
        .caption = windowTitle(),
        .empty = QStringLiteral("Nessun utente"),
        .columns = {{.caption = QStringLiteral("Codice"), .width = 110, .resizable = true},
                    {.caption = QStringLiteral("Cognome e Nome"), .width = 220, .resizable = true},
                    {.caption = QStringLiteral("Qualifica"), .width = 90},
                    {.caption = QStringLiteral("Attività"), .width = 70},
                    {.caption = QStringLiteral("Codice Fiscale"), .width = 160},
                    {.caption = QStringLiteral("Password"), .width = 80},
                    {.caption = QStringLiteral("Stato"), .width = 110}},
        .rows = [this](const auto&) { return rows(); },
        .commands = platform::editCommands(
            QString(), QStringLiteral("&Nuovo"),
            [this](const QString& id, QWidget* above) { return editor(id, above); },
            [this](const QString& id, platform::ListPage& page) { return removeOrDeactivate(id, page); })};
    source.commands.append(platform::closeCommand(QStringLiteral("cbChiudi"), QStringLiteral("Chiudi"), *this));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* page = new platform::ListPage(std::move(source), platform::ListPage::Buttons::Below, this);
    column->addWidget(page);
    resize(900, 380);
    page->refresh(signedInId_);
    platform::FormRegistry::add(this);
}

platform::ListRows UserList::rows() {
    platform::ListRows rows;
    for (const UserData& user : users_.all())
        rows.rows.append(
            {user.ID,
             {user.codice, user.fullName(), user.isDoctor() ? QStringLiteral("Medico") : QStringLiteral("Assistente"),
              user.codiceAttivita, user.codicefiscale, user.asksPassword ? QStringLiteral("Sì") : QStringLiteral("No"),
              user.ID == signedInId_ ? QStringLiteral("In uso")
              : user.attivo          ? QStringLiteral("Attivo")
                                     : QStringLiteral("Disattivato")}});
    return rows;
}

UserData UserList::known(const QString& id) {
    for (const UserData& user : users_.all())
        if (user.ID == id) return user;
    refuse(QStringLiteral("L'utente non è più nell'archivio."));
}

platform::RecordForm* UserList::editor(const QString& id, QWidget* parent) {
    UserData user;
    user.codiceAttivita = QStringLiteral("OD");
    if (!id.isEmpty()) user = known(id);
    return new UserEditor(users_, signIn_, known(signedInId_), user, parent);
}

bool UserList::removeOrDeactivate(const QString& id, platform::ListPage& page) {
    UserData user = known(id);
    if (user.ID == signedInId_) refuse(QStringLiteral("Non si può eliminare l'utente che sta usando il programma."));
    const QString name = user.fullName();
    if (!users_.hasRecords(user)) {
        if (!page.agreed(QStringLiteral("Eliminare l'utente %1?").arg(name))) return false;
        if (!users_.remove(user.ID)) refuse(QStringLiteral("L'utente non è stato eliminato."));
        return true;
    }
    if (!user.attivo) refuse(QStringLiteral("%1 ha dati registrati e resta nell'archivio, disattivato.").arg(name));
    if (!page.agreed(QStringLiteral("%1 ha dati registrati e non può essere eliminato.\nDisattivarlo? Non potrà più "
                                    "accedere al programma.")
                         .arg(name)))
        return false;
    user.attivo = false;
    return users_.save(user);
}

} // namespace desk
