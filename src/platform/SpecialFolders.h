#pragma once

#include <QString>

namespace platform {

inline constexpr int CSIDL_APPDATA = 26;

/// Path of a system special folder, without a final separator; empty when there is none. Only 26, the application-data
/// folder of the user, is known.
QString specialFolder(int id);

/// Puts another application-data folder in force, as `--config-dir` does; empty restores the user's own.
void setApplicationDataFolder(const QString& folder);

} // namespace platform
