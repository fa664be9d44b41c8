#include "desk/scenario/GridGestures.h"

#include "desk/scenario/Gestures.h"
#include "desk/scenario/ScenarioFault.h"
#include "platform/ReportGrid.h"

#include <QRect>
#include <QTreeView>

namespace desk::gestures {
namespace {

QModelIndex displayedRow(const platform::ReportGrid& grid, int row) {
    if (row >= grid.rowCount()) {
        failUnlessItPasses(QStringLiteral("la griglia «%1» non ha la riga %2: righe %3")
                               .arg(grid.objectName())
                               .arg(row)
                               .arg(grid.rowCount()));
    }
    const QTreeView* view = grid.view();
    QModelIndex index = view->model()->index(0, 0, view->rootIndex());
    for (int above = 0; above < row; ++above)
        index = view->indexBelow(index);
    return index;
}

/// A column where a click only selects: shown, and neither check box nor button in this row.
int harmlessColumn(const platform::ReportGrid& grid, int row) {
    const platform::ReportRecord* record = grid.rowRecord(row);
    for (int column = 0; column < grid.columnCount(); ++column) {
        if (!grid.column(column).visible) continue;
        const bool reacts = record && (record->cell(column).style().hasCheckBox || record->cell(column).style().button);
        if (!reacts) return column;
    }
    return 0;
}

QPoint cellCentre(const platform::ReportGrid& grid, int row, int column) {
    const QModelIndex index = displayedRow(grid, row);
    if (column >= grid.columnCount() || !grid.column(column).visible)
        failNow(QStringLiteral("la griglia «%1» non mostra la colonna %2").arg(grid.objectName()).arg(column));
    grid.view()->scrollTo(index.siblingAtColumn(column));
    const QRect place = grid.view()->visualRect(index.siblingAtColumn(column));
    return place.isEmpty() ? grid.view()->visualRect(index).center() : place.center();
}

} // namespace

void clickRow(platform::ReportGrid& grid, int row) {
    const QPoint place = cellCentre(grid, row, harmlessColumn(grid, row));
    click(grid.view()->viewport(), place);
}

void clickFocusedRow(platform::ReportGrid& grid, Qt::MouseButton button) {
    const int row = grid.focusedRecord() ? grid.rowOf(grid.focusedRecord()) : -1;
    QWidget* viewport = grid.view()->viewport();
    if (row < 0)
        click(viewport, viewport->rect().bottomRight() - QPoint(2, 2), button);
    else
        click(viewport, cellCentre(grid, row, harmlessColumn(grid, row)), button);
}

void clickCell(platform::ReportGrid& grid, int row, int column, Qt::MouseButton button) {
    const QPoint place = cellCentre(grid, row, column);
    click(grid.view()->viewport(), place, button);
}

void doubleClickCell(platform::ReportGrid& grid, int row, int column) {
    const QPoint place = cellCentre(grid, row, column);
    doubleClick(grid.view()->viewport(), place);
}

} // namespace desk::gestures
