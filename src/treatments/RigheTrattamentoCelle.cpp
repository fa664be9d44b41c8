// The edit in the cells of the plan's rows: what follows from each value that the user types or chooses.
#include "catalogues/clsServizi.h"
#include "catalogues/modRaggrMerc.h"
#include "catalogues/modSceltaServizio.h"
#include "catalogues/modServizi.h"
#include "chart/modSceltaDenti.h"
#include "host/context.h"
#include "platform/Regional.h"
#include "platform/ReportGrid.h"
#include "store/modUtenti.h"
#include "treatments/RigheTrattamento.h"
#include "treatments/RigoInGriglia.h"

#include <QTimer>

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
        // A list may be typed as the picker writes it.
        if (record->cell(DENTE).value != QLatin1String("+")) metteDenti(*record, record->cell(DENTE).value.trimmed());
        emit rigoScelto(denti(*record));
        break;
    case SERVIZIO:
    case DESCRIZIONE:
        servizioScritto(*record, colonna);
        break;
    case INIZIO:
    case FINE:
        dataScritta(*record, colonna);
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
    const QString& codice = record.cell(SERVIZIO).value;
    const clsItemServizio* servizio = codice.isEmpty() ? nullptr : oServizi->Carica(codice);
    if (!servizio) return;
    platform::ReportCell& descrizione = record.cell(DESCRIZIONE);
    if (descrizione.value.isEmpty() || descrizione.value.contains(CERCA)) descrizione.value = servizio->descrizione;
    record.cell(RAGGRUPPAMENTO).tag = RaggruppamentoServizio(codice);
    record.cell(RAGGRUPPAMENTO).value = DescrizioneRaggrMerc(record.cell(RAGGRUPPAMENTO).tag);
    record.cell(NOTE).tag = StatusLavoriServizio(codice);
}

void RigheTrattamento::dataScritta(platform::ReportRecord& record, int colonna) {
    platform::ReportCell& cella = record.cell(colonna);
    const QString testo = cella.value.trimmed();
    const auto scritta = platform::regional().toDate(testo);
    if (testo.isEmpty())
        cella.tag.clear();
    else if (scritta)
        cella.tag = platform::regional().shortDate(*scritta);
    cella.value = cella.tag; // a text that is no date leaves the one before
}

void RigheTrattamento::scegliDenti(platform::ReportRecord* record) {
    if (!record || solaLettura_) return;
    QString selezione = denti(*record);
    qint16 quanti = 0;
    if (!ScegliDenti(selezione, quanti)) return;
    metteDenti(*record, selezione);
    rcRighi_->refreshRecord(record);
    emit rigoScelto(selezione);
    emit cambiati();
}

void RigheTrattamento::tornaAlRigo(platform::ReportRecord* record) {
    rigoDaFocalizzare_ = posizione(record);
    tmSetFocusOnRow_->start();
}
