#pragma once

#include "desk/data/PracticeFiles.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>

namespace desk {

class Database;

/// What a copy of the practice holds, as far as its owner recognises it by.
struct CopyFacts {
    int patients = 0;
    int records = 0;
    QDate lastChange; ///< Of any record or patient; invalid when there is none.
};

struct FoundCopy {
    QString path;
    QDateTime made;
    CopyFacts facts;
};

/// Safety copies of a practice that lies in a file. A copy is one file, whole in itself, and opens like the original.
/// Everything here throws DatabaseError with words for the user, and then leaves the live file, and a copy that was
/// there before, as they were.
namespace sqlite_copy {

/// Writes a copy while the practice is at work, and returns only when it has been read back and found good. It takes
/// the files along.
CopyFacts make(Database& database, const QString& path, const QList<PracticeFile>& files = {});
/// Reads a copy through: a whole database, of this program, of a version that it knows. Leaves the file alone.
CopyFacts examine(const QString& path);
QList<PracticeFile> filesIn(const QString& path); ///< That the copy took along.
/// The newest good copies among the files of some folders, at most so many, newest first; never `live` itself.
QList<FoundCopy> latest(const QStringList& folders, const QString& live, int most);

/// Puts the content of a copy in the place of the practice's, all at once: whoever opens the practice meanwhile waits,
/// and finds one or the other. The former practice stays beside it in a file with the date in its name, which is
/// returned. Refuses while another workstation has the practice open.
QString restore(Database& database, const QString& path);
/// The same for a practice whose file is damaged, which therefore nobody has open. Its log is kept with it.
QString replaceDamaged(const QString& live, const QString& path);

// What its parts share.

inline constexpr char FILES_TABLE[] = "tblCopia"; ///< Of a copy only: the files that it took along.
QString livePath(const Database& database);
void refuseLiveFile(const QString& path, const QString& live);

} // namespace sqlite_copy

} // namespace desk
