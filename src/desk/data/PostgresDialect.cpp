#include "desk/data/PostgresDialect.h"

#include "desk/data/DatabaseError.h"

#include <QLibrary>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace desk {

namespace {

// A server that was unplugged answers nothing at all: without a limit the windows would stand still for many minutes.
constexpr char connectOptions[] = "connect_timeout=5;tcp_user_timeout=10000;keepalives_idle=30;keepalives_interval=5;"
                                  "keepalives_count=3;application_name=tessara";

constexpr int openingLock = 5000906; // any number that no other program on the server uses

// The lines after the first repeat the row, and with it a patient's data.
QString firstLine(const QSqlError& error) {
    return error.databaseText().section(QLatin1Char('\n'), 0, 0);
}

void execute(QSqlDatabase& connection, const QString& sql) {
    QSqlQuery query(connection);
    if (!query.exec(sql)) throw DatabaseError(PostgresDialect().explain(query.lastError()));
}

// The server gives no code for a refused connection, only words.
QString refusal(const QString& words) {
    struct Reason {
        const char* words;
        const char16_t* meaning;
    };
    static constexpr Reason reasons[] = {
        {"password authentication failed", u"Il server rifiuta l'accesso: nome utente o password non validi."},
        {"no password supplied", u"Il server rifiuta l'accesso: manca la password."},
        {"no pg_hba.conf entry", u"Il server rifiuta l'accesso da questo computer."},
        {"Connection refused", u"Il server non risponde: è spento, oppure l'indirizzo o la porta non sono giusti."},
        {"timeout expired", u"Il server non risponde: è spento oppure la rete non lo raggiunge."},
        {"No route to host", u"Il server non risponde: la rete non lo raggiunge."},
        {"could not translate host name", u"Il server non risponde: il suo nome non si trova nella rete."},
        {"starting up", u"Il server non risponde ancora: si sta avviando. Riprovare fra poco."},
        {"shutting down", u"Il server non risponde più: si sta spegnendo."},
        {"too many clients", u"Il server rifiuta l'accesso: troppi programmi collegati."},
    };
    for (const Reason& reason : reasons)
        if (words.contains(QLatin1String(reason.words))) return QString::fromUtf16(reason.meaning);
    if (words.contains(QLatin1String("does not exist")))
        return QStringLiteral("Il server rifiuta l'accesso: l'archivio o l'utente indicato non esiste.");
    return QStringLiteral("Il server non risponde o rifiuta l'accesso: %1").arg(words);
}

} // namespace

void PostgresDialect::open(QSqlDatabase& connection, const DatabaseUrl& url, const QString& schema) const {
    Q_UNUSED(schema);
    if (!QSqlDatabase::isDriverAvailable(driver()))
        throw DatabaseError(QStringLiteral("Su questo computer manca il componente per i server PostgreSQL."));
    connection.setHostName(url.server);
    connection.setPort(url.port);
    connection.setDatabaseName(url.database);
    connection.setUserName(url.user);
    connection.setPassword(url.password);
    connection.setConnectOptions(QString::fromLatin1(connectOptions));
    if (!connection.open()) throw DatabaseError(refusal(firstLine(connection.lastError())));
}

void PostgresDialect::enter(QSqlDatabase& connection, const QString& schema) const {
    execute(connection, QStringLiteral("set client_min_messages to warning"));
    execute(connection, QStringLiteral("set lock_timeout to '8s'"));
    // One workstation at a time creates the tables or brings them up to date; a refusal ends the session and with it
    // the lock.
    execute(connection, QStringLiteral("select pg_advisory_lock(%1)").arg(openingLock));
    execute(connection, QStringLiteral("create schema if not exists %1").arg(schema));
    execute(connection, QStringLiteral("set search_path to %1").arg(schema)); // where references look for their tables
}

void PostgresDialect::settle(QSqlDatabase& connection, const QString& schema) const {
    Q_UNUSED(schema);
    execute(connection, QStringLiteral("select pg_advisory_unlock(%1)").arg(openingLock));
    // A server that is there but overloaded gives up before we give it up.
    execute(connection, QStringLiteral("set statement_timeout to '15s'"));
}

QString PostgresDialect::expand(const QString& sql, const QString& schema) const {
    if (sql.startsWith(QLatin1String("{sqlite}"))) return {};
    QString text = sql;
    text.replace(QStringLiteral("{blob}"), QStringLiteral("bytea"));
    text.replace(QStringLiteral("{schema}"), schema);
    return text;
}

QString PostgresDialect::tables(const QString& schema) const {
    return QStringLiteral("select table_name from information_schema.tables where table_schema='%1'").arg(schema);
}

QString PostgresDialect::longText(const QString& column) const {
    return column;
}

QString PostgresDialect::contains(const QString& column) const {
    return QStringLiteral("strpos(%1, ?) > 0").arg(column);
}

// The driver hands out its connection, but no header of it: its library is asked by name, the one that the driver uses.
std::optional<int> PostgresDialect::socketOf(const QSqlDatabase& connection) const {
    const QVariant handle = connection.driver()->handle();
    if (!handle.isValid()) return std::nullopt; // else a pointer, whose type has one name or another
    static const auto ask =
        reinterpret_cast<int (*)(const void*)>(QLibrary::resolve(QStringLiteral("pq"), 5, "PQsocket"));
    if (!ask) return std::nullopt;
    const int socket = ask(*static_cast<void* const*>(handle.constData()));
    return socket < 0 ? std::nullopt : std::optional(socket);
}

QStringList PostgresDialect::beginReading() const {
    return {QStringLiteral("begin isolation level repeatable read read only"),
            QStringLiteral("set local statement_timeout to 0")};
}

QString PostgresDialect::serverSeconds() const {
    return QStringLiteral("select cast(extract(epoch from clock_timestamp()) as bigint)");
}

QString PostgresDialect::explain(const QSqlError& error) const {
    const QString code = error.nativeErrorCode();
    if (code == QLatin1String("57014")) return QStringLiteral("Il server non ha risposto in tempo. Riprovare fra poco.");
    if (code == QLatin1String("55P03"))
        return QStringLiteral("Un'altra postazione sta registrando gli stessi dati. Riprovare fra poco.");
    if (code == QLatin1String("53100")) return QStringLiteral("Il disco del server è pieno.");
    return QStringLiteral("Errore del server: %1").arg(firstLine(error));
}

bool PostgresDialect::endsConnection(const QSqlError& error) const {
    const QString code = error.nativeErrorCode();
    return code.startsWith(QLatin1String("08")) || code.startsWith(QLatin1String("57P0"));
}

QString PostgresDialect::claim() const {
    return QStringLiteral("select pg_advisory_xact_lock(hashtextextended(cast(? as text), %1))").arg(openingLock);
}

QString PostgresDialect::transactionName() const {
    return QStringLiteral("select cast(pg_current_xact_id_if_assigned() as text)");
}

QString PostgresDialect::transactionFate() const {
    return QStringLiteral("select pg_xact_status(cast(cast(? as text) as xid8))");
}

QString PostgresDialect::lossText() const {
    return QStringLiteral("Il collegamento con il server dell'archivio si è interrotto.");
}

} // namespace desk
