#pragma once

#include <QString>

struct clsItemTrattamento;

/// How far a plan has come, in the words and with the icon that the lists show.
struct TreatmentState {
    QString text;
    int icon = 0; ///< Index in the shared list of icons; 0 for none.
};

TreatmentState treatmentState(const clsItemTrattamento& item);
