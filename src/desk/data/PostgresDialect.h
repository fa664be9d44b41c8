#pragma once

#include "desk/data/Dialect.h"

namespace desk {

/// A server that several workstations share; the practice lies in a schema of its own in one of its databases. It gives
/// no cheap sign of what the others write: whoever asks must assume that they did.
class PostgresDialect : public Dialect {
public:
    QString driver() const override { return QStringLiteral("QPSQL"); }
    void open(QSqlDatabase& connection, const DatabaseUrl& url, const QString& schema) const override;
    void enter(QSqlDatabase& connection, const QString& schema) const override;
    void settle(QSqlDatabase& connection, const QString& schema) const override;
    QString expand(const QString& sql, const QString& schema) const override;
    QString beginWriting() const override { return QStringLiteral("begin"); }
    QString claim() const override;
    std::optional<int> socketOf(const QSqlDatabase& connection) const override;
    QStringList beginReading() const override;
    QString tables(const QString& schema) const override;
    QString contains(const QString& column) const override;
    QString longText(const QString& column) const override;
    QString explain(const QSqlError& error) const override;
    bool endsTransaction(const QSqlError&) const override { return false; } // it refuses what follows by itself
    QString serverSeconds() const override;
    bool endsConnection(const QSqlError& error) const override;
    QString transactionName() const override;
    QString transactionFate() const override;
    QString lossText() const override;
};

} // namespace desk
