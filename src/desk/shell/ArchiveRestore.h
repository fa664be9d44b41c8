#pragma once

#include "desk/data/SqliteCopy.h"

#include <QString>
#include <QStringList>

namespace desk {

struct DatabaseUrl;

/// A safety copy that takes the place of an archive which nobody here has open; the archive may be damaged.
struct RestoredArchive {
    QString former;    ///< File in which the former archive is kept.
    QStringList files; ///< Names of settings and catalogues that came with it and were others before.
};
/// Throws DatabaseError, and then the archive is as it was.
RestoredArchive restoreArchive(const DatabaseUrl& url, const QString& copy);

QString describe(const CopyFacts& facts);
/// What was restored and where the former things are, for a message.
QString describe(const RestoredArchive& restored);

} // namespace desk
