#include "treatments/TreatmentColumns.h"

#include "config/clsConfig.h"
#include "documents/DocumentKind.h"
#include "host/context.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/TreatmentMemo.h"
#include "treatments/TreatmentState.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/frmEditTrattamento.h"

namespace treatmentcolumns {

namespace {

DocumentCells cells(const clsItemTrattamento& item) {
    const TreatmentState state = treatmentState(item);
    return {{item.number().text(), item.Data, item.cliente, item.descrizionecliente, item.descrizione, state.text},
            state.icon};
}

DocumentColumn status() {
    platform::ReportColumn column{QStringLiteral("Status"), 240, true};
    column.sample = QStringLiteral("1 lavori finiti. Ci sono 2 lavori aperti. Restano da iniziare 2 lavori");
    return {column};
}

QObject* editor(const QString& id) {
    sIDTrattamento = id;
    return new frmEditTrattamento(id);
}

} // namespace

DocumentKind kind() {
    using namespace documentcolumns;
    DocumentKind plans;
    plans.recordType = 101014;
    plans.t1 = QStringLiteral("TRT");
    plans.plural = QStringLiteral("Trattamenti");
    plans.columns = {number(), date(), taxCode(), patient(), description(), status()};
    plans.sortColumn = PROGRESSIVE;
    listDocuments(plans, oTrattamenti, cells, [](clsItemTrattamento& item, const QString& memo, host::Paziente&) {
        readMemoForList(item, memo);
    });
    plans.editor = editor;
    plans.open = [](const QString& id) { ApriTrattamento(id); };
    plans.remove = deleteTreatment;
    // "Stampa" does nothing, on purpose: plans have no print of their own. The single sheet must stay single.
    plans.mayAdd = [](bool hasAny) { return !hasAny || !oConfig || !oConfig->UnicaSchedaTrattamento(); };
    return plans;
}

} // namespace treatmentcolumns
