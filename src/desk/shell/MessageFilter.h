#pragma once

namespace desk {

/// Writes Qt's messages to the standard error, save for those that only say what a screenless platform cannot do.
void installMessageFilter();

} // namespace desk
