#include "treatments/GridRow.h"

#include "catalogues/modRaggrMerc.h"
#include "catalogues/modServizi.h"
#include "config/clsItemRaggMerc.h"
#include "documents/CellNotice.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Collection.h"
#include "platform/Regional.h"
#include "store/modUtenti.h"

#include <QColor>

using platform::Notice;
using platform::ReportCell;

namespace {

QString nameOf(const QString& taxCode, PeopleNames& names) {
    if (taxCode.isEmpty()) return {};
    auto name = names.find(taxCode);
    if (name == names.end()) name = names.insert(taxCode, DescrizioneUtente(taxCode));
    return *name;
}

} // namespace

PlanRow::PlanRow(const clsItemRigoTrattamento& stored, PeopleNames& names)
    : clsItemRigoTrattamento(stored)
    , operatorName(nameOf(stored.operatore, names))
    , assistantName(nameOf(stored.assistente, names))
    , applied(serviceCode(stored.servizio)) {
    setTeeth(ToothList::fromRecord(stored.dente, stored.denti));
}

void PlanRow::setTeeth(const ToothList& given) {
    teeth = given;
    dente = teeth.tooth();
    denti = teeth.toothList();
}

namespace gridrow {

namespace {

constexpr int DOCTOR_KIND = 0;
constexpr int ASSISTANT_KIND = 3;
const QColor TO_START(255, 127, 127);
const QColor OPEN(255, 233, 127);
const QColor FINISHED(165, 255, 127);
const QColor NUMBER_GREY(192, 192, 192);
const QLatin1String SEVERAL("+");
const QString DATE_SAMPLE = QStringLiteral("00/00/0000"); // in bold on the rows of the tooth that was clicked
const QString PERSON_SAMPLE = QStringLiteral("Bianchi dott. Giovanni");

// A field of the row that its cell shows as it is.
template <auto FIELD>
QString text(const PlanRow& row) {
    return row.*FIELD;
}

template <auto FIELD>
bool readText(PlanRow& row, const QString& typed) {
    row.*FIELD = typed;
    return true;
}

// The people and the groups are kept by code and shown by name.
template <auto FIELD, auto NAME>
bool readPerson(PlanRow& row, const QString& typed) {
    row.*FIELD = CodiceFiscaleUtente(typed);
    row.*NAME = (row.*FIELD).isEmpty() ? QString() : typed;
    return typed.isEmpty() || !(row.*FIELD).isEmpty();
}

QString groupText(const PlanRow& row) {
    return DescrizioneRaggrMerc(row.raggruppamento);
}

bool readGroup(PlanRow& row, const QString& typed) {
    row.raggruppamento = CodiceRaggrMerc(typed);
    return typed.isEmpty() || !row.raggruppamento.isEmpty();
}

CellNotice noticeOfName(const PlanRow&, const QString& unread) {
    return noticeOfChoice(unread);
}

void lookOfNumber(const PlanRow&, ReportCell& cell) {
    cell.changeStyle().background = NUMBER_GREY;
    cell.changeStyle().editable = false;
}

// ------------------------------------------------------------------------------------------------------- the teeth

QString toothText(const PlanRow& row) {
    return row.teeth.isList() ? QString(SEVERAL) : row.teeth.listText();
}

QString toothTag(const PlanRow& row) {
    return row.teeth.isList() ? row.teeth.listText() : QString();
}

bool readTeeth(PlanRow& row, const QString& typed) {
    if (typed.trimmed() == SEVERAL && row.teeth.isList()) return true; // the list behind it is the same
    const auto teeth = ToothList::fromTyped(typed);
    row.setTeeth(teeth.value_or(ToothList()));
    return teeth.has_value();
}

CellNotice noticeOfTooth(const PlanRow& row, const QString& unread) {
    CellNotice notice = noticeOfTeeth(row.teeth, unread);
    if (!row.teeth.isList() || row.teeth.isEmpty()) return notice;
    const QString list = QStringLiteral("Denti ") + row.teeth.entries().join(QStringLiteral(", "));
    notice.text = notice.text.isEmpty() ? list : list + u'\n' + notice.text;
    if (notice.kind == Notice::None) notice.kind = Notice::Note;
    return notice;
}

// ------------------------------------------------------------------------------------------------------- the service

CellNotice noticeOfRowsService(const PlanRow& row, const QString&) {
    return noticeOfService(row.servizio);
}

void lookOfDescription(const PlanRow& row, ReportCell& cell) {
    QString shortText;
    if (ServizioInEvidenza(row.servizio, shortText)) cell.setBold(true);
    cell.setBackground(row.fuoripreventivo ? TO_START : QColor());
}

QString priceTag(const PlanRow& row) {
    return row.isPriced ? row.prezzo.text() : QString();
}

void lookOfOutside(const PlanRow& row, ReportCell& cell) {
    cell.setCheckBox(row.fuoripreventivo);
}

// --------------------------------------------------------------------------------------------------------- the dates

template <auto FIELD>
bool readDate(PlanRow& row, const QString& typed) {
    const auto date = platform::regional().typedDate(typed);
    if (!date && !typed.trimmed().isEmpty()) return false; // the former one stays stored
    row.*FIELD = date ? platform::regional().shortDate(*date) : QString();
    return true;
}

CellNotice noticeOfStart(const PlanRow& row, const QString& unread) {
    return noticeOfDate(row.inizio, unread);
}

CellNotice noticeOfEnd(const PlanRow& row, const QString& unread) {
    const CellNotice notice = noticeOfDate(row.fine, unread);
    if (notice.kind != Notice::None || row.inizio.isEmpty() || row.fine.isEmpty()) return notice;
    const auto started = platform::regional().toDate(row.inizio);
    const auto ended = platform::regional().toDate(row.fine);
    if (!started || !ended || *ended >= *started) return notice;
    return {Notice::Warning, QStringLiteral("La fine è prima dell'inizio")};
}

void lookOfDate(const PlanRow& row, ReportCell& cell) {
    if (row.inizio.isEmpty())
        cell.setBackground(row.fine.isEmpty() ? TO_START : QColor());
    else
        cell.setBackground(row.fine.isEmpty() ? OPEN : FINISHED);
}

// --------------------------------------------------------------------------------------------------------- the lists

// The first entry is empty, so that a choice can be taken back.
QStringList userNames(int kind) {
    QStringList names{QString()};
    for (const host::VoceUtente& user : usersToChooseFrom(kind))
        names << displayName(user);
    return names;
}

QStringList groupNames() {
    QStringList names{QString()};
    if (!colRaggMerc) return names;
    for (const clsItemRaggMerc& group : *colRaggMerc)
        names << group.descrizione;
    return names;
}

platform::ReportColumn head(const char16_t* caption, int width, const QString& sample = {}) {
    platform::ReportColumn head;
    head.caption = QString::fromUtf16(caption);
    head.width = width;
    head.sample = sample;
    return head;
}

platform::ReportColumn stretching(platform::ReportColumn head) {
    head.resizable = true;
    return head;
}

} // namespace

RowColumns<PlanRow> columns() {
    using Row = PlanRow;
    RowColumns<Row> table(CELL_COUNT);
    table[NUMBER] = {head(u"", 20), text<&Row::progressivo>, nullptr, nullptr, nullptr, lookOfNumber};
    table[TOOTH] = {head(u"Dente", 46), toothText, toothTag, readTeeth, noticeOfTooth, nullptr};
    table[TOOTH].hasButton = true;
    table[SERVICE] = {head(u"Servizio", 90),    text<&Row::servizio>, text<&Row::applied>,
                      readText<&Row::servizio>, noticeOfRowsService,  nullptr};
    table[DESCRIPTION] = {stretching(head(u"Descrizione", 244)),
                          text<&Row::descrizione>,
                          nullptr,
                          readText<&Row::descrizione>,
                          nullptr,
                          lookOfDescription};
    // "Inzio" is misspelt on purpose: the column is known by this name.
    table[START] = {head(u"Inzio", 64, DATE_SAMPLE), text<&Row::inizio>, text<&Row::inizio>,
                    readDate<&Row::inizio>,          noticeOfStart,      lookOfDate};
    table[END] = {head(u"Fine", 64, DATE_SAMPLE), text<&Row::fine>, text<&Row::fine>,
                  readDate<&Row::fine>,           noticeOfEnd,      lookOfDate};
    table[GROUP] = {head(u"Ragr.to", 100), groupText, text<&Row::raggruppamento>, readGroup, noticeOfName, nullptr,
                    groupNames()};
    table[OPERATOR] = {head(u"Operatore", 100, PERSON_SAMPLE),
                       text<&Row::operatorName>,
                       text<&Row::operatore>,
                       readPerson<&Row::operatore, &Row::operatorName>,
                       noticeOfName,
                       nullptr,
                       userNames(DOCTOR_KIND)};
    table[ASSISTANT] = {head(u"Assistente", 100, PERSON_SAMPLE),
                        text<&Row::assistantName>,
                        text<&Row::assistente>,
                        readPerson<&Row::assistente, &Row::assistantName>,
                        noticeOfName,
                        nullptr,
                        userNames(ASSISTANT_KIND)};
    table[INVOICE] = {head(u"Fattura", 100), text<&Row::fattura>, priceTag, readText<&Row::fattura>, nullptr, nullptr};
    table[NOTES] = {stretching(head(u"Note", 84)), text<&Row::note>, text<&Row::statuslavori>,
                    readText<&Row::note>,          nullptr,          nullptr};
    table[OUTSIDE_ESTIMATE].look = lookOfOutside;
    table[OUTSIDE_ESTIMATE].isBeyond = true;
    return table;
}

} // namespace gridrow
