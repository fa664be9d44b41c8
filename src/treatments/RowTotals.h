#pragma once

#include "treatments/clsItemRigoTrattamento.h"

#include <QList>

/// What the rows of a plan are worth. Money is stored in single precision after each step.
struct RowTotals {
    float finished = 0;
    float toFinish = 0;
};

/// Sums the rows that have a service; a row without a price counts with the catalogue's.
RowTotals sumRows(const QList<clsItemRigoTrattamento>& rows);
