#include "documents/DocumentKind.h"

#include "host/modIcone.h"
#include "platform/ReportRecord.h"

namespace documentcolumns {

DocumentColumn number() {
    return {{QStringLiteral("Progressivo"), 80}, DocumentField::Row};
}

DocumentColumn date() {
    return {{QStringLiteral("Data"), 80}, DocumentField::Row};
}

DocumentColumn taxCode() {
    platform::ReportColumn column{QStringLiteral("Cod.Fiscale"), 120};
    column.sample = QStringLiteral("MMMDDD80A41H501W"); // in bold on the rows of the open patient
    return {column, DocumentField::TaxCode};
}

DocumentColumn patient() {
    return {{QStringLiteral("Cliente"), 300}, DocumentField::Patient};
}

DocumentColumn description() {
    // Of the memo: an empty one is made of the descriptions of the rows.
    return {{QStringLiteral("Descrizione"), 240, true}};
}

} // namespace documentcolumns

void showCells(platform::ReportRecord& record, const DocumentCells& cells) {
    for (int i = 0; i < cells.texts.size(); ++i)
        record.cell(i).value = cells.texts[i];
    if (cells.icon == 0) return;
    platform::ReportCellStyle& look = record.cell(record.cellCount() - 1).changeStyle();
    look.icon = stateIcon(cells.icon);
    look.iconIndex = cells.icon;
}
