#include "treatments/RowTotals.h"

#include "catalogues/modServizi.h"

void RowTotals::add(const clsItemRigoTrattamento& row, int teeth) {
    if (row.servizio.isEmpty()) return;
    const Amount price = row.prezzo.isZero() ? PrezzoServizio(row.servizio) : row.prezzo;
    Amount& total = !row.inizio.isEmpty() && !row.fine.isEmpty() ? finished : toFinish;
    total = total.wide() + price.wide() * teeth;
}
