#include "treatments/clsViewTrattamenti.h"

#include "treatments/TreatmentColumns.h"

clsViewTrattamenti* oViewTrattamenti = nullptr;

clsViewTrattamenti::clsViewTrattamenti()
    : DocumentView(treatmentcolumns::kind()) {}
