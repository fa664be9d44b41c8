#include "desk/icons/DeskIcon.h"

#include <QString>

/// Outside every namespace, as Qt wants it for pictures in a static library.
static void embedPictures() {
    Q_INIT_RESOURCE(desk_icons);
}

namespace desk {

QIcon deskIcon(const char* name) {
    embedPictures();
    return QIcon(QStringLiteral(":/desk/icons/%1.svg").arg(QLatin1String(name)));
}

} // namespace desk
