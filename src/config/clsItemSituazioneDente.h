#pragma once

#include <QString>

/// A condition in which a tooth can be found.
struct clsItemSituazioneDente {
    QString id;
    QString descrizione;
};
