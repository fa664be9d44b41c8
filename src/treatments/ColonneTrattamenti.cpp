#include "treatments/ColonneTrattamenti.h"

#include "host/modIcone.h"
#include "platform/ReportGrid.h"
#include "treatments/StatoTrattamento.h"
#include "treatments/clsItemTrattamento.h"

#include <algorithm>

namespace colonnetrattamenti {

namespace {

// The widths were drawn for a small screen font; a larger one must not cut what is always of one length.
int almeno(const platform::ReportGrid& grid, int larghezza, const char* testo, int spazio) {
    return std::max(larghezza, grid.fontMetrics().horizontalAdvance(QLatin1String(testo)) + spazio);
}

constexpr int MARGINI = 14;
constexpr int MARGINI_E_FRECCIA = 36; // the mark of the sort column

platform::ReportColumn colonna(const QString& didascalia, int larghezza, bool ridimensionabile = false) {
    platform::ReportColumn descrizione;
    descrizione.caption = didascalia;
    descrizione.width = larghezza;
    descrizione.resizable = ridimensionabile;
    return descrizione;
}

void aggiungi(platform::ReportGrid& grid, const platform::ReportColumn& codiceFiscale) {
    grid.addColumn(colonna(QStringLiteral("Progressivo"), almeno(grid, 80, "Progressivo", MARGINI_E_FRECCIA)));
    grid.addColumn(colonna(QStringLiteral("Data"), almeno(grid, 80, "00/00/0000", MARGINI)));
    grid.addColumn(codiceFiscale);
    grid.addColumn(colonna(QStringLiteral("Cliente"), 300));
    grid.addColumn(colonna(QStringLiteral("Descrizione"), 240, true));
    grid.addColumn(colonna(QStringLiteral("Status"), 240, true));
}

} // namespace

void aggiungiPerPannello(platform::ReportGrid& grid) {
    platform::ReportColumn codiceFiscale = colonna(QStringLiteral("cdfCliente"), 0);
    codiceFiscale.visible = false;
    aggiungi(grid, codiceFiscale);
}

void aggiungiPerElenco(platform::ReportGrid& grid) {
    aggiungi(grid, colonna(QStringLiteral("Cod.Fiscale"), almeno(grid, 120, "MMMMMM00M00M000M", MARGINI)));
}

void mostra(const clsItemTrattamento& item, platform::ReportRecord& record) {
    record.cell(PROGRESSIVO).value = unisciIdrif1(item);
    record.cell(DATA).value = item.Data;
    record.cell(CODICE_FISCALE).value = item.cliente;
    record.cell(CLIENTE).value = item.descrizionecliente;
    record.cell(DESCRIZIONE).value = item.descrizione;
    const StatoTrattamento stato = statoTrattamento(item);
    record.cell(STATUS).value = stato.testo;
    if (stato.icona == 0) return;
    record.cell(STATUS).changeStyle().icon = IconaStato(stato.icona);
    record.cell(STATUS).changeStyle().iconIndex = stato.icona;
}

} // namespace colonnetrattamenti
