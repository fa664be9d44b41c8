#include "desk/data/WorkFolders.h"

#include "platform/FileHold.h"
#include "platform/Files.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <memory>
#include <unistd.h>

namespace desk::workFolders {

namespace {

/// Held from its making on, but for the moment in which another program may take it for a leftover.
struct HeldFolder {
    QTemporaryDir folder{QDir::tempPath() + QStringLiteral("/tessara-XXXXXX")};
    platform::FileHold hold{folder.path()};

    bool sound() const { return hold.held() && QFileInfo::exists(folder.path()); }
};

std::unique_ptr<HeldFolder> makeFolder() {
    auto made = std::make_unique<HeldFolder>();
    for (int tries = 0; tries < 3 && !made->sound(); ++tries)
        made = std::make_unique<HeldFolder>();
    return made;
}

} // namespace

QString temporary() {
    static const std::unique_ptr<HeldFolder> kept = makeFolder();
    return kept->folder.path();
}

void tidy() {
    static const QRegularExpression ours(QRegularExpression::anchoredPattern(QStringLiteral("tessara-[A-Za-z]{6}")));
    const QDir all(QDir::tempPath());
    for (const QFileInfo& entry : all.entryInfoList(QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot)) {
        if (!ours.match(entry.fileName()).hasMatch() || entry.ownerId() != ::getuid()) continue;
        const platform::FileHold hold(entry.filePath());
        if (hold.held()) QDir(entry.filePath()).removeRecursively();
    }
}

QString log() {
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/tessara/log");
    QDir().mkpath(folder);
    platform::files::restrictToOwner(folder);
    return folder;
}

} // namespace desk::workFolders
