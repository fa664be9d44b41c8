#pragma once

#include <QString>

// A record under the hands of somebody is marked by a small file in the folder that all workstations share. The mark is
// advisory and has neither owner nor expiry; `kind` is "Preventivo", "Fattura" or "Trattamento".

/// Writes the mark, unless it is there: false then, and of several that ask in one instant only one gets true. When the
/// folder cannot be written, the work goes on without a mark.
bool CreaLock(const QString& kind, const QString& id);
bool EsisteLock(const QString& kind, const QString& id);
/// True when there was nothing to remove. Tells the user when the file cannot be removed.
bool RimuoviLock(const QString& kind, const QString& id);
/// Removes all marks, those of other workstations too: the manual answer to what a crash left behind. Stops at the
/// first that cannot be removed, tells the user, and gives false.
bool RimuoviTuttiLock();
