#pragma once

#include "store/PlainRowManager.h"

/// The estimates of the current patient, as far as the row tells them: the memo is not read, and there is no saving.
/// Owned by the module's assembly.
class clsPreventivi : public PlainRowManager {
public:
    clsPreventivi()
        : PlainRowManager(QStringLiteral("PRV")) {}
};
