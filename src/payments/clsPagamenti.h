#pragma once

#include "store/clsGestoreRighe.h"

/// The payments of the current patient, as far as the row tells them: the memo is not read, and there is no saving.
/// Owned by the module's assembly.
class clsPagamenti : public clsGestoreRighe {
public:
    clsPagamenti()
        : clsGestoreRighe(QStringLiteral("PGM")) {}
};
