#include "desk/data/PostgresDialect.h"

#include "desk/data/DatabaseError.h"

#include <QSqlDatabase>
#include <QSqlError>

namespace desk {

void PostgresDialect::open(QSqlDatabase& connection, const DatabaseUrl& url, const QString& schema) const {
    Q_UNUSED(connection);
    Q_UNUSED(url);
    Q_UNUSED(schema);
    throw DatabaseError(QStringLiteral("L'uso di un server PostgreSQL non è ancora disponibile in questa versione."));
}

void PostgresDialect::settle(QSqlDatabase& connection, const QString& schema) const {
    Q_UNUSED(connection);
    Q_UNUSED(schema);
}

QString PostgresDialect::expand(const QString& sql, const QString& schema) const {
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
    return QStringLiteral("Errore del server: %1.").arg(error.databaseText());
}

} // namespace desk
