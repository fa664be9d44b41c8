#include "treatments/TotaliRighi.h"

#include "catalogues/modServizi.h"

int numeroDenti(const clsItemRigoTrattamento& rigo) {
    if (rigo.dente != QLatin1String("+")) return 1;
    return static_cast<int>(rigo.denti.count(u';')) + 1;
}

TotaliRighi calcolaTotali(const QList<clsItemRigoTrattamento>& righi) {
    TotaliRighi totali;
    for (const clsItemRigoTrattamento& rigo : righi) {
        if (rigo.servizio.isEmpty()) continue;
        const float prezzo = rigo.prezzo == 0.0F ? PrezzoServizio(rigo.servizio) : rigo.prezzo;
        const double valore = static_cast<double>(prezzo) * numeroDenti(rigo);
        float& totale = !rigo.inizio.isEmpty() && !rigo.fine.isEmpty() ? totali.terminati : totali.daTerminare;
        totale = static_cast<float>(static_cast<double>(totale) + valore);
    }
    return totali;
}
