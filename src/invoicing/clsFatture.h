#pragma once

#include "store/PlainRowManager.h"

/// The invoices of the current patient, as far as the row tells them: the memo is not read, and there is no saving.
/// Owned by the module's assembly.
class clsFatture : public PlainRowManager {
public:
    clsFatture()
        : PlainRowManager(QStringLiteral("FTT")) {}
};
