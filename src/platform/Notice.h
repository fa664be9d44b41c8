#pragma once

#include <QColor>

namespace platform {

/// How much a cell or a field asks to be looked at: a mere note in its tooltip, a doubt, or a text that will not be
/// stored as it stands.
enum class Notice { None, Note, Warning, Error };

/// Of text and frame: amber for a doubt, red for an error; invalid for the others.
inline QColor noticeColour(Notice notice) {
    if (notice == Notice::Error) return {192, 0, 0};
    return notice == Notice::Warning ? QColor(176, 96, 0) : QColor();
}

} // namespace platform
