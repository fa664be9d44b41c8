#pragma once

#include "store/PlainRowManager.h"

/// The payments of the current patient, as far as the row tells them: the memo is not read, and there is no saving.
/// Owned by the module's assembly.
class clsPagamenti : public PlainRowManager {
public:
    clsPagamenti()
        : PlainRowManager(QStringLiteral("PGM")) {}
};
