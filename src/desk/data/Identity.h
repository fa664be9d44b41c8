#pragma once

#include <QString>

namespace desk {

QString newIdentity(); ///< A unique text without braces, the key of a new row.

} // namespace desk
