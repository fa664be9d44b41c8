#pragma once

#include "treatments/clsItemRigoTrattamento.h"

#include <QList>

/// What the rows of a plan are worth. Money is stored in single precision after each step.
struct TotaliRighi {
    float terminati = 0;
    float daTerminare = 0;
};

/// Sums the rows that have a service; a row without a price counts with the catalogue's.
TotaliRighi calcolaTotali(const QList<clsItemRigoTrattamento>& righi);
