#include "documents/DocumentView.h"

#include "platform/ReportGrid.h"

#include <utility>

DocumentView::DocumentView(DocumentKind kind)
    : kind_(std::move(kind)) {}

QObject* DocumentView::EditForm(const QString& id) {
    return kind_.editor ? kind_.editor(id) : nullptr;
}

void DocumentView::buildColumns(platform::ReportGrid& grid) {
    for (const DocumentColumn& column : std::as_const(kind_.columns)) {
        platform::ReportColumn look = column.look;
        if (column.field == DocumentField::TaxCode) {
            look = {QStringLiteral("cdfCliente"), 0};
            look.visible = false;
        }
        grid.addColumn(look);
    }
    grid.setSort(kind_.sortColumn, Qt::DescendingOrder);
}

void DocumentView::fill(platform::ReportGrid& grid) {
    kind_.list([&grid](const QString& id, const DocumentCells& cells) {
        platform::ReportRecord* record = grid.addRecord();
        record->tag = id;
        showCells(*record, cells);
    });
}

void DocumentView::adaptColumns(platform::ReportGrid& grid) {
    for (int i = 0; i < kind_.columns.size(); ++i)
        if (kind_.columns[i].field == DocumentField::Patient) grid.setColumnVisible(i, !LikePannello());
}

void DocumentView::addEntries(host::PopupBar& bar, platform::ReportGrid& grid) {
    const bool mayAdd = !kind_.mayAdd || kind_.mayAdd(grid.recordCount() > 0);
    for (int i = 0; i < kind_.commands.size(); ++i) {
        const bool offered = i == 0 ? mayAdd : grid.focusedRecord() != nullptr;
        if (offered) bar.AddItem(COMMAND_NEW + i, kind_.commands[i]);
    }
}

void DocumentView::run(int command, platform::ReportGrid& grid) {
    if (command == COMMAND_NEW && kind_.open) return kind_.open(QString());
    platform::ReportRecord* chosen = grid.focusedRecord();
    if (!chosen) return;
    const QString id = chosen->tag;
    if (command == COMMAND_EDIT && kind_.open) kind_.open(id);
    if (command == COMMAND_REMOVE) removeRow(grid, chosen);
    if (command == COMMAND_PRINT && kind_.print) kind_.print(*currentPatient(), id);
}

void DocumentView::removeRow(platform::ReportGrid& grid, platform::ReportRecord* record) {
    const QString id = record->tag;
    if (!kind_.remove || !kind_.remove(*currentPatient(), id)) return;
    if (grid.focusedRecord() == record) grid.removeRecord(record);
}
