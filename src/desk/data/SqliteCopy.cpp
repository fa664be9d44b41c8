#include "desk/data/SqliteCopy.h"

#include "desk/data/Database.h"
#include "desk/data/Migrations.h"
#include "platform/Clock.h"
#include "platform/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QUuid>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace desk {

namespace {

[[noreturn]] void refuse(const QString& why) {
    throw DatabaseError(why);
}

/// A look into a file that changes nothing in it and lays nothing beside it.
class Look {
public:
    explicit Look(const QString& path)
        : name_(QStringLiteral("copia-") + QUuid::createUuid().toString(QUuid::WithoutBraces))
        , connection_(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name_)) {
        connection_.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_OPEN_READONLY"));
        connection_.setDatabaseName(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded) +
                                    QStringLiteral("?immutable=1"));
        if (!connection_.open()) refuse(QStringLiteral("La copia non si può leggere."));
    }
    ~Look() {
        connection_.close();
        connection_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(name_);
    }
    Look(const Look&) = delete;
    Look& operator=(const Look&) = delete;

    /// The first answer; an invalid value where there is none or the question fails.
    QVariant ask(const QString& sql) const {
        QSqlQuery query(connection_);
        return query.exec(sql) && query.next() ? query.value(0) : QVariant();
    }

private:
    QString name_;
    QSqlDatabase connection_;
};

/// A file that goes again unless it was put to use.
class Draft {
public:
    explicit Draft(const QString& finalPath)
        : path_(finalPath + QStringLiteral(".parte-") + QUuid::createUuid().toString(QUuid::WithoutBraces).left(8)) {}
    ~Draft() { QFile::remove(path_); }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;
    const QString& path() const { return path_; }

private:
    QString path_;
};

bool onDisk(const QString& path, int flags) {
    const int file = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (file < 0) return false;
    const bool done = ::fsync(file) == 0;
    ::close(file);
    return done;
}

/// Replaces in one step, as a power cut may come at any moment.
void moveOver(const QString& from, const QString& to) {
    const bool moved = onDisk(from, O_RDONLY) &&
                       std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
    if (!moved) refuse(QStringLiteral("Il file %1 non si può scrivere.").arg(QDir::toNativeSeparators(to)));
    onDisk(QFileInfo(to).absolutePath(), O_RDONLY | O_DIRECTORY);
}

QString livePath(const Database& database) {
    if (database.url().kind != DatabaseUrl::Kind::Sqlite)
        refuse(QStringLiteral("L'archivio si trova su un server: la copia si fa con gli strumenti del server."));
    return database.url().path;
}

bool isSameFile(const QString& one, const QString& other) {
    const QString real = QFileInfo(one).canonicalFilePath();
    return QFileInfo(one).absoluteFilePath() == QFileInfo(other).absoluteFilePath() ||
           (!real.isEmpty() && real == QFileInfo(other).canonicalFilePath());
}

void refuseLiveFile(const QString& path, const QString& live) {
    for (const char* ending : {"", "-wal", "-shm", "-journal"})
        if (isSameFile(path, live + QLatin1String(ending)))
            refuse(QStringLiteral("È il file dell'archivio in uso: scegliere un altro file."));
}

bool hasLog(const QString& path) {
    return QFileInfo(path + QStringLiteral("-wal")).size() > 0 ||
           QFileInfo(path + QStringLiteral("-journal")).size() > 0;
}

// The switch away from the shared log succeeds only for whoever is alone with the file, and brings all of the log into
// it.
void beAlone(Database& database) {
    QString mode;
    try {
        Query query = database.command(QStringLiteral("pragma %1.journal_mode=delete").arg(database.schema()));
        if (query.next()) mode = query.text(0);
    } catch (const DatabaseError&) {
        mode.clear();
    }
    if (mode != QLatin1String("delete"))
        refuse(QStringLiteral(
            "Un'altra postazione ha aperto l'archivio: chiudere Tessara su tutte le altre e riprovare."));
}

QString datedName(const QString& live) {
    const QFileInfo file(live);
    const QString base = QStringLiteral("%1/%2-sostituito-%3")
                             .arg(file.absolutePath(), file.completeBaseName(),
                                  platform::now().toString(QStringLiteral("yyyy-MM-dd-HHmmss")));
    QString name = base + QStringLiteral(".db");
    for (int i = 2; QFileInfo::exists(name); ++i)
        name = QStringLiteral("%1-%2.db").arg(base).arg(i);
    return name;
}

} // namespace

CopyFacts sqlite_copy::examine(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable()) refuse(QStringLiteral("La copia non si può leggere."));
    if (hasLog(path))
        refuse(QStringLiteral("Accanto alla copia vi sono modifiche non ancora registrate in essa: non è una copia di "
                              "sicurezza di Tessara, ma un archivio in uso o copiato a metà."));
    const Look look(path);
    const QString state = look.ask(QStringLiteral("pragma integrity_check(1)")).toString();
    if (state.isEmpty()) refuse(QStringLiteral("Il file non è un archivio di Tessara, oppure è danneggiato."));
    if (state != QLatin1String("ok")) refuse(QStringLiteral("La copia è danneggiata."));
    const QVariant version = look.ask(QStringLiteral("select max(versione) from tblVersione"));
    const QVariant patients = look.ask(QStringLiteral("select count(*) from tblPazienti"));
    const QVariant records = look.ask(QStringLiteral("select count(*) from tblWorkspace"));
    if (version.toInt() < 1 || !patients.isValid() || !records.isValid())
        refuse(QStringLiteral("Il file non è un archivio di Tessara."));
    if (version.toInt() > Migrations::latest())
        refuse(
            QStringLiteral("La copia è di una versione più recente (%1) di quella che questo programma conosce (%2): "
                           "aggiornare il programma.")
                .arg(version.toInt())
                .arg(Migrations::latest()));
    const QVariant change = look.ask(QStringLiteral("select max(LastUpdate) from (select LastUpdate from tblWorkspace "
                                                    "union all select LastUpdate from tblPazienti)"));
    return {patients.toInt(), records.toInt(), momentOf(change.toString()).date()};
}

CopyFacts sqlite_copy::make(Database& database, const QString& path) {
    refuseLiveFile(path, livePath(database));
    if (QFileInfo(path).isDir()) refuse(QStringLiteral("Il percorso indica una cartella, non un file."));
    const Draft draft(path);
    database.run(QStringLiteral("vacuum %1 into ?").arg(database.schema()), {draft.path()});
    const CopyFacts facts = examine(draft.path());
    moveOver(draft.path(), path);
    return facts;
}

QString sqlite_copy::restore(Database& database, const QString& path) {
    const QString live = livePath(database);
    refuseLiveFile(path, live);
    examine(path);
    // The file that was examined last is the one that is put in place: the chosen one may lie on a stick.
    const Draft draft(live);
    if (!platform::files::copy(path, draft.path()))
        refuse(
            QStringLiteral("La copia non si può portare nella cartella dell'archivio: disco pieno o di sola lettura."));
    examine(draft.path());
    QFile::setPermissions(draft.path(), QFile::permissions(live));
    const QString former = datedName(live);
    beAlone(database);
    bool swapped = false;
    const auto swap = [&] {
        if (hasLog(live)) refuse(QStringLiteral("Un'altra postazione ha appena aperto l'archivio: riprovare."));
        if (::link(QFile::encodeName(live).constData(), QFile::encodeName(former).constData()) != 0 &&
            !platform::files::copy(live, former))
            refuse(QStringLiteral("L'archivio attuale non si può conservare con un altro nome."));
        moveOver(draft.path(), live);
        swapped = true;
    };
    try {
        database.replaced(swap);
    } catch (const DatabaseError&) {
        if (swapped) database.replaced([&] { moveOver(former, live); });
        throw;
    }
    return former;
}

} // namespace desk
