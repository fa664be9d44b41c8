#include "treatments/TreatmentMemo.h"

#include "catalogues/modServizi.h"
#include "documents/MemoText.h"
#include "platform/Regional.h"
#include "platform/SingleByteText.h"
#include "treatments/clsItemTrattamento.h"

#include <QStringList>
#include <utility>

namespace {

using platform::XmlElement;

const char* const ROOT = "trattamento";
const QString UNREADABLE = QStringLiteral("il testo registrato del piano non si può leggere");

// ------------------------------------------------------------------------------------------------------------- writing

void writeRow(QString& memo, const clsItemRigoTrattamento& row) {
    memo += QLatin1String("\t\t<rigo ");
    memo::appendAttribute(memo, QLatin1String("progressivo"), row.progressivo);
    memo::appendAttribute(memo, QLatin1String("denti"), row.dente + row.denti);
    memo::appendAttribute(memo, QLatin1String("servizio"), row.servizio);
    memo::appendEncoded(memo, QLatin1String("descrizione"), row.descrizione);
    memo::appendAttribute(memo, QLatin1String("ragruppamento"),
                          row.raggruppamento); // one g: stored plans are read by this name
    memo::appendAttribute(memo, QLatin1String("operatore"), row.operatore);
    memo::appendAttribute(memo, QLatin1String("assistente"), row.assistente);
    memo::appendAttribute(memo, QLatin1String("inizioLavori"), row.inizio);
    memo::appendAttribute(memo, QLatin1String("fineLavori"), row.fine);
    memo::appendEncoded(memo, QLatin1String("statusLavori"), row.statuslavori);
    memo::appendAttribute(memo, QLatin1String("fattura"), row.fattura);
    memo::appendAttribute(memo, QLatin1String("prezzo"), row.prezzo.text());
    memo::appendAttribute(memo, QLatin1String("fuoriPreventivo"),
                          row.fuoripreventivo ? QStringLiteral("1") : QStringLiteral("0"));
    memo::appendEncoded(memo, QLatin1String("note"), row.note);
    memo += QLatin1String("/>") + memo::LINE_END;
}

void writeOpening(QString& memo, const clsItemTrattamento& item) {
    memo::appendDeclaration(memo);
    memo += QLatin1String("<trattamento ");
    memo::appendAttribute(memo, QLatin1String("anno"), item.anno);
    memo::appendAttribute(memo, QLatin1String("progressivo"), item.progressivo);
    memo::appendAttribute(memo, QLatin1String("data"), item.Data);
    memo::appendAttribute(memo, QLatin1String("fatturaAnticipo"), item.fatturaAnticipo);
    memo += QLatin1Char('>') + memo::LINE_END;
}

// ------------------------------------------------------------------------------------------------------------- reading

void readOpening(clsItemTrattamento& item, const XmlElement& treatment) {
    item.anno = treatment.attribute("anno", item.anno);
    item.progressivo = treatment.attribute("progressivo", item.progressivo);
    // A text that is no date would leave the plan on the day of its next save.
    const QString data = treatment.attribute("data", item.Data);
    if (platform::regional().toDate(data) || !platform::regional().toDate(item.Data)) item.Data = data;
    item.fatturaAnticipo = treatment.attribute("fatturaAnticipo", QString()); // absent in older memos
}

void readTeeth(clsItemRigoTrattamento& row, const QString& teethAttribute) {
    if (teethAttribute.startsWith(u'+')) {
        row.dente = QStringLiteral("+");
        row.denti = teethAttribute.mid(1);
    } else {
        row.dente = teethAttribute;
    }
}

// A free row that has no invoice takes the catalogue's present price at each load, on purpose; an invoiced one keeps
// its 0.
Amount readPrice(const clsItemRigoTrattamento& row, const std::optional<QString>& text) {
    if (!text) return PrezzoServizio(row.servizio);
    const Amount price = Amount::fromText(*text);
    return price.wide() == 0.0 && row.fattura.isEmpty() ? PrezzoServizio(row.servizio) : price;
}

// The spelling with one s less was written by older versions.
QString readAssistant(platform::XmlAttributes& attributes, const QString& before) {
    const QString assistant = attributes.text("assistente", before);
    return assistant.isNull() ? attributes.text("assitente", before) : assistant;
}

// In the order in which the attributes are written; people, dates and groups are mostly those of the row before.
clsItemRigoTrattamento readRow(const clsItemTrattamento& item, const XmlElement& node,
                               const clsItemRigoTrattamento& before) {
    platform::XmlAttributes attributes(node);
    clsItemRigoTrattamento row;
    row.kanno = item.anno;
    row.kprogressivo = item.progressivo;
    row.progressivo = attributes.text("progressivo");
    readTeeth(row, attributes.text("denti"));
    row.servizio = attributes.text("servizio", before.servizio);
    row.descrizione = platform::fromBase64(attributes.bytes("descrizione"));
    row.raggruppamento = attributes.text("ragruppamento", before.raggruppamento);
    row.operatore = attributes.text("operatore", before.operatore);
    row.assistente = readAssistant(attributes, before.assistente);
    row.inizio = attributes.text("inizioLavori", before.inizio);
    row.fine = attributes.text("fineLavori", before.fine);
    row.statuslavori = platform::fromBase64(attributes.bytes("statusLavori"));
    row.fattura = attributes.text("fattura", before.fattura);
    row.prezzo = readPrice(row, attributes.find("prezzo"));
    row.fuoripreventivo = attributes.bytes("fuoriPreventivo") == "1";
    row.note = platform::fromBase64(attributes.bytes("note"));
    return row;
}

void count(clsItemTrattamento& item, bool isStarted, bool isFinished) {
    ++item.lavori;
    if (isFinished)
        ++item.lavorifiniti;
    else if (isStarted)
        ++item.lavoriaperti;
}

/// Hands each row on, in the order of the document, and counts it.
template <class Add>
void readRows(clsItemTrattamento& item, const XmlElement& rows, Add add) {
    constexpr std::size_t USUAL_ROWS = 16;
    item.righi.reserve(USUAL_ROWS); // one step of growth for nearly every plan
    const clsItemRigoTrattamento none;
    for (XmlElement node = rows.firstChild("rigo"); node; node = node.nextSibling("rigo")) {
        clsItemRigoTrattamento row = readRow(item, node, item.righi.empty() ? none : item.righi.back());
        const bool isStarted = !row.inizio.isEmpty();
        const bool isFinished = !row.fine.isEmpty();
        add(row.progressivo.trimmed(), std::move(row));
        count(item, isStarted, isFinished);
    }
}

/// A key that no row has, for a row whose number another one bears.
QString freeKey(const clsItemTrattamento& item, const QString& number) {
    for (int other = 2;; ++other) {
        const QString key = QStringLiteral("%1 (%2)").arg(number).arg(other);
        if (!item.righi.contains(key)) return key;
    }
}

// All but the rows.
void readHead(clsItemTrattamento& item, const XmlElement& treatment) {
    readOpening(item, treatment);
    memo::readPerson(treatment.firstChild("paziente"), item.cliente, item.descrizionecliente);
    memo::readPerson(treatment.firstChild("medico"), item.medico, item.descrizionemedico);
    memo::readText(treatment.firstChild("descrizione"), item.descrizione);
    memo::readText(treatment.firstChild("annotazioni"), item.Annotazioni);
    memo::readText(treatment.firstChild("situazioneOrale"), item.SituazioneOrale);
    if (item.descrizione.isEmpty()) item.descrizione = memo::rowDescriptions(treatment.firstChild("righi"));
    item.lavori = item.lavoriaperti = item.lavorifiniti = 0;
    item.righi.clear();
}

} // namespace

QString writeTreatmentMemo(const clsItemTrattamento& item) {
    QString memo;
    memo.reserve(1024 + static_cast<qsizetype>(item.righi.size()) * 512);
    writeOpening(memo, item);
    memo::appendPerson(memo, QLatin1String("paziente"), item.cliente, item.descrizionecliente);
    memo::appendPerson(memo, QLatin1String("medico"), item.medico, item.descrizionemedico);
    memo += QLatin1String("\t<righi>") + memo::LINE_END;
    for (const clsItemRigoTrattamento& row : item.righi)
        writeRow(memo, row);
    memo += QLatin1String("\t</righi>") + memo::LINE_END;
    memo::appendText(memo, QLatin1String("descrizione"), item.descrizione);
    memo::appendText(memo, QLatin1String("annotazioni"), item.Annotazioni);
    memo::appendText(memo, QLatin1String("situazioneOrale"), item.SituazioneOrale);
    memo += QLatin1String("</trattamento>");
    return memo;
}

void readTreatmentMemo(clsItemTrattamento& item, const QString& memo) {
    const platform::XmlReading reading(memo);
    const XmlElement treatment = memo::root(reading, ROOT);
    item.fault = treatment ? QString() : UNREADABLE;
    if (!treatment) return;
    readHead(item, treatment);
    readRows(item, treatment.firstChild("righi"),
             [&item](const QString& number, clsItemRigoTrattamento&& row) { item.righi.add(number, std::move(row)); });
}

void salvageMemo(clsItemTrattamento& item, const QString& memo) {
    const platform::XmlReading reading(memo);
    const XmlElement treatment = memo::root(reading, ROOT);
    item.fault = treatment ? QString() : UNREADABLE;
    if (!treatment) return;
    readHead(item, treatment);
    QStringList doubled;
    readRows(item, treatment.firstChild("righi"), [&](const QString& number, clsItemRigoTrattamento&& row) {
        const bool taken = item.righi.contains(number);
        if (taken && !doubled.contains(number)) doubled << number;
        item.righi.add(taken ? freeKey(item, number) : number, std::move(row));
    });
    if (!doubled.isEmpty())
        item.fault = QStringLiteral("più righi portano lo stesso numero: ") + doubled.join(QLatin1String(", "));
}

void readMemoForList(clsItemTrattamento& item, const QString& memo) {
    const platform::XmlReading reading(memo);
    const XmlElement treatment = memo::root(reading, ROOT);
    if (!treatment) return;
    readHead(item, treatment);
    const XmlElement rows = treatment.firstChild("righi");
    for (XmlElement node = rows.firstChild("rigo"); node; node = node.nextSibling("rigo"))
        count(item, !node.attributeBytes("inizioLavori").isEmpty(), !node.attributeBytes("fineLavori").isEmpty());
}
