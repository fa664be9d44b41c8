#pragma once

#include <QString>

/// The answer of an editor to who opened it. `Framework.DialogCancel` tells the host the same.
struct EditorResult {
    bool confirmed = false;
    QString id; ///< Of the record as it is stored; empty for a new one that was given up.
};
