#include "desk/shell/DeskApplication.h"

#include "platform/Guarded.h"

#include <QFile>

namespace desk {

namespace {

// Without it the C library looks at the file of the time zone at every date and time that is read from the database.
void nameTimeZone() {
    const QString usual = QStringLiteral("/etc/localtime");
    if (!qEnvironmentVariableIsSet("TZ") && QFile::exists(usual)) qputenv("TZ", QFile::encodeName(u':' + usual));
}

} // namespace

DeskApplication::DeskApplication(int& argc, char** argv)
    : QApplication(argc, argv) {
    nameTimeZone();
    setApplicationName(QStringLiteral("tessara"));
    setApplicationVersion(QStringLiteral(TESSARA_VERSION));
}

bool DeskApplication::notify(QObject* receiver, QEvent* event) {
    bool handled = false;
    const QString why = platform::guarded([&] { handled = QApplication::notify(receiver, event); });
    if (!why.isEmpty()) qCritical("Errore non gestito: %s", qUtf8Printable(why));
    return handled;
}

} // namespace desk
