#include "desk/data/Identity.h"

#include <QUuid>

namespace desk {

QString newIdentity() {
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

} // namespace desk
