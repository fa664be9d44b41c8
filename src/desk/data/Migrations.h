#pragma once

#include <QString>

namespace desk {

class Database;

/// Brings a database up to the present version, one numbered SQL file after the other, each in a transaction of its
/// own. Version numbers stand in `tblVersione`. Throws DatabaseError for a database of a newer version, and for one
/// that holds tables of another program.
class Migrations {
public:
    explicit Migrations(Database& database)
        : database_(database) {}
    void bringUpToDate();
    static int latest(); ///< The version that this program knows.

private:
    int version();
    void apply(const QString& file, int number);

    Database& database_;
};

} // namespace desk
