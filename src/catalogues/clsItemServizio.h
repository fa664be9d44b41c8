#pragma once

#include "store/Amount.h"

#include <QString>

/// One entry of the practice's list of services and products.
struct clsItemServizio {
    QString ID; ///< Service code, the key of the catalogue.
    QString descrizione;
    QString breve; ///< Short text for the tooth chart and the summary.
    QString UM;
    Amount prezzo;
    QString codiceIva;
    QString raggruppamento; ///< Goods group code; empty when none.
    bool usabileInPianoTrattamento = false;
    bool inEvidenza = false;
    QString statusLavori; ///< Names of the intermediate work states, one a line (CR LF); empty when there are none.
};
