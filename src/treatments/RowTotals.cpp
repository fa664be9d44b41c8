#include "treatments/RowTotals.h"

#include "catalogues/modServizi.h"
#include "chart/ToothList.h"

RowTotals sumRows(const QList<clsItemRigoTrattamento>& rows) {
    RowTotals totals;
    for (const clsItemRigoTrattamento& row : rows) {
        if (row.servizio.isEmpty()) continue;
        const Amount price = row.prezzo.isZero() ? PrezzoServizio(row.servizio) : row.prezzo;
        Amount& total = !row.inizio.isEmpty() && !row.fine.isEmpty() ? totals.finished : totals.toFinish;
        total = total.wide() + price.wide() * ToothList::fromRecord(row.dente, row.denti).factor();
    }
    return totals;
}
