#include "treatments/frmMDITrattamenti.h"

#include "treatments/TreatmentColumns.h"

frmMDITrattamenti::frmMDITrattamenti(QWidget* parent)
    : PeriodList(treatmentcolumns::kind(), parent) {}

void frmMDITrattamenti::RefreshTrattamenti(const QString& id) {
    reload(id);
}

void frmMDITrattamenti::RefreshGraficaTrattamenti() {
    refreshMarks();
}
