#include "treatments/RowTotals.h"

#include "catalogues/modServizi.h"
#include "chart/ToothList.h"

RowTotals sumRows(const QList<clsItemRigoTrattamento>& rows) {
    RowTotals totals;
    for (const clsItemRigoTrattamento& row : rows) {
        if (row.servizio.isEmpty()) continue;
        const float price = row.prezzo == 0.0F ? PrezzoServizio(row.servizio) : row.prezzo;
        const double value = static_cast<double>(price) * ToothList::fromRecord(row.dente, row.denti).factor();
        float& total = !row.inizio.isEmpty() && !row.fine.isEmpty() ? totals.finished : totals.toFinish;
        total = static_cast<float>(static_cast<double>(total) + value);
    }
    return totals;
}
