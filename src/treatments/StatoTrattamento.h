#pragma once

#include <QString>

struct clsItemTrattamento;

/// How far a plan has come, in the words and with the icon that the lists show.
struct StatoTrattamento {
    QString testo;
    int icona = 0; ///< Index in the shared list of icons; 0 for none.
};

StatoTrattamento statoTrattamento(const clsItemTrattamento& item);
