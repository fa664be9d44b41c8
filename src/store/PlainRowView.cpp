#include "store/PlainRowView.h"

#include "platform/ReportGrid.h"
#include "store/PlainRowManager.h"

void PlainRowView::buildColumns(platform::ReportGrid& grid) {
    grid.addColumn({QStringLiteral("Progressivo"), 80});
    grid.addColumn({QStringLiteral("Data"), 80});
    grid.addColumn({QStringLiteral("Descrizione"), 240, true});
    grid.setSort(0, Qt::DescendingOrder);
}

void PlainRowView::fill(platform::ReportGrid& grid) {
    for (const WorkspaceItem& item : manager_.Lista()) {
        platform::ReportRecord* record = grid.addRecord();
        record->tag = item.ID;
        record->cell(0).value = item.number().text();
        record->cell(1).value = item.Data;
        record->cell(2).value = item.descrizione;
    }
}
