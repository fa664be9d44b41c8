#pragma once

#include "treatments/clsItemRigoTrattamento.h"

/// What the rows of a plan are worth.
struct RowTotals {
    Amount finished;
    Amount toFinish;

    /// Adds a row, unless it has no service: its price, or the catalogue's when it has none, for so many teeth.
    void add(const clsItemRigoTrattamento& row, int teeth);
};
