#include "treatments/GridRow.h"

#include "catalogues/modRaggrMerc.h"
#include "catalogues/modServizi.h"
#include "chart/modDenti.h"
#include "platform/Regional.h"
#include "platform/ReportColumn.h"
#include "platform/ReportRecord.h"
#include "store/modUtenti.h"

#include <QColor>

using platform::Notice;

namespace gridrow {

namespace {

const QColor TO_START(255, 127, 127);
const QColor OPEN(255, 233, 127);
const QColor FINISHED(165, 255, 127);
const QColor NUMBER_GREY(192, 192, 192);
const QLatin1String SEVERAL("+");

void setNumber(platform::ReportRecord& record, const QString& number) {
    platform::ReportCell& cell = record.cell(NUMBER);
    cell.value = number;
    cell.changeStyle().background = NUMBER_GREY;
    cell.changeStyle().editable = false;
}

QColor stateColour(const platform::ReportRecord& record) {
    const bool isStarted = !record.cell(START).tag.isEmpty();
    const bool isFinished = !record.cell(END).tag.isEmpty();
    if (isStarted) return isFinished ? FINISHED : OPEN;
    return isFinished ? QColor() : TO_START;
}

void noticeTeeth(platform::ReportRecord& record) {
    platform::ReportCell& cell = record.cell(TOOTH);
    const ToothList teeth = teethOf(record);
    QStringList rows;
    if (teeth.isList() && !teeth.isEmpty())
        rows << QStringLiteral("Denti ") + teeth.entries().join(QStringLiteral(", "));
    const QString notice = teethNotice(teeth, cell.value);
    if (!notice.isEmpty()) rows << notice;
    const Notice otherwise = rows.isEmpty() ? Notice::None : Notice::Note;
    cell.setNotice(notice.isEmpty() ? otherwise : Notice::Error, rows.join(u'\n'));
}

void noticeService(platform::ReportRecord& record) {
    platform::ReportCell& cell = record.cell(SERVICE);
    const bool isUnknown = !cell.value.isEmpty() && serviceCode(cell.value).isEmpty();
    cell.setNotice(isUnknown ? Notice::Warning : Notice::None,
                   isUnknown ? QStringLiteral("Il servizio non è nel catalogo") : QString());
}

void noticeChoices(platform::ReportRecord& record) {
    for (const Cell cell : {GROUP, OPERATOR, ASSISTANT}) {
        const bool isUnknown = !record.cell(cell).value.isEmpty() && record.cell(cell).tag.isEmpty();
        record.cell(cell).setNotice(isUnknown ? Notice::Error : Notice::None,
                                    isUnknown ? QStringLiteral("Non è nell'elenco: non verrà memorizzato") : QString());
    }
}

void noticeDate(platform::ReportCell& cell) {
    if (cell.value.isEmpty() || (cell.value == cell.tag && platform::regional().toDate(cell.tag)))
        return cell.setNotice(Notice::None);
    if (cell.value == cell.tag) return cell.setNotice(Notice::Error, QStringLiteral("Non è una data"));
    const QString stays =
        cell.tag.isEmpty() ? QStringLiteral("non verrà memorizzata") : QStringLiteral("resta memorizzato ") + cell.tag;
    cell.setNotice(Notice::Error, QStringLiteral("Non è una data: ") + stays);
}

void noticeDates(platform::ReportRecord& record) {
    platform::ReportCell& endCell = record.cell(END);
    noticeDate(record.cell(START));
    noticeDate(endCell);
    const auto started = platform::regional().toDate(record.cell(START).tag);
    const auto ended = platform::regional().toDate(endCell.tag);
    if (started && ended && *ended < *started && endCell.style().notice == Notice::None)
        endCell.setNotice(Notice::Warning, QStringLiteral("La fine è prima dell'inizio"));
}

} // namespace

QList<platform::ReportColumn> columns() {
    struct Description {
        QString caption;
        int width;
        bool resizable;
    };
    const QList<Description> descriptions{
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
    QList<platform::ReportColumn> columns;
    for (const Description& description : descriptions) {
        platform::ReportColumn column;
        column.caption = description.caption;
        column.width = description.width;
        column.resizable = description.resizable;
        column.sortable = false; // the order of the rows is the user's own
        if (columns.size() == OPERATOR || columns.size() == ASSISTANT)
            column.sample = QStringLiteral("Bianchi dott. Giovanni");
        if (columns.size() == START || columns.size() == END)
            column.sample = QStringLiteral("00/00/0000"); // in bold on the rows of the tooth that was clicked
        columns << column;
    }
    return columns;
}

QString rowNumber(int position) {
    return platform::regional().format(position, QStringLiteral("00"));
}

void fillRecord(const clsItemRigoTrattamento& row, platform::ReportRecord& record) {
    while (record.cellCount() < CELL_COUNT)
        record.addCell();
    setNumber(record, row.progressivo);
    setTeeth(record, ToothList::fromRecord(row.dente, row.denti));
    record.cell(TOOTH).changeStyle().button = true;
    record.cell(SERVICE).value = row.servizio;
    record.cell(SERVICE).tag = serviceCode(row.servizio);
    record.cell(DESCRIPTION).value = row.descrizione;
    record.cell(START).value = record.cell(START).tag = row.inizio;
    record.cell(END).value = record.cell(END).tag = row.fine;
    record.cell(GROUP).value = DescrizioneRaggrMerc(row.raggruppamento);
    record.cell(GROUP).tag = row.raggruppamento;
    record.cell(OPERATOR).value = DescrizioneUtente(row.operatore);
    record.cell(OPERATOR).tag = row.operatore;
    record.cell(ASSISTANT).value = DescrizioneUtente(row.assistente);
    record.cell(ASSISTANT).tag = row.assistente;
    record.cell(INVOICE).value = row.fattura;
    record.cell(INVOICE).tag = row.prezzo.text();
    record.cell(NOTES).value = row.note;
    record.cell(NOTES).tag = row.statuslavori;
    record.cell(OUTSIDE_ESTIMATE).setCheckBox(row.fuoripreventivo);
}

clsItemRigoTrattamento readRecord(const platform::ReportRecord& record, int position) {
    clsItemRigoTrattamento row;
    row.progressivo = rowNumber(position);
    const ToothList teeth = teethOf(record);
    row.dente = teeth.tooth();
    row.denti = teeth.toothList();
    row.servizio = record.cell(SERVICE).value;
    row.descrizione = record.cell(DESCRIPTION).value;
    row.inizio = record.cell(START).tag;
    row.fine = record.cell(END).tag;
    row.operatore = record.cell(OPERATOR).tag;
    row.assistente = record.cell(ASSISTANT).tag;
    row.raggruppamento = record.cell(GROUP).tag;
    row.note = record.cell(NOTES).value;
    row.fuoripreventivo = record.cell(OUTSIDE_ESTIMATE).isChecked();
    row.fattura = record.cell(INVOICE).value;
    row.prezzo = Amount::fromText(record.cell(INVOICE).tag);
    row.statuslavori = record.cell(NOTES).tag;
    return row;
}

QString teethNotice(const ToothList& teeth, const QString& written) {
    if (teeth.isEmpty()) return written.isEmpty() ? QString() : QStringLiteral("Non è un dente: non verrà memorizzato");
    QStringList unknown = teeth.unknown();
    if (unknown.isEmpty()) return {};
    unknown.removeAll(QString());
    const QString which = unknown.isEmpty() ? QStringLiteral("una voce") : unknown.join(QStringLiteral(", "));
    return QStringLiteral("Non è un dente e non verrà memorizzato: ") + which;
}

ChartRow forChart(const platform::ReportRecord& record) {
    return {teethOf(record), record.cell(SERVICE).value, record.cell(DESCRIPTION).value, record.cell(START).tag,
            record.cell(END).tag};
}

ToothList teethOf(const platform::ReportRecord& record) {
    const platform::ReportCell& cell = record.cell(TOOTH);
    if (cell.value == SEVERAL) return ToothList::fromSelection(cell.value + cell.tag);
    return IndiceDaDente(cell.value) < 0 ? ToothList() : ToothList({cell.value});
}

void setTeeth(platform::ReportRecord& record, const ToothList& teeth) {
    platform::ReportCell& cell = record.cell(TOOTH);
    cell.value = teeth.isList() ? QString(SEVERAL) : teeth.listText();
    cell.tag = teeth.isList() ? teeth.listText() : QString();
}

void readTeeth(platform::ReportRecord& record) {
    platform::ReportCell& cell = record.cell(TOOTH);
    if (cell.value.trimmed() == SEVERAL) { // the list behind it is the same
        cell.value = SEVERAL;
        return;
    }
    if (const auto read = ToothList::fromTyped(cell.value))
        setTeeth(record, *read);
    else
        cell.tag.clear();
}

void readDate(platform::ReportRecord& record, int cell) {
    platform::ReportCell& data = record.cell(cell);
    const auto loaded = platform::regional().typedDate(data.value);
    if (!loaded && !data.value.trimmed().isEmpty()) return;
    data.value = data.tag = loaded ? platform::regional().shortDate(*loaded) : QString();
}

void setRows(const clsItemRigoTrattamento& row, platform::ReportRecord& record) {
    const clsItemRigoTrattamento before = readRecord(record, 0);
    const auto written = [&record](int cell) { return record.cell(cell).value; };
    const QString tooth = written(TOOTH);
    const QString started = written(START);
    const QString endCell = written(END);
    fillRecord(row, record);
    if (row.dente.isEmpty() && before.dente.isEmpty()) record.cell(TOOTH).value = tooth;
    if (row.inizio == before.inizio) record.cell(START).value = started;
    if (row.fine == before.fine) record.cell(END).value = endCell;
}

void paintRow(platform::ReportRecord& record) {
    const QColor state = stateColour(record);
    record.cell(START).setBackground(state);
    record.cell(END).setBackground(state);
    const QString& service = record.cell(SERVICE).value;
    QString shortText;
    if (!service.isEmpty()) record.cell(DESCRIPTION).setBold(ServizioInEvidenza(service, shortText));
    const bool outsideEstimate = record.cell(OUTSIDE_ESTIMATE).isChecked();
    record.cell(DESCRIPTION).setBackground(outsideEstimate ? TO_START : record.cell(SERVICE).style().background);
    noticeTeeth(record);
    noticeService(record);
    noticeDates(record);
    noticeChoices(record);
}

} // namespace gridrow
