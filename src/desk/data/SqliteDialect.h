#pragma once

#include "desk/data/Dialect.h"

namespace desk {

/// One file, attached under the schema's name to a connection of its own in memory. Write-ahead log, every commit on
/// disk before it is reported. A file that is refused is left as it was found.
class SqliteDialect : public Dialect {
public:
    QString driver() const override { return QStringLiteral("QSQLITE"); }
    void open(QSqlDatabase& connection, const DatabaseUrl& url, const QString& schema) const override;
    void setAlone(bool alone) override { alone_ = alone; }
    void settle(QSqlDatabase& connection, const QString& schema) const override;
    QString expand(const QString& sql, const QString& schema) const override;
    QString beginWriting() const override { return QStringLiteral("begin immediate"); }
    QStringList beginReading() const override { return {QStringLiteral("begin")}; }
    QString tables(const QString& schema) const override;
    QString contains(const QString& column) const override;
    QString longText(const QString& column) const override;
    QString foreignWrites() const override;
    QString explain(const QSqlError& error) const override;
    bool endsConnection(const QSqlError&) const override { return false; }
    bool tellsDamage(const QSqlError& error) const override;
    bool endsTransaction(const QSqlError& error) const override;
    QString lossText() const override { return QStringLiteral("L'archivio non è aperto."); }

private:
    bool alone_ = false;
};

} // namespace desk
