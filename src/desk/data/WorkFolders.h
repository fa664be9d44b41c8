#pragma once

#include <QString>

/// Folders of the run on this machine, created when first asked for; paths without a final separator.
namespace desk::workFolders {

/// Readable by this user alone, since patients' files pass through it; removed when the program ends.
QString temporary();
void tidy(); ///< Removes the temporary folders of this user's programs that died.
QString log();

} // namespace desk::workFolders
