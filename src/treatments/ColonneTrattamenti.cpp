#include "treatments/ColonneTrattamenti.h"

#include "host/modIcone.h"
#include "platform/ReportGrid.h"
#include "treatments/StatoTrattamento.h"
#include "treatments/clsItemTrattamento.h"

namespace colonnetrattamenti {

namespace {

platform::ReportColumn colonna(const QString& didascalia, int larghezza, bool ridimensionabile = false) {
    platform::ReportColumn descrizione;
    descrizione.caption = didascalia;
    descrizione.width = larghezza;
    descrizione.resizable = ridimensionabile;
    return descrizione;
}

void aggiungi(platform::ReportGrid& grid, const platform::ReportColumn& codiceFiscale) {
    grid.addColumn(colonna(QStringLiteral("Progressivo"), 80));
    grid.addColumn(colonna(QStringLiteral("Data"), 80));
    grid.addColumn(codiceFiscale);
    grid.addColumn(colonna(QStringLiteral("Cliente"), 300));
    grid.addColumn(colonna(QStringLiteral("Descrizione"), 240, true));
    platform::ReportColumn stato = colonna(QStringLiteral("Status"), 240, true);
    stato.sample = QStringLiteral("1 lavori finiti. Ci sono 2 lavori aperti. Restano da iniziare 2 lavori");
    grid.addColumn(stato);
}

} // namespace

void aggiungiPerPannello(platform::ReportGrid& grid) {
    platform::ReportColumn codiceFiscale = colonna(QStringLiteral("cdfCliente"), 0);
    codiceFiscale.visible = false;
    aggiungi(grid, codiceFiscale);
}

void aggiungiPerElenco(platform::ReportGrid& grid) {
    platform::ReportColumn codiceFiscale = colonna(QStringLiteral("Cod.Fiscale"), 120);
    codiceFiscale.sample = QStringLiteral("MMMDDD80A41H501W"); // in bold on the rows of the open patient
    aggiungi(grid, codiceFiscale);
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
