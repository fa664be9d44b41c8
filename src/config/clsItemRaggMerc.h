#pragma once

#include <QString>

/// A goods group of the catalogues.
struct clsItemRaggMerc {
    QString codice;
    QString descrizione;
};
