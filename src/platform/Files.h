#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

/// Files and folders by paths that may be written with backslashes and in another case than the file has on disk, as the
/// module's paths always were. Where a name exists in the exact case it wins. Nothing here throws.
namespace platform::files {

/// The path with forward slashes and each existing component in its case on disk; missing components stay as written.
QString resolve(const QString& path);
bool exists(const QString& path);   ///< A file, not a folder.
bool isFolder(const QString& path);
bool createFolder(const QString& path); ///< One level; true when the folder is there afterwards.
bool remove(const QString& path);
bool move(const QString& from, const QString& to); ///< Never replaces.
bool copy(const QString& from, const QString& to); ///< Replaces, atomically.
/// Names (without folder) of the files that match a wildcard such as "*.lck", sorted, case ignored.
QStringList list(const QString& folder, const QString& pattern);
std::optional<QByteArray> read(const QString& path);
/// Replaces the file in one step: readers see the old content or the new, and a failure leaves the old.
bool writeAtomically(const QString& path, const QByteArray& content);

} // namespace platform::files
