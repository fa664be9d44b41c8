#include "platform/SpecialFolders.h"

#include <QDir>
#include <QStandardPaths>

namespace platform {

namespace {

QString& chosenFolder() {
    static QString folder;
    return folder;
}

QString usersOwnFolder() {
#ifdef Q_OS_WIN
    // The roaming folder, which Qt does not give for programs in general.
    return QDir::fromNativeSeparators(qEnvironmentVariable("APPDATA"));
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
#endif
}

} // namespace

QString specialFolder(int id) {
    if (id != CSIDL_APPDATA) return {};
    const QString folder = chosenFolder().isEmpty() ? usersOwnFolder() : chosenFolder();
    if (folder.isEmpty() || !QDir().mkpath(folder)) return {};
    return folder;
}

void setApplicationDataFolder(const QString& folder) {
    chosenFolder() = folder.isEmpty() ? QString() : QDir::cleanPath(QDir().absoluteFilePath(folder));
}

} // namespace platform
