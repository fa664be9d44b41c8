#pragma once

#include <QString>

/// Lets the user choose teeth in `frmSceltaDente`, starting from a selection ("1.1" or "+1.1;1.2"; unknown teeth are
/// skipped). True when confirmed: the selection and the number of teeth are then the new ones, empty and 0 for no
/// tooth. When cancelled both stay as they were.
bool ScegliDenti(QString& selection, qint16& count);
