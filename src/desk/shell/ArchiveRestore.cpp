#include "desk/shell/ArchiveRestore.h"

#include "desk/data/Database.h"
#include "platform/Regional.h"

#include <QDir>

namespace desk {

namespace {

QString putInPlace(const DatabaseUrl& url, const QString& copy) {
    try {
        const std::unique_ptr<Database> database = Database::open(url);
        return sqlite_copy::restore(*database, copy);
    } catch (const DamagedArchive&) {
        return sqlite_copy::replaceDamaged(url.path, copy);
    }
}

} // namespace

RestoredArchive restoreArchive(const DatabaseUrl& url, const QString& copy) {
    if (url.kind != DatabaseUrl::Kind::Sqlite)
        throw DatabaseError(
            QStringLiteral("L'archivio si trova su un server: si ripristina con gli strumenti del server."));
    sqlite_copy::examine(copy);
    const QList<PracticeFile> files = sqlite_copy::filesIn(copy);
    RestoredArchive restored;
    restored.former = putInPlace(url, copy);
    restored.files = PracticeFolders::ofUser().putBack(files);
    return restored;
}

QString describe(const CopyFacts& facts) {
    QString text = QStringLiteral("Pazienti: %1\nDocumenti: %2").arg(facts.patients).arg(facts.records);
    if (facts.lastChange.isValid())
        text += QStringLiteral("\nUltima modifica: ") + platform::regional().shortDate(facts.lastChange);
    return text;
}

QString describe(const RestoredArchive& restored) {
    QString text = QStringLiteral("La copia è stata ripristinata.\n\nL'archivio di prima è conservato in:\n%1")
                       .arg(QDir::toNativeSeparators(restored.former));
    if (!restored.files.isEmpty())
        text += QStringLiteral("\n\nCon essa sono tornati: %1. I file di prima restano accanto, con la data nel nome.")
                    .arg(restored.files.join(QStringLiteral(", ")));
    return text;
}

} // namespace desk
