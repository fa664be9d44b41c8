#pragma once

#include "treatments/clsItemRigoTrattamento.h"

#include <QList>

/// What the rows of a plan are worth.
struct RowTotals {
    Amount finished;
    Amount toFinish;
};

/// Sums the rows that have a service; a row without a price counts with the catalogue's.
RowTotals sumRows(const QList<clsItemRigoTrattamento>& rows);
