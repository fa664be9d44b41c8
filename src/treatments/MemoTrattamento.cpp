#include "treatments/MemoTrattamento.h"

#include "catalogues/modServizi.h"
#include "documents/MemoText.h"
#include "platform/Regional.h"
#include "platform/SingleByteText.h"
#include "store/modConversioni.h"
#include "treatments/clsItemTrattamento.h"

#include <QStringList>
#include <utility>

namespace {

using platform::XmlNode;

const QLatin1String ROOT("trattamento");
const QString UNREADABLE = QStringLiteral("il testo registrato del piano non si può leggere");

// ------------------------------------------------------------------------------------------------------------- writing

void scriviRigo(QString& memo, const clsItemRigoTrattamento& rigo) {
    memo += QLatin1String("\t\t<rigo ");
    memo::appendAttribute(memo, QLatin1String("progressivo"), rigo.progressivo);
    memo::appendAttribute(memo, QLatin1String("denti"), rigo.dente + rigo.denti);
    memo::appendAttribute(memo, QLatin1String("servizio"), rigo.servizio);
    memo::appendEncoded(memo, QLatin1String("descrizione"), rigo.descrizione);
    memo::appendAttribute(memo, QLatin1String("ragruppamento"),
                          rigo.raggruppamento); // one g: stored plans are read by this name
    memo::appendAttribute(memo, QLatin1String("operatore"), rigo.operatore);
    memo::appendAttribute(memo, QLatin1String("assistente"), rigo.assistente);
    memo::appendAttribute(memo, QLatin1String("inizioLavori"), rigo.inizio);
    memo::appendAttribute(memo, QLatin1String("fineLavori"), rigo.fine);
    memo::appendEncoded(memo, QLatin1String("statusLavori"), rigo.statuslavori);
    memo::appendAttribute(memo, QLatin1String("fattura"), rigo.fattura);
    memo::appendAttribute(memo, QLatin1String("prezzo"),
                          platform::regional().format(rigo.prezzo, QStringLiteral("###0.00")));
    memo::appendAttribute(memo, QLatin1String("fuoriPreventivo"),
                          rigo.fuoripreventivo ? QStringLiteral("1") : QStringLiteral("0"));
    memo::appendEncoded(memo, QLatin1String("note"), rigo.note);
    memo += QLatin1String("/>") + memo::LINE_END;
}

void scriviApertura(QString& memo, const clsItemTrattamento& item) {
    memo::appendDeclaration(memo);
    memo += QLatin1String("<trattamento ");
    memo::appendAttribute(memo, QLatin1String("anno"), item.anno);
    memo::appendAttribute(memo, QLatin1String("progressivo"), item.progressivo);
    memo::appendAttribute(memo, QLatin1String("data"), item.Data);
    memo::appendAttribute(memo, QLatin1String("fatturaAnticipo"), item.fatturaAnticipo);
    memo += QLatin1Char('>') + memo::LINE_END;
}

// ------------------------------------------------------------------------------------------------------------- reading

void leggiApertura(clsItemTrattamento& item, const XmlNode& trattamento) {
    item.anno = trattamento.attribute("anno", item.anno);
    item.progressivo = trattamento.attribute("progressivo", item.progressivo);
    // A text that is no date would leave the plan on the day of its next save.
    const QString data = trattamento.attribute("data", item.Data);
    if (platform::regional().toDate(data) || !platform::regional().toDate(item.Data)) item.Data = data;
    item.fatturaAnticipo = trattamento.attribute("fatturaAnticipo", QString()); // absent in older memos
}

void leggiDenti(clsItemRigoTrattamento& rigo, const QString& attributoDenti) {
    if (attributoDenti.startsWith(u'+')) {
        rigo.dente = QStringLiteral("+");
        rigo.denti = attributoDenti.mid(1);
    } else {
        rigo.dente = attributoDenti;
    }
}

// A free row that has no invoice takes the catalogue's present price at each load, on purpose; an invoiced one keeps
// its 0.
float leggiPrezzo(const clsItemRigoTrattamento& rigo, const std::optional<QString>& testo) {
    if (!testo) return PrezzoServizio(rigo.servizio);
    const float prezzo = CastSingle(*testo);
    return prezzo == 0.0F && rigo.fattura.isEmpty() ? PrezzoServizio(rigo.servizio) : prezzo;
}

// The spelling with one s less was written by older versions.
QString leggiAssistente(platform::XmlAttributes& attributi, const QString& prima) {
    const QString assistente = attributi.text("assistente", prima);
    return assistente.isNull() ? attributi.text("assitente", prima) : assistente;
}

// In the order in which the attributes are written; people, dates and groups are mostly those of the row before.
clsItemRigoTrattamento leggiRigo(const clsItemTrattamento& item, const XmlNode& nodo,
                                 const clsItemRigoTrattamento& prima) {
    platform::XmlAttributes attributi(nodo);
    clsItemRigoTrattamento rigo;
    rigo.kanno = item.anno;
    rigo.kprogressivo = item.progressivo;
    rigo.progressivo = attributi.text("progressivo");
    leggiDenti(rigo, attributi.text("denti"));
    rigo.servizio = attributi.text("servizio", prima.servizio);
    rigo.descrizione = platform::fromBase64(attributi.bytes("descrizione"));
    rigo.raggruppamento = attributi.text("ragruppamento", prima.raggruppamento);
    rigo.operatore = attributi.text("operatore", prima.operatore);
    rigo.assistente = leggiAssistente(attributi, prima.assistente);
    rigo.inizio = attributi.text("inizioLavori", prima.inizio);
    rigo.fine = attributi.text("fineLavori", prima.fine);
    rigo.statuslavori = platform::fromBase64(attributi.bytes("statusLavori"));
    rigo.fattura = attributi.text("fattura", prima.fattura);
    rigo.prezzo = leggiPrezzo(rigo, attributi.find("prezzo"));
    rigo.fuoripreventivo = attributi.bytes("fuoriPreventivo") == "1";
    rigo.note = platform::fromBase64(attributi.bytes("note"));
    return rigo;
}

void conta(clsItemTrattamento& item, bool iniziato, bool finito) {
    ++item.lavori;
    if (finito)
        ++item.lavorifiniti;
    else if (iniziato)
        ++item.lavoriaperti;
}

/// Hands each row on, in the order of the document, and counts it.
template <class Add>
void leggiRighi(clsItemTrattamento& item, const XmlNode& righi, Add add) {
    constexpr std::size_t SOLITI = 16;
    item.righi.reserve(SOLITI); // one step of growth for nearly every plan
    const clsItemRigoTrattamento nessuno;
    for (XmlNode nodo = righi.firstChild("rigo"); nodo; nodo = nodo.nextSibling("rigo")) {
        clsItemRigoTrattamento rigo = leggiRigo(item, nodo, item.righi.empty() ? nessuno : item.righi.back());
        const bool iniziato = !rigo.inizio.isEmpty();
        const bool finito = !rigo.fine.isEmpty();
        add(rigo.progressivo.trimmed(), std::move(rigo));
        conta(item, iniziato, finito);
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
void leggiTesta(clsItemTrattamento& item, const XmlNode& trattamento) {
    leggiApertura(item, trattamento);
    memo::readPerson(trattamento.firstChild("paziente"), item.cliente, item.descrizionecliente);
    memo::readPerson(trattamento.firstChild("medico"), item.medico, item.descrizionemedico);
    memo::readText(trattamento.firstChild("descrizione"), item.descrizione);
    memo::readText(trattamento.firstChild("annotazioni"), item.Annotazioni);
    memo::readText(trattamento.firstChild("situazioneOrale"), item.SituazioneOrale);
    if (item.descrizione.isEmpty()) item.descrizione = memo::rowDescriptions(trattamento.firstChild("righi"));
    item.lavori = item.lavoriaperti = item.lavorifiniti = 0;
    item.righi.clear();
}

} // namespace

QString scriviMemoTrattamento(const clsItemTrattamento& item) {
    QString memo;
    memo.reserve(1024 + static_cast<qsizetype>(item.righi.size()) * 512);
    scriviApertura(memo, item);
    memo::appendPerson(memo, QLatin1String("paziente"), item.cliente, item.descrizionecliente);
    memo::appendPerson(memo, QLatin1String("medico"), item.medico, item.descrizionemedico);
    memo += QLatin1String("\t<righi>") + memo::LINE_END;
    for (const clsItemRigoTrattamento& rigo : item.righi)
        scriviRigo(memo, rigo);
    memo += QLatin1String("\t</righi>") + memo::LINE_END;
    memo::appendText(memo, QLatin1String("descrizione"), item.descrizione);
    memo::appendText(memo, QLatin1String("annotazioni"), item.Annotazioni);
    memo::appendText(memo, QLatin1String("situazioneOrale"), item.SituazioneOrale);
    memo += QLatin1String("</trattamento>");
    return memo;
}

void leggiMemoTrattamento(clsItemTrattamento& item, const QString& memo) {
    platform::XmlDocument documento;
    const XmlNode trattamento = memo::root(documento, memo, ROOT);
    item.guasto = trattamento ? QString() : UNREADABLE;
    if (!trattamento) return;
    leggiTesta(item, trattamento);
    leggiRighi(item, trattamento.firstChild("righi"), [&item](const QString& number, clsItemRigoTrattamento&& rigo) {
        item.righi.add(number, std::move(rigo));
    });
}

void salvageMemo(clsItemTrattamento& item, const QString& memo) {
    platform::XmlDocument documento;
    const XmlNode trattamento = memo::root(documento, memo, ROOT);
    item.guasto = trattamento ? QString() : UNREADABLE;
    if (!trattamento) return;
    leggiTesta(item, trattamento);
    QStringList doubled;
    leggiRighi(item, trattamento.firstChild("righi"), [&](const QString& number, clsItemRigoTrattamento&& rigo) {
        const bool taken = item.righi.contains(number);
        if (taken && !doubled.contains(number)) doubled << number;
        item.righi.add(taken ? freeKey(item, number) : number, std::move(rigo));
    });
    if (!doubled.isEmpty())
        item.guasto = QStringLiteral("più righi portano lo stesso numero: ") + doubled.join(QLatin1String(", "));
}

void leggiMemoPerElenco(clsItemTrattamento& item, const QString& memo) {
    platform::XmlDocument documento;
    const XmlNode trattamento = memo::root(documento, memo, ROOT);
    if (!trattamento) return;
    leggiTesta(item, trattamento);
    const XmlNode righi = trattamento.firstChild("righi");
    for (XmlNode nodo = righi.firstChild("rigo"); nodo; nodo = nodo.nextSibling("rigo"))
        conta(item, !nodo.attributeBytes("inizioLavori").isEmpty(), !nodo.attributeBytes("fineLavori").isEmpty());
}
