#pragma once

#include <QString>
#include <QVariant>

/// Plain holder of a few values, for the host's scripts: no rule, no owner, copied freely.
struct clsItemPublic {
    QString ID;
    QString Codice;
    QString Descrizione;
    QVariant Valore;
    QVariant Tag; ///< Whatever the script wants to keep beside it.
};
