#pragma once

#include <QString>

class QWidget;

namespace desk {

/// Every named control of a window with its text, in the order of the names, and each cell of its grids: what a script
/// can speak of. One control or cell a line; in brackets where it is not plain: hidden, grey, focus, tick, colours,
/// bold, icon, tooltip.
QString describeWindow(const QWidget& window);

} // namespace desk
