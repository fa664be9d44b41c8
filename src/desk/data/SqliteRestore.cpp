#include "desk/data/Database.h"
#include "desk/data/SqliteCopy.h"
#include "desk/data/SqliteFile.h"
#include "platform/Clock.h"
#include "platform/Files.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>
#include <fcntl.h>
#include <functional>
#include <unistd.h>

namespace desk {

namespace {

constexpr char COPY[] = "copia"; // the schema under which the copy is attached
constexpr int patience = 2000;   // milliseconds

[[noreturn]] void refuse(const QString& why) {
    throw DatabaseError(why);
}

[[noreturn]] void refuseOthers() {
    refuse(QStringLiteral("Un'altra postazione ha aperto l'archivio: chiudere Tessara su tutte le altre e riprovare."));
}

QString formerName(const QString& live) {
    const QFileInfo file(live);
    const QString base = QStringLiteral("%1/%2-sostituito-%3")
                             .arg(file.absolutePath(), file.completeBaseName(),
                                  platform::now().toString(QStringLiteral("yyyy-MM-dd-HHmmss")));
    QString name = base + QStringLiteral(".db");
    for (int i = 2; QFileInfo::exists(name); ++i)
        name = QStringLiteral("%1-%2.db").arg(base).arg(i);
    return name;
}

/// Nobody else gets at the file while it lives: the connection is made anew for it, with a lock that is not given back
/// between two statements. A connection of former times must not be used: what it keeps of the file in memory is told
/// from what others wrote since by a log which ends here.
class Alone {
public:
    explicit Alone(Database& database)
        : database_(database) {
        QElapsedTimer trying;
        trying.start();
        while (!database_.reopen(true)) {
            if (trying.hasExpired(patience)) {
                database_.reopen(false);
                refuseOthers();
            }
            QThread::msleep(10); // a desk that is just starting or ending is soon gone
        }
    }
    ~Alone() { database_.reopen(false); }
    Alone(const Alone&) = delete;
    Alone& operator=(const Alone&) = delete;

private:
    Database& database_;
};

/// The copy as a second schema of the connection, which for its time does not mind in what order rows come.
class Attached {
public:
    Attached(Database& database, const QString& path)
        : database_(database) {
        database_.run(QStringLiteral("attach database ? as %1").arg(QLatin1String(COPY)),
                      {SqliteFile::address(path, QStringLiteral("?immutable=1"))});
        database_.command(QStringLiteral("pragma foreign_keys=off"));
    }
    ~Attached() {
        try {
            const Database::Quiet quiet(database_);
            database_.command(QStringLiteral("pragma foreign_keys=on"));
            database_.command(QStringLiteral("detach database %1").arg(QLatin1String(COPY)));
        } catch (const DatabaseError&) {
            // It goes with the connection.
        }
    }
    Attached(const Attached&) = delete;
    Attached& operator=(const Attached&) = delete;

private:
    Database& database_;
};

QStringList column(Database& database, const QString& sql) {
    QStringList texts;
    for (Query query = database.command(sql); query.next();)
        texts << query.text(0);
    return texts;
}

QStringList tablesOf(Database& database, const QString& schema) {
    QStringList names = column(database, database.dialect().tables(schema));
    names.removeAll(QLatin1String(sqlite_copy::FILES_TABLE));
    return names;
}

// Statements are kept without the schema in which they made something.
QString within(const QString& schema, QString statement) {
    static const QRegularExpression start(QStringLiteral("^(CREATE (?:TABLE|INDEX|UNIQUE INDEX|TRIGGER|VIEW) )"),
                                          QRegularExpression::CaseInsensitiveOption);
    return statement.replace(start, QStringLiteral("\\1%1.").arg(schema));
}

void takeContent(Database& database) {
    const QString schema = database.schema();
    const QString copy = QLatin1String(COPY);
    for (const QString& table : tablesOf(database, schema))
        database.command(QStringLiteral("drop table %1.%2").arg(schema, table));
    const QString made =
        QStringLiteral("select sql from %1.sqlite_master where %2 and sql is not null and tbl_name <> '%3'")
            .arg(copy, QStringLiteral("%1"), QLatin1String(sqlite_copy::FILES_TABLE));
    for (const QString& statement :
         column(database, made.arg(QStringLiteral("type = 'table' and name not like 'sqlite%'"))))
        database.command(within(schema, statement));
    for (const QString& table : tablesOf(database, copy))
        database.command(QStringLiteral("insert into %1.%3 select * from %2.%3").arg(schema, copy, table));
    for (const QString& statement : column(database, made.arg(QStringLiteral("type <> 'table'"))))
        database.command(within(schema, statement));
}

int countOf(Database& database, const char* table) {
    const QString question = QStringLiteral("select count(*) from %1.%2").arg(database.schema(), QLatin1String(table));
    return column(database, question).value(0).toInt();
}

/// The lock that the database system itself takes on a file to which nobody else may come. It belongs to this handle of
/// the file, so that opening and closing others does not lose it.
class LockedFile {
public:
    explicit LockedFile(const QString& path)
        : handle_(::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC)) {
        if (handle_ < 0) refuse(QStringLiteral("Il file %1 non si può scrivere.").arg(QDir::toNativeSeparators(path)));
        struct flock range {};
        range.l_type = F_WRLCK;
        range.l_whence = SEEK_SET;
        range.l_start = 0x40000000; // one byte each for who waits and who is going to write, 510 for who reads
        range.l_len = 512;
        if (::fcntl(handle_, F_OFD_SETLK, &range) == 0) return;
        ::close(handle_);
        refuseOthers();
    }
    ~LockedFile() { ::close(handle_); }
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;
    int handle() const { return handle_; }

private:
    int handle_;
};

void writeAt(int handle, const QByteArray& bytes, qint64 place) {
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t written =
            ::pwrite(handle, bytes.constData() + done, static_cast<size_t>(bytes.size() - done), place + done);
        if (written <= 0) refuse(QStringLiteral("La copia non si può scrivere nel file dell'archivio."));
        done += written;
    }
}

// The name of what it is comes last: until then the file is taken for none, and whoever is interrupted begins again.
void overwrite(const LockedFile& live, const QString& path) {
    constexpr qint64 name = 16;
    constexpr qint64 step = 1 << 20;
    QFile copy(path);
    if (!copy.open(QIODevice::ReadOnly)) refuse(QStringLiteral("La copia non si può leggere."));
    writeAt(live.handle(), QByteArray(name, '\0'), 0);
    ::fsync(live.handle());
    const QByteArray first = copy.read(name);
    for (qint64 place = name; place < copy.size(); place += step)
        writeAt(live.handle(), copy.read(step), place);
    if (::ftruncate(live.handle(), copy.size()) != 0 || ::fsync(live.handle()) != 0)
        refuse(QStringLiteral("La copia non si può scrivere nel file dell'archivio."));
    writeAt(live.handle(), first, 0);
    ::fsync(live.handle());
}

void keepWithLog(const QString& live, const QString& former) {
    for (const char* ending : SQLITE_ENDINGS) {
        const QString beside = live + QLatin1String(ending);
        if (QFileInfo::exists(beside) && !platform::files::copy(beside, former + QLatin1String(ending)))
            refuse(QStringLiteral("L'archivio attuale non si può conservare con un altro nome."));
    }
}

} // namespace

QString sqlite_copy::restore(Database& database, const QString& path) {
    const QString live = livePath(database);
    refuseLiveFile(path, live);
    const CopyFacts facts = examine(path);
    const Alone alone(database);
    const DraftFile former(live);
    database.run(QStringLiteral("vacuum %1 into ?").arg(database.schema()), {former.path()});
    platform::files::restrictToOwner(former.path());
    const Attached attached(database, path);
    const QString kept = formerName(live);
    try {
        database.replaceContent([&] {
            takeContent(database);
            if (countOf(database, "tblPazienti") != facts.patients ||
                countOf(database, "tblWorkspace") != facts.records)
                refuse(QStringLiteral("La copia non è arrivata per intero."));
            former.moveOver(kept);
        });
    } catch (...) {
        QFile::remove(kept); // the same as what stays
        throw;
    }
    return kept;
}

QString sqlite_copy::replaceDamaged(const QString& live, const QString& path) {
    refuseLiveFile(path, live);
    // The file that was examined last is the one that is put in place: the chosen one may lie on a stick.
    const DraftFile draft(live);
    examine(path);
    if (!platform::files::copy(path, draft.path()))
        refuse(
            QStringLiteral("La copia non si può portare nella cartella dell'archivio: disco pieno o di sola lettura."));
    examine(draft.path());
    const LockedFile locked(live);
    const QString former = formerName(live);
    keepWithLog(live, former);
    for (const char* ending : {"-wal", "-shm", "-journal"})
        QFile::remove(live + QLatin1String(ending));
    overwrite(locked, draft.path());
    platform::files::restrictToOwner(live);
    return former;
}

} // namespace desk
