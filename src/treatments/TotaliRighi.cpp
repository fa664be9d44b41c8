#include "treatments/TotaliRighi.h"

#include "catalogues/modServizi.h"
#include "chart/ToothList.h"

TotaliRighi calcolaTotali(const QList<clsItemRigoTrattamento>& righi) {
    TotaliRighi totali;
    for (const clsItemRigoTrattamento& rigo : righi) {
        if (rigo.servizio.isEmpty()) continue;
        const float prezzo = rigo.prezzo == 0.0F ? PrezzoServizio(rigo.servizio) : rigo.prezzo;
        const double valore = static_cast<double>(prezzo) * ToothList::fromRecord(rigo.dente, rigo.denti).factor();
        float& totale = !rigo.inizio.isEmpty() && !rigo.fine.isEmpty() ? totali.terminati : totali.daTerminare;
        totale = static_cast<float>(static_cast<double>(totale) + valore);
    }
    return totali;
}
