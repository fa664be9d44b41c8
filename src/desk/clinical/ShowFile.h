#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace desk {

/// Hands a file to the system's program for its kind; false when there is none. Replaceable, so that tests see what was
/// handed over; null restores the system's own. Returns the one before.
using SystemOpener = std::function<bool(const QString& path)>;
SystemOpener installSystemOpener(SystemOpener opener);

/// Shows a file on disk: pictures and texts in a window of our own, the rest with the system's program. Says so when
/// nothing can show it. The window belongs to `parent`.
void showFile(const QString& path, QWidget* parent);

} // namespace desk
