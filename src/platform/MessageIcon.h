#pragma once

#include <QPixmap>

namespace platform {

/// The picture beside the text of a message box or task dialog, by the value of the box (16, 32, 48, 64 and sums with
/// buttons). Empty for a value without a picture.
QPixmap messageIcon(int value, int size, qreal ratio);

} // namespace platform
