#include "treatments/TreatmentColumns.h"

#include "host/modIcone.h"
#include "platform/ReportGrid.h"
#include "treatments/TreatmentState.h"
#include "treatments/clsItemTrattamento.h"

namespace treatmentcolumns {

namespace {

platform::ReportColumn column(const QString& caption, int width, bool resizable = false) {
    platform::ReportColumn description;
    description.caption = caption;
    description.width = width;
    description.resizable = resizable;
    return description;
}

void add(platform::ReportGrid& grid, const platform::ReportColumn& taxCode) {
    grid.addColumn(column(QStringLiteral("Progressivo"), 80));
    grid.addColumn(column(QStringLiteral("Data"), 80));
    grid.addColumn(taxCode);
    grid.addColumn(column(QStringLiteral("Cliente"), 300));
    grid.addColumn(column(QStringLiteral("Descrizione"), 240, true));
    platform::ReportColumn state = column(QStringLiteral("Status"), 240, true);
    state.sample = QStringLiteral("1 lavori finiti. Ci sono 2 lavori aperti. Restano da iniziare 2 lavori");
    grid.addColumn(state);
}

} // namespace

void addForPanel(platform::ReportGrid& grid) {
    platform::ReportColumn taxCode = column(QStringLiteral("cdfCliente"), 0);
    taxCode.visible = false;
    add(grid, taxCode);
}

void addForList(platform::ReportGrid& grid) {
    platform::ReportColumn taxCode = column(QStringLiteral("Cod.Fiscale"), 120);
    taxCode.sample = QStringLiteral("MMMDDD80A41H501W"); // in bold on the rows of the open patient
    add(grid, taxCode);
}

void fillRecord(const clsItemTrattamento& item, platform::ReportRecord& record) {
    record.cell(PROGRESSIVE).value = item.number().text();
    record.cell(DATE).value = item.Data;
    record.cell(TAX_CODE).value = item.cliente;
    record.cell(PATIENT).value = item.descrizionecliente;
    record.cell(DESCRIPTION).value = item.descrizione;
    const TreatmentState state = treatmentState(item);
    record.cell(STATUS).value = state.text;
    if (state.icon == 0) return;
    record.cell(STATUS).changeStyle().icon = stateIcon(state.icon);
    record.cell(STATUS).changeStyle().iconIndex = state.icon;
}

} // namespace treatmentcolumns
