#pragma once

#include <QString>

namespace desk {

/// A name under which a stored file can be put into any folder of any system and stays in it: no folders, no control
/// characters, no reserved name, not longer than file systems take. The extension is kept; "file" when nothing is left.
QString safeFileName(const QString& stored);

/// "1,5 MB": how long a file is, for the user's eyes.
QString fileSizeText(qint64 bytes);

} // namespace desk
