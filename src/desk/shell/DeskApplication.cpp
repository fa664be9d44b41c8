#include "desk/shell/DeskApplication.h"

#include "desk/data/Guarded.h"

namespace desk {

DeskApplication::DeskApplication(int& argc, char** argv)
    : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("tessara"));
    setApplicationVersion(QStringLiteral(TESSARA_VERSION));
}

bool DeskApplication::notify(QObject* receiver, QEvent* event) {
    bool handled = false;
    const QString why = guarded([&] { handled = QApplication::notify(receiver, event); });
    if (!why.isEmpty()) qCritical("Errore non gestito: %s", qUtf8Printable(why));
    return handled;
}

} // namespace desk
