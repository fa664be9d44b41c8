// The edit in the cells of the plan's rows: what follows from each value that the user types or chooses.
#include "catalogues/clsServizi.h"
#include "catalogues/modRaggrMerc.h"
#include "catalogues/modSceltaServizio.h"
#include "catalogues/modServizi.h"
#include "chart/modSceltaDenti.h"
#include "host/context.h"
#include "platform/ReportGrid.h"
#include "store/modUtenti.h"
#include "treatments/RigheTrattamento.h"
#include "treatments/RigoInGriglia.h"

#include <QTimer>
#include <utility>

using namespace rigogriglia;

namespace {

const QLatin1Char CERCA('?');

QString senzaDomanda(QString testo) {
    return testo.replace(CERCA, QLatin1Char(' ')).trimmed();
}

} // namespace

void RigheTrattamento::cellaCambiata(platform::ReportRecord* record, int colonna) {
    switch (colonna) {
    case DENTE:
        leggiDenti(*record);
        emit rigoScelto(denti(*record).selection());
        break;
    case SERVIZIO:
    case DESCRIZIONE:
        servizioScritto(*record, colonna);
        break;
    case INIZIO:
    case FINE:
        leggiData(*record, colonna);
        break;
    case RAGGRUPPAMENTO:
        record->cell(RAGGRUPPAMENTO).tag = CodiceRaggrMerc(record->cell(RAGGRUPPAMENTO).value);
        break;
    case OPERATORE:
    case ASSISTENTE:
        record->cell(colonna).tag = CodiceFiscaleUtente(record->cell(colonna).value);
        break;
    default:
        break;
    }
    dipingi(*record);
    rcRighi_->refreshRecord(record);
    emit cambiati();
}

void RigheTrattamento::servizioScritto(platform::ReportRecord& record, int colonna) {
    if (record.cell(SERVIZIO).value.contains(CERCA) || record.cell(DESCRIZIONE).value.contains(CERCA))
        cercaServizio(record);
    else if (colonna == SERVIZIO)
        applicaServizio(record);
    tornaAlRigo(&record);
}

void RigheTrattamento::cercaServizio(platform::ReportRecord& record) {
    QString codice = senzaDomanda(record.cell(SERVIZIO).value);
    QString descrizione = senzaDomanda(record.cell(DESCRIZIONE).value);
    const bool scritta = !record.cell(DESCRIZIONE).value.contains(CERCA);
    record.cell(SERVIZIO).value = codice;
    record.cell(DESCRIZIONE).value = descrizione;
    if (!ScegliServizio(true, codice, descrizione)) return;
    record.cell(SERVIZIO).value = codice;
    // A description that was itself the search gives way to the catalogue's.
    if (!scritta) record.cell(DESCRIZIONE).value.clear();
    applicaServizio(record);
}

void RigheTrattamento::applicaServizio(platform::ReportRecord& record) {
    platform::ReportCell& scritto = record.cell(SERVIZIO);
    const clsItemServizio* servizio = oServizi->Carica(CodiceServizio(scritto.value));
    if (!servizio) return;
    scritto.value = servizio->ID;
    platform::ReportCell& descrizione = record.cell(DESCRIZIONE);
    if (descrizione.value.isEmpty() || descrizione.value.contains(CERCA)) descrizione.value = servizio->descrizione;
    // The same code in other letters is no other service: the stages of the work stay.
    if (std::exchange(scritto.tag, servizio->ID) == servizio->ID) return;
    record.cell(RAGGRUPPAMENTO).tag = RaggruppamentoServizio(servizio->ID);
    record.cell(RAGGRUPPAMENTO).value = DescrizioneRaggrMerc(record.cell(RAGGRUPPAMENTO).tag);
    record.cell(NOTE).tag = StatusLavoriServizio(servizio->ID);
    // Priced like a new row; what an invoice has billed keeps its price.
    if (record.cell(FATTURA).value.isEmpty()) record.cell(FATTURA).tag.clear();
}

void RigheTrattamento::scegliDenti(platform::ReportRecord* record) {
    if (!record || solaLettura_) return;
    QString selezione = denti(*record).selection();
    qint16 quanti = 0;
    if (!ScegliDenti(selezione, quanti)) return;
    metteDenti(*record, ToothList::fromSelection(selezione));
    dipingi(*record);
    rcRighi_->refreshRecord(record);
    emit rigoScelto(selezione);
    emit cambiati();
}

void RigheTrattamento::tornaAlRigo(platform::ReportRecord* record) {
    rigoDaFocalizzare_ = posizione(record);
    tmSetFocusOnRow_->start();
}

// Meanwhile the user may have gone to another row, cell, field or button, and stays there. A search that has closed
// leaves the keyboard in the grid, or nowhere.
void RigheTrattamento::riprendeFuoco() {
    platform::ReportRecord* rigo = rcRighi_->record(rigoDaFocalizzare_);
    if (!rigo || rcRighi_->isEditing() || rcRighi_->focusedRecord() != rigo) return;
    const QWidget* fuoco = window()->focusWidget();
    if (!fuoco || rcRighi_->isAncestorOf(fuoco)) rcRighi_->setFocus();
}
