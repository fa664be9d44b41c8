#pragma once

#include "store/Amount.h"

#include <QString>

/// One row of a treatment plan: a service to be performed on one tooth, on several or on none, with its dates, its
/// price and the invoice that billed it. A plain value; dates are texts in the regional short form, empty when not yet
/// there.
struct clsItemRigoTrattamento {
    QString kanno; ///< Number of the plan that holds the row, copied by the reader.
    QString kprogressivo;
    QString progressivo; ///< Number of the row within the plan, and its key there.
    QString descrizione;
    QString servizio;     ///< Code in the catalogue of services.
    QString inizio;       ///< Work started; empty means not started.
    QString fine;         ///< Work ended.
    QString statuslavori; ///< Intermediate stages, up to four lines: a name, then "|" and its dates.
    QString dente;        ///< Index of the tooth, "+" when the teeth stand in `denti`, empty for none.
    QString denti;        ///< Indexes joined by ";".
    QString raggruppamento;
    QString fattura; ///< Reference of the invoice; empty until billed.
    QString note;
    bool fuoripreventivo = false;
    Amount prezzo; ///< For one tooth.
    QString operatore;
    QString assistente;

    bool operator==(const clsItemRigoTrattamento& other) const = default;
};
