#include "desk/data/WorkFolders.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace desk::workFolders {

QString temporary() {
    static const QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/tessara-XXXXXX"));
    return folder.path();
}

QString log() {
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/tessara/log");
    QDir().mkpath(folder);
    return folder;
}

} // namespace desk::workFolders
