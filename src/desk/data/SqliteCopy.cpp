#include "desk/data/SqliteCopy.h"

#include "desk/data/Database.h"
#include "desk/data/Migrations.h"
#include "desk/data/SqliteFile.h"
#include "platform/Files.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlQuery>
#include <algorithm>

namespace desk {

namespace {

constexpr int mostLooks = 20; // copies that are read through, each of which may be large

[[noreturn]] void refuse(const QString& why) {
    throw DatabaseError(why);
}

bool isSameFile(const QString& one, const QString& other) {
    const QString real = QFileInfo(one).canonicalFilePath();
    return QFileInfo(one).absoluteFilePath() == QFileInfo(other).absoluteFilePath() ||
           (!real.isEmpty() && real == QFileInfo(other).canonicalFilePath());
}

void takeAlong(const QString& copy, const QList<PracticeFile>& files) {
    SqliteFile file(copy, SqliteFile::Use::Write);
    file.execute(QStringLiteral("begin"));
    file.execute(QStringLiteral("drop table if exists %1").arg(QLatin1String(sqlite_copy::FILES_TABLE)));
    file.execute(QStringLiteral("create table %1 (nome text not null primary key, contenuto blob not null)")
                     .arg(QLatin1String(sqlite_copy::FILES_TABLE)));
    for (const PracticeFile& each : files)
        file.execute(QStringLiteral("insert into %1 (nome, contenuto) values (?, ?)")
                         .arg(QLatin1String(sqlite_copy::FILES_TABLE)),
                     {each.name, each.content});
    file.execute(QStringLiteral("commit"));
}

CopyFacts factsOf(const SqliteFile& file) {
    const QVariant version = file.ask(QStringLiteral("select max(versione) from tblVersione"));
    const QVariant patients = file.ask(QStringLiteral("select count(*) from tblPazienti"));
    const QVariant records = file.ask(QStringLiteral("select count(*) from tblWorkspace"));
    if (version.toInt() < 1 || !patients.isValid() || !records.isValid())
        refuse(QStringLiteral("Il file non è un archivio di Tessara."));
    if (version.toInt() > Migrations::latest())
        refuse(
            QStringLiteral("La copia è di una versione più recente (%1) di quella che questo programma conosce (%2): "
                           "aggiornare il programma.")
                .arg(version.toInt())
                .arg(Migrations::latest()));
    const QVariant change = file.ask(QStringLiteral("select max(LastUpdate) from (select LastUpdate from tblWorkspace "
                                                    "union all select LastUpdate from tblPazienti)"));
    return {patients.toInt(), records.toInt(), momentOf(change.toString()).date()};
}

} // namespace

QString sqlite_copy::livePath(const Database& database) {
    if (database.url().kind != DatabaseUrl::Kind::Sqlite)
        refuse(QStringLiteral("L'archivio si trova su un server: la copia si fa con gli strumenti del server."));
    return database.url().path;
}

void sqlite_copy::refuseLiveFile(const QString& path, const QString& live) {
    for (const char* ending : SQLITE_ENDINGS)
        if (isSameFile(path, live + QLatin1String(ending)))
            refuse(QStringLiteral("È il file dell'archivio in uso: scegliere un altro file."));
}

CopyFacts sqlite_copy::examine(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable()) refuse(QStringLiteral("La copia non si può leggere."));
    if (hasSqliteLog(path))
        refuse(QStringLiteral("Accanto alla copia vi sono modifiche non ancora registrate in essa: non è una copia di "
                              "sicurezza di Tessara, ma un archivio in uso o copiato a metà."));
    const SqliteFile look(path, SqliteFile::Use::Look);
    const QString state = look.ask(QStringLiteral("pragma integrity_check(1)")).toString();
    if (state.isEmpty()) refuse(QStringLiteral("Il file non è un archivio di Tessara, oppure è danneggiato."));
    if (state != QLatin1String("ok")) refuse(QStringLiteral("La copia è danneggiata."));
    return factsOf(look);
}

QList<PracticeFile> sqlite_copy::filesIn(const QString& path) {
    const SqliteFile look(path, SqliteFile::Use::Look);
    QList<PracticeFile> files;
    QSqlQuery rows = look.rows(QStringLiteral("select nome, contenuto from %1 order by nome").arg(QLatin1String(FILES_TABLE)));
    while (rows.next())
        files << PracticeFile{rows.value(0).toString(), rows.value(1).toByteArray()};
    return files;
}

CopyFacts sqlite_copy::make(Database& database, const QString& path, const QList<PracticeFile>& files) {
    refuseLiveFile(path, livePath(database));
    if (QFileInfo(path).isDir()) refuse(QStringLiteral("Il percorso indica una cartella, non un file."));
    const DraftFile draft(path);
    database.run(QStringLiteral("vacuum %1 into ?").arg(database.schema()), {draft.path()});
    platform::files::restrictToOwner(draft.path());
    takeAlong(draft.path(), files);
    const CopyFacts facts = examine(draft.path());
    draft.moveOver(path);
    return facts;
}

QList<FoundCopy> sqlite_copy::latest(const QStringList& folders, const QString& live, int most) {
    QFileInfoList files;
    QStringList seen{QFileInfo(live).canonicalFilePath()};
    for (const QString& folder : folders) {
        for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.db")}, QDir::Files)) {
            if (seen.contains(file.canonicalFilePath())) continue;
            seen << file.canonicalFilePath();
            files << file;
        }
    }
    std::sort(files.begin(), files.end(),
              [](const QFileInfo& a, const QFileInfo& b) { return a.lastModified() > b.lastModified(); });
    QList<FoundCopy> found;
    for (const QFileInfo& file : files.mid(0, mostLooks)) {
        if (found.size() == most) break;
        try {
            found << FoundCopy{file.absoluteFilePath(), file.lastModified(), examine(file.absoluteFilePath())};
        } catch (const DatabaseError&) {
            // Not a copy, or not a good one.
        }
    }
    return found;
}

} // namespace desk
