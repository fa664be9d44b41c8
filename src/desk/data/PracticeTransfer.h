#pragma once

#include <QList>
#include <QString>

namespace desk {

class Database;

/// A practice that moves to another database system, from its file to a server or back.
namespace practice_transfer {

/// How many rows of a table arrived.
struct Moved {
    QString table;
    int rows = 0;
};

/// Copies every row of every table and counts them again in the end. All or nothing: throws DatabaseError with words
/// for the user and leaves the target as it was. The source is only read, and arrives as it stood at one moment, whoever
/// works in it meanwhile. Refuses a source without users and a target that holds anything.
QList<Moved> run(Database& source, Database& target);

} // namespace practice_transfer

} // namespace desk
