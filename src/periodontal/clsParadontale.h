#pragma once

#include "store/PlainRowManager.h"

/// The periodontal probings of the current patient, as far as the row tells them: the memo is not read, and there is no
/// saving. Owned by the module's assembly.
class clsParadontale : public PlainRowManager {
public:
    clsParadontale()
        : PlainRowManager(QStringLiteral("CPD")) {}
};
