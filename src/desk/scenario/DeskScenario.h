#pragma once

#include <QString>

namespace desk {

class Desk;

/// Plays the script `file` on an open desk whose main window is shown, with pictures and other results in the folder
/// `outDir` (made when missing; the current folder when empty). All windows are closed afterwards. The exit code: 0
/// only when every line succeeded; a failure is told in one line on the standard error.
int runScenario(Desk& desk, const QString& file, const QString& outDir);

} // namespace desk
