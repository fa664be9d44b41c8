#pragma once

#include <QString>

/// A VAT code of the practice.
struct clsItemIva {
    QString codice;
    QString descrizione;
    float percentuale = 0;
};
