#include "platform/Files.h"

#include "platform/FileHold.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <cerrno>
#include <sys/file.h>
#include <unistd.h>

namespace platform::files {

namespace {

constexpr qint64 COPY_STEP = 1 << 20;
constexpr QFile::Permissions OWNERS = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
constexpr QFile::Permissions OTHERS =
    QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
constexpr QFile::Permissions EXECUTION = QFile::ExeGroup | QFile::ExeOther;

/// The entry of the folder with that name in any case; the name itself when there is none.
QString nameOnDisk(const QString& folder, const QString& name) {
    if (QFileInfo::exists(folder + name)) return name;
    const QDir directory(folder.isEmpty() ? QStringLiteral(".") : folder);
    const QStringList names =
        directory.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& candidate : names) {
        if (candidate.compare(name, Qt::CaseInsensitive) == 0) return candidate;
    }
    return name;
}

/// A network folder may tell only now that it is full.
bool onDisk(const QFileDevice& file) {
    return ::fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EROFS;
}

/// What the owner may do stays.
bool setRights(const QString& resolved, QFile::Permissions ofOthers) {
    const QFile::Permissions now = QFile::permissions(resolved) & (OWNERS | OTHERS);
    const QFile::Permissions wanted = (now & OWNERS) | ofOthers;
    return QFileInfo::exists(resolved) && (wanted == now || QFile::setPermissions(resolved, wanted));
}

} // namespace

QString resolve(const QString& path) {
    QString slashed = path;
    slashed.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (slashed.isEmpty() || QFileInfo::exists(slashed)) return slashed;

    QString resolved = slashed.startsWith(QLatin1Char('/')) ? QStringLiteral("/") : QString();
    const QStringList components = slashed.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString& component : components) {
        resolved += nameOnDisk(resolved, component) + QLatin1Char('/');
    }
    if (!slashed.endsWith(QLatin1Char('/'))) resolved.chop(1);
    return resolved;
}

bool exists(const QString& path) {
    return !path.isEmpty() && QFileInfo(resolve(path)).isFile();
}

bool isFolder(const QString& path) {
    return !path.isEmpty() && QFileInfo(resolve(path)).isDir();
}

bool createFolder(const QString& path) {
    if (path.isEmpty()) return false;
    const QString resolved = resolve(path);
    return QDir().mkdir(resolved) || QFileInfo(resolved).isDir();
}

bool remove(const QString& path) {
    const QString resolved = resolve(path);
    return !resolved.isEmpty() && !QFileInfo(resolved).isDir() && QFile::remove(resolved);
}

bool move(const QString& from, const QString& to) {
    if (!exists(from) || to.isEmpty()) return false;
    return QFile::rename(resolve(from), resolve(to));
}

bool copy(const QString& from, const QString& to) {
    QFile source(resolve(from));
    if (!exists(from) || !source.open(QIODevice::ReadOnly)) return false;
    return replace(to, [&source](QIODevice& target) {
        while (!source.atEnd()) {
            const QByteArray part = source.read(COPY_STEP);
            if (part.isEmpty() || target.write(part) != part.size()) return false;
        }
        return source.error() == QFileDevice::NoError;
    });
}

QStringList list(const QString& folder, const QString& pattern) {
    if (!isFolder(folder)) return {};
    return QDir(resolve(folder)).entryList({pattern}, QDir::Files | QDir::Hidden, QDir::Name | QDir::IgnoreCase);
}

std::optional<QByteArray> read(const QString& path) {
    QFile file(resolve(path));
    if (!exists(path) || !file.open(QIODevice::ReadOnly)) return std::nullopt;
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) return std::nullopt;
    return content;
}

bool replace(const QString& path, const std::function<bool(QIODevice&)>& fill) {
    if (path.isEmpty()) return false;
    QSaveFile file(resolve(path));
    if (!file.open(QIODevice::WriteOnly)) return false;
    ::flock(file.handle(), LOCK_EX | LOCK_NB); // alive, for who looks for leftovers; see removeLeftovers
    // Committing does not tell that what was still in its buffer found no room on the disk.
    return fill(file) && file.flush() && file.error() == QFileDevice::NoError && onDisk(file) && file.commit();
}

bool writeAtomically(const QString& path, const QByteArray& content) {
    return replace(path, [&content](QIODevice& file) { return file.write(content) == content.size(); });
}

void removeLeftovers(const QString& folder, const QString& pattern) {
    // As QSaveFile names what it writes to.
    const QRegularExpression draft(QRegularExpression::anchoredPattern(QStringLiteral(".+\\.[A-Za-z]{6}")));
    for (const QString& name : list(folder, pattern + QStringLiteral(".*"))) {
        const QString path = resolve(folder + QLatin1Char('/') + name);
        if (draft.match(name).hasMatch() && FileHold(path).held()) QFile::remove(path);
    }
}

bool restrictToOwner(const QString& path) {
    return setRights(resolve(path), {});
}

bool shareAsFolder(const QString& path) {
    const QString resolved = resolve(path);
    return setRights(resolved, QFile::permissions(QFileInfo(resolved).path()) & OTHERS & ~EXECUTION);
}

} // namespace platform::files
