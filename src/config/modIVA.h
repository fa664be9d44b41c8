#pragma once

#include <QString>

class QComboBox;

// The VAT codes of the configuration, as windows show them.

/// Fills the list with an empty entry and one per code, in the order of the configuration: code, a blank, description;
/// the code is the entry's data. Selects that of `code`, or nothing when there is none.
void CaricaComboIVA(QComboBox& combo, const QString& code);
