#include "desk/data/PostgresDialect.h"

#include "desk/data/DatabaseError.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace desk {

namespace {

constexpr int openingLock = 5000906; // any number that no other program on the server uses

// The lines after the first repeat the row, and with it a patient's data.
QString firstLine(const QSqlError& error) {
    return error.databaseText().section(QLatin1Char('\n'), 0, 0);
}

void execute(QSqlDatabase& connection, const QString& sql) {
    QSqlQuery query(connection);
    if (!query.exec(sql)) throw DatabaseError(PostgresDialect().explain(query.lastError()));
}

} // namespace

void PostgresDialect::open(QSqlDatabase& connection, const DatabaseUrl& url, const QString& schema) const {
    if (!QSqlDatabase::isDriverAvailable(driver()))
        throw DatabaseError(QStringLiteral("Su questo computer manca il componente per i server PostgreSQL."));
    connection.setHostName(url.server);
    connection.setPort(url.port);
    connection.setDatabaseName(url.database);
    connection.setUserName(url.user);
    connection.setPassword(url.password);
    connection.setConnectOptions(QStringLiteral("connect_timeout=5"));
    if (!connection.open()) {
        throw DatabaseError(
            QStringLiteral("Il server non risponde o rifiuta l'accesso: %1").arg(firstLine(connection.lastError())));
    }
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

QString PostgresDialect::matches(const QString& column) const {
    return QStringLiteral("%1 ilike ? escape '\\'").arg(column);
}

// No cheap sign of other workstations' writes: whoever asks must assume them.
std::optional<qint64> PostgresDialect::foreignWrites(QSqlDatabase& connection, const QString& schema) const {
    Q_UNUSED(connection);
    Q_UNUSED(schema);
    return std::nullopt;
}

QString PostgresDialect::explain(const QSqlError& error) const {
    return QStringLiteral("Errore del server: %1").arg(firstLine(error));
}

} // namespace desk
