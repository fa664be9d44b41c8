#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class QIODevice;

/// Files and folders by paths that may be written with backslashes and in another case than the file has on disk, as
/// the module's paths always were. Where a name exists in the exact case it wins. Nothing here throws.
namespace platform::files {

/// The path with forward slashes and each existing component in its case on disk; missing components stay as written.
QString resolve(const QString& path);
bool exists(const QString& path); ///< A file, not a folder.
bool isFolder(const QString& path);
bool createFolder(const QString& path); ///< One level; true when the folder is there afterwards.
bool remove(const QString& path);
bool move(const QString& from, const QString& to); ///< Never replaces.
bool copy(const QString& from, const QString& to); ///< Replaces, atomically.
/// Names (without folder) of the files that match a wildcard such as "*.lck", sorted, case ignored.
QStringList list(const QString& folder, const QString& pattern);
std::optional<QByteArray> read(const QString& path);
/// Replaces the file in one step, by what `fill` writes: readers see the old content or the new. False when `fill`
/// gives false or the disk did not take all of it; the old file stays then, as it does when `fill` throws. Whatever the
/// program writes for good goes through here. A file that is replaced keeps its rights.
bool replace(const QString& path, const std::function<bool(QIODevice&)>& fill);
bool writeAtomically(const QString& path, const QByteArray& content); ///< The same, by a content at hand.
/// Removes what programs that were killed while they replaced a file of that pattern left beside it.
void removeLeftovers(const QString& folder, const QString& pattern);

// Rights. New files are their owner's alone, since the program starts so; these are for what lies there already.

/// Takes a file or a folder from everybody but its owner. False when it is not there or not ours to change.
bool restrictToOwner(const QString& path);
/// Gives a file the rights of the folder it lies in: those who share the folder share the file.
bool shareAsFolder(const QString& path);

} // namespace platform::files
