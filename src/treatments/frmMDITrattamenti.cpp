#include "treatments/frmMDITrattamenti.h"

#include "host/contract/Host.h"
#include "platform/Regional.h"
#include "platform/ReportRecord.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/TreatmentColumns.h"
#include "treatments/TreatmentMemo.h"
#include "treatments/clsTrattamenti.h"

namespace {

PeriodList::Settings settings() {
    return {
        QStringLiteral("frmMDITrattamenti"),   QStringLiteral("rcTrattamenti"), QStringLiteral("laTitoloTrattamenti"),
        QStringLiteral("ELENCO TRATTAMENTI "), QStringLiteral("TRT"),           treatmentcolumns::PROGRESSIVE};
}

} // namespace

frmMDITrattamenti::frmMDITrattamenti(QWidget* parent)
    : PeriodList(settings(), parent) {
    prepare();
}

void frmMDITrattamenti::RefreshTrattamenti(const QString& id) {
    reload(id);
}

void frmMDITrattamenti::RefreshGraficaTrattamenti() {
    refreshMarks();
}

void frmMDITrattamenti::buildColumns(platform::ReportGrid& grid) {
    treatmentcolumns::addForList(grid);
}

void frmMDITrattamenti::fill(platform::ReportRecord& record, const host::Recordset& row, host::Paziente&) {
    clsItemTrattamento item;
    item.ID = record.tag;
    item.Data = platform::regional().shortDate(row.value(QStringLiteral("data")).toDate());
    item.descrizione = row.text(QStringLiteral("descrizione"));
    readMemoForList(item, row.text(QStringLiteral("m1")));
    treatmentcolumns::fillRecord(item, record);
}

QList<int> frmMDITrattamenti::patientColumns() const {
    return {treatmentcolumns::TAX_CODE, treatmentcolumns::PATIENT};
}

void frmMDITrattamenti::open(const QString& id) {
    ApriTrattamento(id);
}

bool frmMDITrattamenti::remove(host::Paziente& patient, const QString& id) {
    return deleteTreatment(patient, id);
}
