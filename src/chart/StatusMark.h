#pragma once

#include "chart/ChartComposition.h"

#include <QPixmap>

/// The module's own marks for the state of a row, told apart by shape as well as by colour: a ring to begin, a half
/// disc for work going on, a tick when finished.
QPixmap statusMark(ToothState state, const QSize& size, qreal ratio);
QString statusText(ToothState state); ///< What the mark says, for readers and legends; empty without a state.
