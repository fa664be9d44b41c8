#include "store/clsViewRighe.h"

#include "platform/ReportGrid.h"
#include "store/clsGestoreRighe.h"

void clsViewRighe::costruisciColonne(platform::ReportGrid& grid) {
    grid.addColumn({QStringLiteral("Progressivo"), 80});
    grid.addColumn({QStringLiteral("Data"), 80});
    grid.addColumn({QStringLiteral("Descrizione"), 240, true});
}

void clsViewRighe::riempi(platform::ReportGrid& grid) {
    for (const WorkspaceItem& item : gestore_.Lista()) {
        platform::ReportRecord* record = grid.addRecord();
        record->tag = item.ID;
        record->cell(0).value = unisciIdrif1(item);
        record->cell(1).value = item.Data;
        record->cell(2).value = item.descrizione;
    }
}
