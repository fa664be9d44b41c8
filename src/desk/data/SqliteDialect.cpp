#include "desk/data/SqliteDialect.h"

#include "desk/data/DatabaseError.h"
#include "platform/Files.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QVariant>

namespace desk {

namespace {

constexpr int alonePatience = 200;     // milliseconds: whoever wants to be alone tries again and again
constexpr int openingPatience = 3000;  // milliseconds: the user looks at an empty screen
constexpr int everydayPatience = 8000; // another workstation's save is soon over

// Native result codes, without their extension.
constexpr int codeBusy = 5;
constexpr int codeLocked = 6;
constexpr int codeNoMemory = 7;
constexpr int codeReadOnly = 8;
constexpr int codeInterrupted = 9;
constexpr int codeInputOutput = 10;
constexpr int codeCorrupt = 11;
constexpr int codeFull = 13;
constexpr int codeCannotOpen = 14;
constexpr int codeNotADatabase = 26;
// With it: a write or the room for the shared index that the disk refused.
constexpr int codeWrite = codeInputOutput | (3 << 8);
constexpr int codeSync = codeInputOutput | (4 << 8);
constexpr int codeIndexRoom = codeInputOutput | (19 << 8);

int extendedCode(const QSqlError& error) {
    return error.nativeErrorCode().toInt();
}

int nativeCode(const QSqlError& error) {
    return extendedCode(error) & 0xff;
}

QString damaged() {
    return QStringLiteral("L'archivio è danneggiato: ripristinare l'ultima copia di sicurezza.");
}

QString notAnArchive() {
    return QStringLiteral("Il file non è un archivio di Tessara, oppure è danneggiato.");
}

[[noreturn]] void refuse(const QString& why) {
    throw DatabaseError(why);
}

[[noreturn]] void refuse(const QSqlError& error) {
    const QString why = SqliteDialect().explain(error);
    if (SqliteDialect().tellsDamage(error)) throw DamagedArchive(why);
    throw DatabaseError(why);
}

// A stray file must be recognised before the database library touches it: it would lay its own files beside it.
void checkContent(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(QStringLiteral("Il file non può essere letto: %1.").arg(file.errorString()));
    if (file.size() == 0) {
        // The log of a lost file still holds its last changes, and would be thrown away together with it.
        if (QFileInfo(path + QStringLiteral("-wal")).size() > 0)
            throw DamagedArchive(QStringLiteral(
                "Il file è vuoto, ma accanto vi sono modifiche non ancora registrate: il file è danneggiato."));
        return;
    }
    if (file.read(16) != QByteArray("SQLite format 3", 16)) throw DamagedArchive(notAnArchive());
}

void checkFile(const QString& path) {
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    if (!folder.exists()) refuse(QStringLiteral("La cartella non esiste."));
    if (!folder.isDir()) refuse(QStringLiteral("Il percorso passa per un file che non è una cartella."));
    if (file.isDir()) refuse(QStringLiteral("Il percorso indica una cartella, non un file."));
    if (file.exists()) checkContent(path);
    if (file.exists() && !file.isWritable()) refuse(QStringLiteral("Il file è di sola lettura."));
    if (!folder.isWritable()) refuse(QStringLiteral("La cartella è di sola lettura."));
}

// Its log gets the rights that the file itself has.
void keepFromOthers(const QString& path) {
    for (const char* ending : {"", "-wal", "-shm"})
        platform::files::restrictToOwner(path + QLatin1String(ending));
}

void execute(QSqlDatabase& connection, const QString& sql) {
    QSqlQuery query(connection);
    if (!query.exec(sql)) refuse(query.lastError());
}

// As far as the record tables go; the stored files may take gigabytes, and their damage stays theirs.
void checkPages(QSqlDatabase& connection, const QString& schema) {
    QSqlQuery names(connection);
    names.exec(QStringLiteral(
                   "select name from %1.sqlite_master where type='table' and name in ('tblPazienti', 'tblWorkspace')")
                   .arg(schema));
    while (names.next()) {
        QSqlQuery check(connection);
        const bool answered =
            check.exec(QStringLiteral("pragma %1.quick_check(%2)").arg(schema, names.value(0).toString())) &&
            check.next();
        if (!answered || check.value(0).toString() != QLatin1String("ok")) throw DamagedArchive(damaged());
    }
}

} // namespace

void SqliteDialect::open(QSqlDatabase& connection, const DatabaseUrl& url, const QString& schema) const {
    checkFile(url.path);
    const bool known = QFileInfo::exists(url.path);
    connection.setDatabaseName(QStringLiteral(":memory:"));
    connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1")
                                     .arg(alone_ ? alonePatience : openingPatience));
    if (!connection.open()) refuse(connection.lastError());
    // Told before the file is attached, so that nothing of it is read, or kept in memory, that others could still change.
    if (alone_) execute(connection, QStringLiteral("pragma locking_mode=exclusive"));
    if (known) keepFromOthers(url.path);

    // "rw" never makes a new file where one was just seen.
    QUrl file = QUrl::fromLocalFile(url.path);
    const QString address =
        file.toString(QUrl::FullyEncoded) + (known ? QStringLiteral("?mode=rw") : QStringLiteral("?mode=rwc"));
    QSqlQuery attach(connection);
    attach.prepare(QStringLiteral("attach database ? as %1").arg(schema));
    attach.addBindValue(address);
    if (!attach.exec()) refuse(attach.lastError());

    QSqlQuery firstLook(connection);
    if (!firstLook.exec(QStringLiteral("select count(*) from %1.sqlite_master").arg(schema)) || !firstLook.next())
        refuse(firstLook.lastError());
    firstLook.finish();
    if (alone_) {
        execute(connection, QStringLiteral("begin exclusive")); // the lock stays when this is over
        execute(connection, QStringLiteral("commit"));
    }
    if (!known) keepFromOthers(url.path);
    if (known) checkPages(connection, schema);
}

void SqliteDialect::settle(QSqlDatabase& connection, const QString& schema) const {
    execute(connection, QStringLiteral("pragma %1.journal_mode=wal").arg(schema));
    execute(connection, QStringLiteral("pragma %1.synchronous=full").arg(schema));
    execute(connection, QStringLiteral("pragma foreign_keys=on"));
    execute(connection, QStringLiteral("pragma busy_timeout=%1").arg(everydayPatience));
}

QString SqliteDialect::expand(const QString& sql, const QString& schema) const {
    // An index is named under the schema, its table without it.
    static const QRegularExpression index(QStringLiteral("create( unique)? index (\\w+) on \\{schema\\}\\.(\\w+)"),
                                          QRegularExpression::CaseInsensitiveOption);
    QString text = sql;
    text.remove(QStringLiteral("{sqlite}"));
    text.replace(index, QStringLiteral("create\\1 index {schema}.\\2 on \\3"));
    text.replace(QStringLiteral("{blob}"), QStringLiteral("blob"));
    text.replace(QStringLiteral("{schema}"), schema);
    return text;
}

QString SqliteDialect::tables(const QString& schema) const {
    return QStringLiteral(
               "select name from %1.sqlite_master where type='table' and name not like 'sqlite\\_%' escape '\\'")
        .arg(schema);
}

// SQLite turns a text into UTF-16 letter by letter; the bytes of it become a QString many times faster.
QString SqliteDialect::longText(const QString& column) const {
    return QStringLiteral("cast(%1 as blob)").arg(column);
}

QString SqliteDialect::contains(const QString& column) const {
    return QStringLiteral("instr(%1, ?) > 0").arg(column);
}

QString SqliteDialect::foreignWrites() const {
    return QStringLiteral("pragma {schema}.data_version");
}

bool SqliteDialect::tellsDamage(const QSqlError& error) const {
    return nativeCode(error) == codeCorrupt || nativeCode(error) == codeNotADatabase;
}

bool SqliteDialect::endsTransaction(const QSqlError& error) const {
    const int code = nativeCode(error);
    return code == codeFull || code == codeInputOutput || code == codeNoMemory || code == codeInterrupted;
}

QString SqliteDialect::explain(const QSqlError& error) const {
    switch (extendedCode(error)) {
    case codeIndexRoom:
        return QStringLiteral("Il disco è pieno.");
    case codeWrite:
    case codeSync:
        return QStringLiteral("Il disco non accetta altri dati: è pieno oppure guasto.");
    default:
        break;
    }
    switch (nativeCode(error)) {
    case codeBusy:
    case codeLocked:
        return QStringLiteral("L'archivio è in uso da un altro programma. Riprovare fra poco.");
    case codeReadOnly:
        return QStringLiteral("L'archivio è di sola lettura.");
    case codeInputOutput:
        return QStringLiteral("Errore del disco durante l'accesso all'archivio.");
    case codeCorrupt:
        return damaged();
    case codeFull:
        return QStringLiteral("Il disco è pieno.");
    case codeCannotOpen:
        return QStringLiteral("Il file dell'archivio non può essere aperto.");
    case codeNotADatabase:
        return notAnArchive();
    default:
        return QStringLiteral("Errore dell'archivio: %1.").arg(error.databaseText());
    }
}

} // namespace desk
