#pragma once

#include <Qt>

namespace platform {
class ReportGrid;
}

/// Mouse on the cells of a report grid. Rows count as displayed; a row or column that is not there, or not shown, is a
/// ScenarioFault.
namespace desk::gestures {

void clickRow(platform::ReportGrid& grid, int row);
void clickFocusedRow(platform::ReportGrid& grid,
                     Qt::MouseButton button); ///< On the empty area when no row has the focus.
void clickCell(platform::ReportGrid& grid, int row, int column, Qt::MouseButton button);
void doubleClickCell(platform::ReportGrid& grid, int row, int column);

} // namespace desk::gestures
