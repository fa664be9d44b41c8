#include "treatments/RigoInGriglia.h"

#include "catalogues/modRaggrMerc.h"
#include "catalogues/modServizi.h"
#include "chart/modDenti.h"
#include "platform/Regional.h"
#include "platform/ReportColumn.h"
#include "platform/ReportRecord.h"
#include "store/modConversioni.h"
#include "store/modUtenti.h"

#include <QColor>

namespace rigogriglia {

namespace {

const QColor DA_INIZIARE(255, 127, 127);
const QColor APERTO(255, 233, 127);
const QColor FINITO(165, 255, 127);
const QColor GRIGIO_NUMERO(192, 192, 192);

void metteNumero(platform::ReportRecord& record, const QString& numero) {
    platform::ReportCell& cella = record.cell(NUMERO);
    cella.value = numero;
    cella.changeStyle().background = GRIGIO_NUMERO;
    cella.changeStyle().editable = false;
}

QColor coloreStato(const platform::ReportRecord& record) {
    const bool iniziato = !record.cell(INIZIO).value.isEmpty();
    const bool finito = !record.cell(FINE).value.isEmpty();
    if (iniziato) return finito ? FINITO : APERTO;
    return finito ? QColor() : DA_INIZIARE;
}

} // namespace

QList<platform::ReportColumn> colonne() {
    struct Descrizione {
        QString didascalia;
        int larghezza;
        bool ridimensionabile;
    };
    const QList<Descrizione> descrizioni{
        {QString(), 20, false},
        {QStringLiteral("Dente"), 46, false},
        {QStringLiteral("Servizio"), 90, false},
        {QStringLiteral("Descrizione"), 244, true},
        {QStringLiteral("Inzio"), 64, false}, // misspelt on purpose: the column is known by this name
        {QStringLiteral("Fine"), 64, false},
        {QStringLiteral("Ragr.to"), 100, false},
        {QStringLiteral("Operatore"), 100, false},
        {QStringLiteral("Assistente"), 100, false},
        {QStringLiteral("Fattura"), 100, false},
        {QStringLiteral("Note"), 84, true},
    };
    QList<platform::ReportColumn> colonne;
    for (const Descrizione& descrizione : descrizioni) {
        platform::ReportColumn colonna;
        colonna.caption = descrizione.didascalia;
        colonna.width = descrizione.larghezza;
        colonna.resizable = descrizione.ridimensionabile;
        colonna.sortable = false; // the order of the rows is the user's own
        if (colonne.size() == OPERATORE || colonne.size() == ASSISTENTE)
            colonna.sample = QStringLiteral("Bianchi dott. Giovanni");
        if (colonne.size() == INIZIO || colonne.size() == FINE)
            colonna.sample = QStringLiteral("00/00/0000"); // in bold on the rows of the tooth that was clicked
        colonne << colonna;
    }
    return colonne;
}

QString numeroRigo(int posizione) {
    return platform::regional().format(posizione, QStringLiteral("00"));
}

void mostra(const clsItemRigoTrattamento& rigo, platform::ReportRecord& record) {
    while (record.cellCount() < NUMERO_CELLE)
        record.addCell();
    metteNumero(record, rigo.progressivo);
    metteDenti(record, SelezioneDaMemoria(rigo.dente, rigo.denti));
    record.cell(DENTE).changeStyle().button = true;
    record.cell(SERVIZIO).value = rigo.servizio;
    record.cell(DESCRIZIONE).value = rigo.descrizione;
    record.cell(INIZIO).value = record.cell(INIZIO).tag = rigo.inizio;
    record.cell(FINE).value = record.cell(FINE).tag = rigo.fine;
    record.cell(RAGGRUPPAMENTO).value = DescrizioneRaggrMerc(rigo.raggruppamento);
    record.cell(RAGGRUPPAMENTO).tag = rigo.raggruppamento;
    record.cell(OPERATORE).value = DescrizioneUtente(rigo.operatore);
    record.cell(OPERATORE).tag = rigo.operatore;
    record.cell(ASSISTENTE).value = DescrizioneUtente(rigo.assistente);
    record.cell(ASSISTENTE).tag = rigo.assistente;
    record.cell(FATTURA).value = rigo.fattura;
    record.cell(FATTURA).tag = platform::regional().format(rigo.prezzo, QStringLiteral("###0.00"));
    record.cell(NOTE).value = rigo.note;
    record.cell(NOTE).tag = rigo.statuslavori;
    record.cell(FUORI_PREVENTIVO).setCheckBox(rigo.fuoripreventivo);
}

clsItemRigoTrattamento leggi(const platform::ReportRecord& record, int posizione) {
    clsItemRigoTrattamento rigo;
    rigo.progressivo = numeroRigo(posizione);
    const DentiMemorizzati teeth = DentiDaMemorizzare(denti(record));
    rigo.dente = teeth.dente;
    rigo.denti = teeth.denti;
    rigo.servizio = record.cell(SERVIZIO).value;
    rigo.descrizione = record.cell(DESCRIZIONE).value;
    rigo.inizio = record.cell(INIZIO).value;
    rigo.fine = record.cell(FINE).value;
    rigo.operatore = record.cell(OPERATORE).tag;
    rigo.assistente = record.cell(ASSISTENTE).tag;
    rigo.raggruppamento = record.cell(RAGGRUPPAMENTO).tag;
    rigo.note = record.cell(NOTE).value;
    rigo.fuoripreventivo = record.cell(FUORI_PREVENTIVO).isChecked();
    rigo.fattura = record.cell(FATTURA).value;
    rigo.prezzo = CastSingle(record.cell(FATTURA).tag);
    rigo.statuslavori = record.cell(NOTE).tag;
    return rigo;
}

RigoGrafico perIlDisegno(const platform::ReportRecord& record) {
    return {record.cell(DENTE).value,       record.cell(DENTE).tag,    record.cell(SERVIZIO).value,
            record.cell(DESCRIZIONE).value, record.cell(INIZIO).value, record.cell(FINE).value};
}

QString denti(const platform::ReportRecord& record) {
    const platform::ReportCell& cella = record.cell(DENTE);
    return cella.value == QLatin1String("+") ? cella.value + cella.tag : cella.value;
}

void metteDenti(platform::ReportRecord& record, const QString& selezione) {
    platform::ReportCell& cella = record.cell(DENTE);
    const bool parecchi = selezione.startsWith(u'+');
    cella.value = parecchi ? QStringLiteral("+") : selezione;
    cella.tag = parecchi ? selezione.mid(1) : QString();
}

bool tocca(const platform::ReportRecord& record, const QString& dente) {
    const platform::ReportCell& cella = record.cell(DENTE);
    if (cella.value != QLatin1String("+")) return cella.value == dente;
    return cella.tag.split(u';').contains(dente);
}

void dipingi(platform::ReportRecord& record) {
    const QColor stato = coloreStato(record);
    record.cell(INIZIO).setBackground(stato);
    record.cell(FINE).setBackground(stato);
    const QString& servizio = record.cell(SERVIZIO).value;
    QString breve;
    if (!servizio.isEmpty()) record.cell(DESCRIZIONE).setBold(ServizioInEvidenza(servizio, breve));
    const bool fuoriPreventivo = record.cell(FUORI_PREVENTIVO).isChecked();
    record.cell(DESCRIZIONE).setBackground(fuoriPreventivo ? DA_INIZIARE : record.cell(SERVIZIO).style().background);
}

} // namespace rigogriglia
