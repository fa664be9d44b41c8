#pragma once

class QApplication;

namespace platform {

/// The look that the desk and the module share: Fusion with a light palette, one font, visible focus frames.
void applyTheme(QApplication& application);

} // namespace platform
