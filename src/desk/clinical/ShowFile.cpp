#include "desk/clinical/ShowFile.h"

#include "desk/clinical/FileViewer.h"
#include "platform/Dialogs.h"
#include "platform/FileHold.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace desk {

namespace {

SystemOpener& opener() {
    static SystemOpener installed;
    return installed;
}

bool openWithSystem(const QString& path) {
    const platform::ForOtherPrograms asTheyDo;
    return opener() ? opener()(path) : QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace

SystemOpener installSystemOpener(SystemOpener replacement) {
    return std::exchange(opener(), std::move(replacement));
}

void showFile(const QString& path, QWidget* parent) {
    if (FileViewer::canShow(path)) {
        // Over an editor that waits for its answer the viewer has to be reachable, too.
        QWidget* modal = QApplication::activeModalWidget();
        auto* viewer = new FileViewer(path, modal ? modal : parent);
        viewer->setAttribute(Qt::WA_DeleteOnClose);
        viewer->show();
        return;
    }
    if (openWithSystem(path)) return;
    platform::dialogs().message(
        QStringLiteral("Nessun programma del sistema apre questo file:\n%1").arg(QDir::toNativeSeparators(path)),
        platform::MB_WARNING, QStringLiteral("Tessara 5000"));
}

} // namespace desk
