#pragma once

#include <QIcon>

/// Status marks of the lists, by their index: 2 work going on (amber), 3 finished and 4 paid (green), 5 still to begin
/// (red). An empty icon for any other index.
QIcon stateIcon(int index);

/// Default marks of the teeth where the chart's own pictures lack one: 0 yellow, 1 red, 2 green, 3 grey. Empty for any
/// other.
QIcon ImStatus(int index);

/// The module's mark, worn by every child window.
QIcon moduleIcon();
