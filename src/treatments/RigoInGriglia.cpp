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

using platform::Notice;

namespace rigogriglia {

namespace {

const QColor DA_INIZIARE(255, 127, 127);
const QColor APERTO(255, 233, 127);
const QColor FINITO(165, 255, 127);
const QColor GRIGIO_NUMERO(192, 192, 192);
const QLatin1String PARECCHI("+");

void metteNumero(platform::ReportRecord& record, const QString& numero) {
    platform::ReportCell& cella = record.cell(NUMERO);
    cella.value = numero;
    cella.changeStyle().background = GRIGIO_NUMERO;
    cella.changeStyle().editable = false;
}

QColor coloreStato(const platform::ReportRecord& record) {
    const bool iniziato = !record.cell(INIZIO).tag.isEmpty();
    const bool finito = !record.cell(FINE).tag.isEmpty();
    if (iniziato) return finito ? FINITO : APERTO;
    return finito ? QColor() : DA_INIZIARE;
}

void avvisaDenti(platform::ReportRecord& record) {
    platform::ReportCell& cella = record.cell(DENTE);
    const ToothList teeth = denti(record);
    QStringList righe;
    if (teeth.isList() && !teeth.isEmpty())
        righe << QStringLiteral("Denti ") + teeth.entries().join(QStringLiteral(", "));
    const QString avviso = avvisoDenti(teeth, cella.value);
    if (!avviso.isEmpty()) righe << avviso;
    const Notice bene = righe.isEmpty() ? Notice::None : Notice::Note;
    cella.setNotice(avviso.isEmpty() ? bene : Notice::Error, righe.join(u'\n'));
}

void avvisaServizio(platform::ReportRecord& record) {
    platform::ReportCell& cella = record.cell(SERVIZIO);
    const bool ignoto = !cella.value.isEmpty() && CodiceServizio(cella.value).isEmpty();
    cella.setNotice(ignoto ? Notice::Warning : Notice::None,
                    ignoto ? QStringLiteral("Il servizio non è nel catalogo") : QString());
}

void avvisaScelte(platform::ReportRecord& record) {
    for (const Cella cella : {RAGGRUPPAMENTO, OPERATORE, ASSISTENTE}) {
        const bool ignota = !record.cell(cella).value.isEmpty() && record.cell(cella).tag.isEmpty();
        record.cell(cella).setNotice(ignota ? Notice::Error : Notice::None,
                                     ignota ? QStringLiteral("Non è nell'elenco: non verrà memorizzato") : QString());
    }
}

void avvisaData(platform::ReportCell& cella) {
    if (cella.value.isEmpty() || (cella.value == cella.tag && platform::regional().toDate(cella.tag)))
        return cella.setNotice(Notice::None);
    if (cella.value == cella.tag) return cella.setNotice(Notice::Error, QStringLiteral("Non è una data"));
    const QString resta = cella.tag.isEmpty() ? QStringLiteral("non verrà memorizzata")
                                              : QStringLiteral("resta memorizzato ") + cella.tag;
    cella.setNotice(Notice::Error, QStringLiteral("Non è una data: ") + resta);
}

void avvisaDate(platform::ReportRecord& record) {
    platform::ReportCell& fine = record.cell(FINE);
    avvisaData(record.cell(INIZIO));
    avvisaData(fine);
    const auto inizio = platform::regional().toDate(record.cell(INIZIO).tag);
    const auto termine = platform::regional().toDate(fine.tag);
    if (inizio && termine && *termine < *inizio && fine.style().notice == Notice::None)
        fine.setNotice(Notice::Warning, QStringLiteral("La fine è prima dell'inizio"));
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
    metteDenti(record, ToothList::fromRecord(rigo.dente, rigo.denti));
    record.cell(DENTE).changeStyle().button = true;
    record.cell(SERVIZIO).value = rigo.servizio;
    record.cell(SERVIZIO).tag = CodiceServizio(rigo.servizio);
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
    const ToothList teeth = denti(record);
    rigo.dente = teeth.dente();
    rigo.denti = teeth.denti();
    rigo.servizio = record.cell(SERVIZIO).value;
    rigo.descrizione = record.cell(DESCRIZIONE).value;
    rigo.inizio = record.cell(INIZIO).tag;
    rigo.fine = record.cell(FINE).tag;
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

QString avvisoDenti(const ToothList& denti, const QString& scritto) {
    if (denti.isEmpty()) return scritto.isEmpty() ? QString() : QStringLiteral("Non è un dente: non verrà memorizzato");
    QStringList ignoti = denti.unknown();
    if (ignoti.isEmpty()) return {};
    ignoti.removeAll(QString());
    const QString quali = ignoti.isEmpty() ? QStringLiteral("una voce") : ignoti.join(QStringLiteral(", "));
    return QStringLiteral("Non è un dente e non verrà memorizzato: ") + quali;
}

RigoGrafico perIlDisegno(const platform::ReportRecord& record) {
    return {denti(record), record.cell(SERVIZIO).value, record.cell(DESCRIZIONE).value, record.cell(INIZIO).tag,
            record.cell(FINE).tag};
}

ToothList denti(const platform::ReportRecord& record) {
    const platform::ReportCell& cella = record.cell(DENTE);
    if (cella.value == PARECCHI) return ToothList::fromSelection(cella.value + cella.tag);
    return IndiceDaDente(cella.value) < 0 ? ToothList() : ToothList({cella.value});
}

void metteDenti(platform::ReportRecord& record, const ToothList& denti) {
    platform::ReportCell& cella = record.cell(DENTE);
    cella.value = denti.isList() ? QString(PARECCHI) : denti.listText();
    cella.tag = denti.isList() ? denti.listText() : QString();
}

void leggiDenti(platform::ReportRecord& record) {
    platform::ReportCell& cella = record.cell(DENTE);
    if (cella.value.trimmed() == PARECCHI) { // the list behind it is the same
        cella.value = PARECCHI;
        return;
    }
    if (const auto letti = ToothList::fromTyped(cella.value))
        metteDenti(record, *letti);
    else
        cella.tag.clear();
}

void leggiData(platform::ReportRecord& record, int cella) {
    platform::ReportCell& data = record.cell(cella);
    const auto letta = platform::regional().typedDate(data.value);
    if (!letta && !data.value.trimmed().isEmpty()) return;
    data.value = data.tag = letta ? platform::regional().shortDate(*letta) : QString();
}

void aggiorna(const clsItemRigoTrattamento& rigo, platform::ReportRecord& record) {
    const clsItemRigoTrattamento prima = leggi(record, 0);
    const auto scritto = [&record](int cella) { return record.cell(cella).value; };
    const QString dente = scritto(DENTE);
    const QString inizio = scritto(INIZIO);
    const QString fine = scritto(FINE);
    mostra(rigo, record);
    if (rigo.dente.isEmpty() && prima.dente.isEmpty()) record.cell(DENTE).value = dente;
    if (rigo.inizio == prima.inizio) record.cell(INIZIO).value = inizio;
    if (rigo.fine == prima.fine) record.cell(FINE).value = fine;
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
    avvisaDenti(record);
    avvisaServizio(record);
    avvisaDate(record);
    avvisaScelte(record);
}

} // namespace rigogriglia
