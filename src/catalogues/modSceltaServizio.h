#pragma once

#include <QString>

class QComboBox;

/// Lets the user choose a service in `frmSceltaServizio`. On entry `code` and `description` narrow the list to
/// entries that contain them; on true they are those of the chosen one. False, with both as they were, when cancelled
/// or when the catalogue is empty (no window then).
bool ScegliServizio(bool onlyTreatments, QString& code, QString& description);

/// Fills a list with an empty line and one "code description" line per goods group, and selects that of `code`, or
/// none.
void CaricaComboRaggrMerc(QComboBox* combo, const QString& code);
