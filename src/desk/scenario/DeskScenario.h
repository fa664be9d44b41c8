#pragma once

#include <QString>
#include <functional>
#include <memory>

namespace desk {

class Desk;

/// Opens a desk and plays the script `file` on it, with pictures and other results in the folder `outDir` (made when
/// missing; the current folder when empty). The script also works the windows that come up while the desk opens, such
/// as the sign-in. All windows are closed afterwards. The exit code: 0 only when every line succeeded; a failure is
/// told in one line on the standard error. What `open` throws passes through.
int runScenario(const std::function<std::unique_ptr<Desk>()>& open, const QString& file, const QString& outDir);

} // namespace desk
