#pragma once

#include "treatments/clsItemTrattamento.h"

/// A treatment plan as practices write them: rows on one tooth and on several, started, finished, billed, with notes.
/// The same number gives the same plan.
clsItemTrattamento planSample(int rows, int number);
