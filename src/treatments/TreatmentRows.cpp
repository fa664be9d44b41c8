#include "treatments/TreatmentRows.h"

#include "catalogues/clsServizi.h"
#include "catalogues/modSceltaServizio.h"
#include "catalogues/modServizi.h"
#include "chart/modSceltaDenti.h"
#include "documents/ServiceSearch.h"
#include "host/context.h"
#include "treatments/clsItemTrattamento.h"
#include "treatments/frmEditRigoTrattamento.h"
#include "treatments/frmZoomRighiTrattamento.h"

#include <utility>

using namespace gridrow;

TreatmentRows::TreatmentRows(QWidget* parent)
    : RowsOf(columns(), QStringLiteral("Zoom"), parent) {}

// --------------------------------------------------------------------------------------------------------- the rows

void TreatmentRows::load(const clsItemTrattamento& item) {
    std::vector<PlanRow> rows;
    PeopleNames names;
    for (const clsItemRigoTrattamento& stored : item.righi)
        rows.emplace_back(stored, names);
    setRows(std::move(rows));
}

clsItemRigoTrattamento TreatmentRows::stored(int at) const {
    clsItemRigoTrattamento stored = row(at);
    stored.progressivo = rowNumber(at + 1);
    return stored;
}

QList<clsItemRigoTrattamento> TreatmentRows::rows() const {
    QList<clsItemRigoTrattamento> rows;
    for (int at = 0; at < rowCount(); ++at)
        rows << stored(at);
    return rows;
}

QList<ChartRow> TreatmentRows::forChart() const {
    QList<ChartRow> rows;
    rows.reserve(rowCount());
    for (const RowLine<PlanRow>& line : lines())
        rows << line.row.forChart();
    return rows;
}

RowTotals TreatmentRows::totals() const {
    RowTotals totals;
    for (const RowLine<PlanRow>& line : lines())
        totals.add(line.row, line.row.teeth.factor());
    return totals;
}

void TreatmentRows::highlight(const QString& tooth) {
    highlightRows([&tooth](const PlanRow& row) { return !tooth.isEmpty() && row.teeth.contains(tooth); });
}

void TreatmentRows::copyTo(frmZoomRighiTrattamento& zoom) const {
    zoom.setRows(lines());
}

QString TreatmentRows::teethOfService(const QString& service) const {
    QStringList chosen;
    for (const RowLine<PlanRow>& line : lines()) {
        if (line.row.servizio != service) continue;
        for (const QString& tooth : line.row.teeth.entries()) {
            if (!tooth.isEmpty() && !chosen.contains(tooth)) chosen << tooth;
        }
    }
    return ToothList(chosen).selection();
}

int TreatmentRows::rowWithNumber(const QString& number) const {
    for (int at = 0; at < rowCount() && !number.isEmpty(); ++at) {
        if (row(at).progressivo == number) return at;
    }
    return -1;
}

void TreatmentRows::rowFocused(int at) {
    emit rowSelected(at < 0 ? QString() : row(at).teeth.selection());
}

// ------------------------------------------------------------------------------------------------------ the commands

void TreatmentRows::newRow() {
    PlanRow row;
    row.fattura = advanceInvoice_;
    row.isPriced = false;
    addNewRow(std::move(row), SERVICE);
}

void TreatmentRows::removeRow(int at) {
    RowsOf::removeRow(at);
    emit rowSelected(QString());
}

bool TreatmentRows::openRow(const QString& number) {
    const int at = rowWithNumber(number);
    return at >= 0 && editRow(at);
}

bool TreatmentRows::editRow(int at) {
    clsItemRigoTrattamento edited = stored(at);
    if (!ModificaRigoTrattamento(edited, isReadOnly())) return false;
    PeopleNames names;
    replaceRow(at, PlanRow(edited, names));
    emit changed();
    rowFocused(at);
    return true;
}

bool TreatmentRows::openCell(int at, int column) {
    if (column != TOOTH) return false;
    QString selection = row(at).teeth.selection();
    qint16 count = 0;
    if (!ScegliDenti(selection, count)) return true;
    changeRow(at).setTeeth(ToothList::fromSelection(selection));
    forgetUnread(at, TOOTH);
    paint(at);
    rowFocused(at);
    emit changed();
    return true;
}

// --------------------------------------------------------------------------------------- what follows from a cell

void TreatmentRows::afterCell(int at, int column) {
    if (column == TOOTH) rowFocused(at);
    if (column == SERVICE || column == DESCRIPTION) serviceTyped(at, column);
}

void TreatmentRows::serviceTyped(int at, int column) {
    if (servicesearch::isAsked(row(at).servizio) || servicesearch::isAsked(row(at).descrizione))
        searchService(at);
    else if (column == SERVICE)
        applyService(at);
    returnToRow(at);
}

void TreatmentRows::searchService(int at) {
    QString code = servicesearch::words(row(at).servizio);
    QString description = servicesearch::words(row(at).descrizione);
    const bool isOwn = !servicesearch::isAsked(row(at).descrizione);
    changeRow(at).servizio = code;
    changeRow(at).descrizione = description;
    if (!ScegliServizio(true, code, description)) return;
    changeRow(at).servizio = code;
    // A description that was itself the search gives way to the catalogue's.
    if (!isOwn) changeRow(at).descrizione.clear();
    applyService(at);
}

void TreatmentRows::applyService(int at) {
    PlanRow& row = changeRow(at);
    const QString code = serviceCode(row.servizio); // none once the module has ended under the window
    const clsItemServizio* service = code.isEmpty() ? nullptr : oServizi->Carica(code);
    if (!service) return;
    row.servizio = service->ID;
    if (row.descrizione.isEmpty()) row.descrizione = service->descrizione;
    // The same code in other letters is no other service: the stages of the work stay.
    if (std::exchange(row.applied, service->ID) == service->ID) return;
    row.raggruppamento = RaggruppamentoServizio(service->ID);
    forgetUnread(at, GROUP);
    row.statuslavori = StatusLavoriServizio(service->ID);
    // Priced like a new row; what an invoice has billed keeps its price.
    if (!row.fattura.isEmpty()) return;
    row.prezzo = Amount();
    row.isPriced = false;
}
