#pragma once

#include <QDate>
#include <QString>

namespace desk {

class Database;

/// What a copy of the practice holds, as far as its owner recognises it by.
struct CopyFacts {
    int patients = 0;
    int records = 0;
    QDate lastChange; ///< Of any record or patient; invalid when there is none.
};

/// Safety copies of a practice that lies in a file. A copy is one file, whole in itself, and opens like the original.
/// Everything here throws DatabaseError with words for the user, and then leaves the live file, and a copy that was
/// there before, as they were.
namespace sqlite_copy {

/// Writes a copy while the practice is at work, and returns only when it has been read back and found good.
CopyFacts make(Database& database, const QString& path);
/// Reads a copy through: a whole database, of this program, of a version that it knows. Leaves the file alone.
CopyFacts examine(const QString& path);
/// Puts a copy in the place of the practice and opens it. The former file stays beside it under a name with the date,
/// which is returned. Refuses while another workstation has the practice open.
QString restore(Database& database, const QString& path);

} // namespace sqlite_copy

} // namespace desk
