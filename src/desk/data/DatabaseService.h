#pragma once

#include "host/contract/Database.h"

#include <QString>

namespace desk {

class Database;

/// The database as the module sees it: text SQL, with table names under the schema. Borrows the database.
class DatabaseService : public host::DB {
public:
    DatabaseService(Database& database, QString sign)
        : database_(database)
        , sign_(std::move(sign)) {}

    std::unique_ptr<host::Recordset> OpenRecordset(const QString& sql) override;
    void Execute(const QString& sql) override;
    QString Sign() const override { return sign_; }

private:
    Database& database_;
    QString sign_;
};

} // namespace desk
