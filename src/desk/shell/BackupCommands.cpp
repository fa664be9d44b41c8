#include "desk/shell/BackupCommands.h"

#include "desk/data/Database.h"
#include "desk/data/SqliteCopy.h"
#include "desk/data/UserDirectory.h"
#include "desk/shell/ArchiveRestore.h"
#include "platform/Clock.h"
#include "platform/WaitCursor.h"

#include <QDir>
#include <algorithm>

namespace desk {

namespace {

QString makeTitle() {
    return QStringLiteral("Copia di sicurezza");
}
QString restoreTitle() {
    return QStringLiteral("Ripristina copia");
}
/// Does the work with the hourglass on; false after it failed and the user was told.
bool worked(Database& database, const QString& title, const QString& failure, const std::function<void()>& work) {
    QString why;
    try {
        const Database::Quiet quiet(database);
        const platform::WaitCursor wait;
        work();
        return true;
    } catch (const DatabaseError& error) {
        why = error.text();
    }
    platform::dialogs().message(failure + QStringLiteral("\n\n") + why, platform::MB_CRITICAL, title);
    return false;
}

} // namespace

BackupCommands::BackupCommands(Database& database, QString userId, Hooks hooks)
    : database_(database)
    , userId_(std::move(userId))
    , hooks_(std::move(hooks)) {}

void BackupCommands::makeCopy() {
    if (explainedServer()) return;
    const QString proposed =
        QStringLiteral("tessara-%1.db").arg(platform::now().toString(QStringLiteral("yyyy-MM-dd-HHmm")));
    const QString path = platform::dialogs().saveFile(makeTitle(), fileKinds(), proposed);
    if (path.isEmpty()) return;
    CopyFacts facts;
    if (!worked(database_, makeTitle(), QStringLiteral("La copia di sicurezza non è stata fatta."),
                [&] { facts = sqlite_copy::make(database_, path, PracticeFolders::ofUser().files()); }))
        return;
    platform::dialogs().message(QStringLiteral("La copia di sicurezza è stata fatta e riletta per intero.\n\n%1\n\n%2")
                                    .arg(QDir::toNativeSeparators(path), describe(facts)),
                                platform::MB_INFORMATION, makeTitle());
}

void BackupCommands::restoreCopy() {
    if (explainedServer()) return;
    const QString path = platform::dialogs().openFile(restoreTitle(), fileKinds(), QString());
    if (path.isEmpty() || !mayReplace(path) || !hooks_.closeEverything()) return;
    RestoredArchive restored;
    if (!worked(database_, restoreTitle(),
                QStringLiteral("La copia non è stata ripristinata: l'archivio è rimasto com'era."),
                [&] { restored.former = sqlite_copy::restore(database_, path); }))
        return;
    worked(database_, restoreTitle(), QStringLiteral("L'archivio è quello della copia, le impostazioni no."),
           [&] { restored.files = PracticeFolders::ofUser().putBack(sqlite_copy::filesIn(path)); });
    goOnAfter(restored);
}

bool BackupCommands::mayReplace(const QString& path) {
    CopyFacts facts;
    if (!worked(database_, restoreTitle(), QStringLiteral("Questa copia non si può ripristinare."),
                [&] { facts = sqlite_copy::examine(path); }))
        return false;
    const QString question = QStringLiteral(
        "La copia scelta contiene:\n\n%1\n\nTutto l'archivio attuale viene sostituito da questa copia, e "
        "con esso le impostazioni e i cataloghi che la copia ha con sé. Quello che viene sostituito "
        "resta conservato nella stessa cartella, con la data di oggi nel nome.\n\nRipristinare la "
        "copia?");
    return platform::dialogs().message(question.arg(describe(facts)), platform::MB_QUESTION_DEFAULT_NO,
                                       restoreTitle()) == platform::Answer::Yes;
}

// What is signed with a user that the copy does not know could not be stored, and the module has read its settings.
void BackupCommands::goOnAfter(const RestoredArchive& restored) {
    const QList<UserData> users = UserDirectory(database_).all();
    const bool known =
        std::any_of(users.cbegin(), users.cend(), [this](const UserData& user) { return user.ID == userId_; });
    QString text = describe(restored);
    if (!known)
        text += QStringLiteral("\n\nL'utente attuale non esiste nell'archivio ripristinato: il programma si chiude.");
    else if (!restored.files.isEmpty())
        text +=
            QStringLiteral("\n\nIl programma si chiude: alla prossima apertura valgono le impostazioni della copia.");
    platform::dialogs().message(text, platform::MB_INFORMATION, restoreTitle());
    if (!known || !restored.files.isEmpty()) hooks_.leave();
}

platform::FileKinds BackupCommands::fileKinds() {
    return {{QStringLiteral("Archivi di Tessara"), {QStringLiteral("*.db")}}, platform::everyFile()};
}

bool BackupCommands::explainedServer() const {
    const DatabaseUrl& url = database_.url();
    if (url.kind == DatabaseUrl::Kind::Sqlite) return false;
    // Short lines: a message box breaks long ones in the middle of an option.
    const QString access = QStringLiteral("    -h %1 -p %2\n    -U %3").arg(url.server).arg(url.port).arg(url.user);
    platform::dialogs().message(
        QStringLiteral(
            "L'archivio si trova su un server PostgreSQL: la copia si fa con il programma pg_dump, anche mentre "
            "si lavora.\n\npg_dump -F c -n %1 -f studio.dump\n%2 %3\n\n"
            "Per ripristinarla, con Tessara chiuso su tutte le postazioni, si dà un altro nome all'archivio "
            "attuale, se ne crea uno vuoto con il nome di prima e vi si porta la copia:\n\n"
            "pg_restore --single-transaction\n%2 -d %3\n    studio.dump")
            .arg(database_.schema(), access, url.database),
        platform::MB_INFORMATION, makeTitle());
    return true;
}

} // namespace desk
