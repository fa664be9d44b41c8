// The edit in the cells of the plan's rows: what follows from each value that the user types or chooses.
#include "catalogues/clsServizi.h"
#include "catalogues/modRaggrMerc.h"
#include "catalogues/modSceltaServizio.h"
#include "catalogues/modServizi.h"
#include "chart/modSceltaDenti.h"
#include "host/context.h"
#include "platform/ReportGrid.h"
#include "store/modUtenti.h"
#include "treatments/GridRow.h"
#include "treatments/TreatmentRows.h"

#include <QTimer>
#include <utility>

using namespace gridrow;

namespace {

const QLatin1Char SEARCH_MARK('?');

QString withoutMark(QString text) {
    return text.replace(SEARCH_MARK, QLatin1Char(' ')).trimmed();
}

} // namespace

void TreatmentRows::cellChanged(platform::ReportRecord* record, int column) {
    switch (column) {
    case TOOTH:
        readTeeth(*record);
        emit rowSelected(teethOf(*record).selection());
        break;
    case SERVICE:
    case DESCRIPTION:
        serviceTyped(*record, column);
        break;
    case START:
    case END:
        readDate(*record, column);
        break;
    case GROUP:
        record->cell(GROUP).tag = CodiceRaggrMerc(record->cell(GROUP).value);
        break;
    case OPERATOR:
    case ASSISTANT:
        record->cell(column).tag = CodiceFiscaleUtente(record->cell(column).value);
        break;
    default:
        break;
    }
    paintRow(*record);
    rcRighi_->refreshRecord(record);
    emit changed();
}

void TreatmentRows::serviceTyped(platform::ReportRecord& record, int column) {
    if (record.cell(SERVICE).value.contains(SEARCH_MARK) || record.cell(DESCRIPTION).value.contains(SEARCH_MARK))
        searchService(record);
    else if (column == SERVICE)
        applyService(record);
    returnToRow(&record);
}

void TreatmentRows::searchService(platform::ReportRecord& record) {
    QString code = withoutMark(record.cell(SERVICE).value);
    QString description = withoutMark(record.cell(DESCRIPTION).value);
    const bool typed = !record.cell(DESCRIPTION).value.contains(SEARCH_MARK);
    record.cell(SERVICE).value = code;
    record.cell(DESCRIPTION).value = description;
    if (!ScegliServizio(true, code, description)) return;
    record.cell(SERVICE).value = code;
    // A description that was itself the search gives way to the catalogue's.
    if (!typed) record.cell(DESCRIPTION).value.clear();
    applyService(record);
}

void TreatmentRows::applyService(platform::ReportRecord& record) {
    platform::ReportCell& written = record.cell(SERVICE);
    const QString code = serviceCode(written.value); // none once the module has ended under the window
    const clsItemServizio* service = code.isEmpty() ? nullptr : oServizi->Carica(code);
    if (!service) return;
    written.value = service->ID;
    platform::ReportCell& description = record.cell(DESCRIPTION);
    if (description.value.isEmpty() || description.value.contains(SEARCH_MARK))
        description.value = service->descrizione;
    // The same code in other letters is no other service: the stages of the work stay.
    if (std::exchange(written.tag, service->ID) == service->ID) return;
    record.cell(GROUP).tag = RaggruppamentoServizio(service->ID);
    record.cell(GROUP).value = DescrizioneRaggrMerc(record.cell(GROUP).tag);
    record.cell(NOTES).tag = StatusLavoriServizio(service->ID);
    // Priced like a new row; what an invoice has billed keeps its price.
    if (record.cell(INVOICE).value.isEmpty()) record.cell(INVOICE).tag.clear();
}

void TreatmentRows::chooseTeeth(platform::ReportRecord* record) {
    if (!record || readOnly_) return;
    QString selection = teethOf(*record).selection();
    qint16 count = 0;
    if (!ScegliDenti(selection, count)) return;
    setTeeth(*record, ToothList::fromSelection(selection));
    paintRow(*record);
    rcRighi_->refreshRecord(record);
    emit rowSelected(selection);
    emit changed();
}

void TreatmentRows::returnToRow(platform::ReportRecord* record) {
    rowToFocus_ = position(record);
    tmSetFocusOnRow_->start();
}

// Meanwhile the user may have gone to another row, cell, field or button, and stays there. A search that has closed
// leaves the keyboard in the grid, or nowhere.
void TreatmentRows::takeFocusBack() {
    platform::ReportRecord* row = rcRighi_->record(rowToFocus_);
    if (!row || rcRighi_->isEditing() || rcRighi_->focusedRecord() != row) return;
    const QWidget* focus = window()->focusWidget();
    if (!focus || rcRighi_->isAncestorOf(focus)) rcRighi_->setFocus();
}
