#pragma once

class QObject;

namespace desk {

/// Shows a window that a module handed over, waits until it is closed, and deletes it. False when there is no window.
bool showModally(QObject* form);

} // namespace desk
