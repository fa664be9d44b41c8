#pragma once

#include "platform/Guarded.h"

namespace desk {

using platform::guarded;

} // namespace desk
