#include "treatments/MemoTrattamento.h"

#include "catalogues/modServizi.h"
#include "platform/Regional.h"
#include "platform/SingleByteText.h"
#include "platform/XmlDocument.h"
#include "store/modConversioni.h"
#include "treatments/clsItemTrattamento.h"

#include <QStringList>
#include <exception>
#include <utility>

namespace {

using platform::XmlNode;

const QLatin1String FINE_RIGA("\r\n");

// ------------------------------------------------------------------------------------------------------------- writing

bool ammessoInXml(QChar c) {
    const char16_t u = c.unicode();
    return u >= 0x20 ? u < 0xFFFE : (u == '\t' || u == '\r' || u == '\n');
}

bool semplice(const QString& valore) {
    for (const QChar c : valore) {
        const char16_t u = c.unicode();
        if (u < 0x20 || u == '"' || u == '&' || u == '<' || u >= 0xD800) return false;
    }
    return true;
}

// Plain attributes are written as they are, and all the values that the fields normally hold come out unchanged. Only
// what would break the memo, and with it the whole plan, is escaped; a character that XML cannot carry at all is
// dropped.
void aggiungiProtetto(QString& memo, const QString& valore) {
    if (semplice(valore)) {
        memo += valore;
        return;
    }
    for (qsizetype i = 0; i < valore.size(); ++i) {
        const QChar c = valore.at(i);
        if (c.isSurrogate()) {
            const bool coppia = c.isHighSurrogate() && i + 1 < valore.size() && valore.at(i + 1).isLowSurrogate();
            if (coppia) memo.append(c).append(valore.at(++i));
        } else if (c == u'"') {
            memo += QLatin1String("&quot;");
        } else if (c == u'&') {
            memo += QLatin1String("&amp;");
        } else if (c == u'<') {
            memo += QLatin1String("&lt;");
        } else if (c == u'\t' || c == u'\r' || c == u'\n') {
            memo += QStringLiteral("&#%1;").arg(c.unicode());
        } else if (ammessoInXml(c)) {
            memo += c;
        }
    }
}

void scriviAttributo(QString& memo, QLatin1String nome, const QString& valore) {
    memo += nome;
    memo += QLatin1String("=\"");
    aggiungiProtetto(memo, valore);
    memo += QLatin1String("\" ");
}

void scriviPersona(QString& memo, QLatin1String elemento, const QString& codiceFiscale, const QString& nome) {
    memo += QLatin1String("\t<") + elemento + QLatin1String(" codiceFiscale=\"");
    aggiungiProtetto(memo, codiceFiscale);
    memo +=
        QLatin1String("\">") + platform::toBase64(nome) + QLatin1String("</") + elemento + QLatin1Char('>') + FINE_RIGA;
}

void scriviTesto(QString& memo, QLatin1String elemento, const QString& testo) {
    memo += QLatin1String("\t<") + elemento + QLatin1Char('>') + platform::toBase64(testo) + QLatin1String("</") +
            elemento + QLatin1Char('>') + FINE_RIGA;
}

void scriviRigo(QString& memo, const clsItemRigoTrattamento& rigo) {
    memo += QLatin1String("\t\t<rigo ");
    scriviAttributo(memo, QLatin1String("progressivo"), rigo.progressivo);
    scriviAttributo(memo, QLatin1String("denti"), rigo.dente + rigo.denti);
    scriviAttributo(memo, QLatin1String("servizio"), rigo.servizio);
    scriviAttributo(memo, QLatin1String("descrizione"), platform::toBase64(rigo.descrizione));
    scriviAttributo(memo, QLatin1String("ragruppamento"),
                    rigo.raggruppamento); // one g: stored plans are read by this name
    scriviAttributo(memo, QLatin1String("operatore"), rigo.operatore);
    scriviAttributo(memo, QLatin1String("assistente"), rigo.assistente);
    scriviAttributo(memo, QLatin1String("inizioLavori"), rigo.inizio);
    scriviAttributo(memo, QLatin1String("fineLavori"), rigo.fine);
    scriviAttributo(memo, QLatin1String("statusLavori"), platform::toBase64(rigo.statuslavori));
    scriviAttributo(memo, QLatin1String("fattura"), rigo.fattura);
    scriviAttributo(memo, QLatin1String("prezzo"), platform::regional().format(rigo.prezzo, QStringLiteral("###0.00")));
    scriviAttributo(memo, QLatin1String("fuoriPreventivo"),
                    rigo.fuoripreventivo ? QStringLiteral("1") : QStringLiteral("0"));
    scriviAttributo(memo, QLatin1String("note"), platform::toBase64(rigo.note));
    memo += QLatin1String("/>") + FINE_RIGA;
}

void scriviApertura(QString& memo, const clsItemTrattamento& item) {
    memo += QLatin1String("<?xml version=\"1.0\" encoding=\"utf-8\"?>") + FINE_RIGA + QLatin1String("<trattamento ");
    scriviAttributo(memo, QLatin1String("anno"), item.anno);
    scriviAttributo(memo, QLatin1String("progressivo"), item.progressivo);
    scriviAttributo(memo, QLatin1String("data"), item.Data);
    scriviAttributo(memo, QLatin1String("fatturaAnticipo"), item.fatturaAnticipo);
    memo += QLatin1Char('>') + FINE_RIGA;
}

// ------------------------------------------------------------------------------------------------------------- reading

QString attributo(const XmlNode& nodo, const char* nome) {
    return nodo.attribute(nome, QString());
}

void leggiApertura(clsItemTrattamento& item, const XmlNode& trattamento) {
    item.anno = trattamento.attribute("anno", item.anno);
    item.progressivo = trattamento.attribute("progressivo", item.progressivo);
    item.Data = trattamento.attribute("data", item.Data);
    item.fatturaAnticipo = attributo(trattamento, "fatturaAnticipo"); // absent in older memos
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

QString leggiAssistente(const XmlNode& nodo) {
    if (const auto assistente = nodo.attribute("assistente")) return *assistente;
    return attributo(nodo, "assitente"); // written so by older versions
}

clsItemRigoTrattamento leggiRigo(const clsItemTrattamento& item, const XmlNode& nodo) {
    clsItemRigoTrattamento rigo;
    rigo.kanno = item.anno;
    rigo.kprogressivo = item.progressivo;
    rigo.progressivo = attributo(nodo, "progressivo");
    leggiDenti(rigo, attributo(nodo, "denti"));
    rigo.servizio = attributo(nodo, "servizio");
    rigo.descrizione = platform::fromBase64(nodo.attributeBytes("descrizione"));
    rigo.raggruppamento = attributo(nodo, "ragruppamento");
    rigo.operatore = attributo(nodo, "operatore");
    rigo.assistente = leggiAssistente(nodo);
    rigo.inizio = attributo(nodo, "inizioLavori");
    rigo.fine = attributo(nodo, "fineLavori");
    rigo.statuslavori = platform::fromBase64(nodo.attributeBytes("statusLavori"));
    rigo.fattura = attributo(nodo, "fattura");
    rigo.prezzo = leggiPrezzo(rigo, nodo.attribute("prezzo"));
    rigo.fuoripreventivo = attributo(nodo, "fuoriPreventivo") == QLatin1String("1");
    rigo.note = platform::fromBase64(nodo.attributeBytes("note"));
    return rigo;
}

void conta(clsItemTrattamento& item, bool iniziato, bool finito) {
    ++item.lavori;
    if (finito)
        ++item.lavorifiniti;
    else if (iniziato)
        ++item.lavoriaperti;
}

// The row number that stands twice is told once all else is read.
std::exception_ptr leggiRighi(clsItemTrattamento& item, const XmlNode& righi) {
    constexpr std::size_t SOLITI = 16;
    item.righi.reserve(SOLITI); // one step of growth for nearly every plan
    for (XmlNode nodo = righi.firstChild("rigo"); nodo; nodo = nodo.nextSibling("rigo")) {
        clsItemRigoTrattamento rigo = leggiRigo(item, nodo);
        const QString chiave = rigo.progressivo.trimmed();
        const bool iniziato = !rigo.inizio.isEmpty();
        const bool finito = !rigo.fine.isEmpty();
        try {
            item.righi.add(chiave, std::move(rigo));
        } catch (const platform::DuplicateKey&) {
            return std::current_exception();
        }
        conta(item, iniziato, finito);
    }
    return nullptr;
}

QString descrizioniDeiRighi(const XmlNode& righi) {
    QStringList descrizioni;
    for (XmlNode nodo = righi.firstChild("rigo"); nodo; nodo = nodo.nextSibling("rigo")) {
        const QString descrizione = platform::fromBase64(nodo.attributeBytes("descrizione"));
        if (!descrizione.isEmpty()) descrizioni << descrizione;
    }
    return descrizioni.join(FINE_RIGA);
}

void leggiPersona(const XmlNode& nodo, QString& codiceFiscale, QString& nome) {
    if (!nodo) return;
    codiceFiscale = attributo(nodo, "codiceFiscale");
    nome = platform::fromBase64(nodo.textBytes());
}

void leggiTesto(const XmlNode& nodo, QString& testo) {
    if (nodo) testo = platform::fromBase64(nodo.textBytes());
}

// All but the rows.
void leggiTesta(clsItemTrattamento& item, const XmlNode& trattamento) {
    leggiApertura(item, trattamento);
    leggiPersona(trattamento.firstChild("paziente"), item.cliente, item.descrizionecliente);
    leggiPersona(trattamento.firstChild("medico"), item.medico, item.descrizionemedico);
    leggiTesto(trattamento.firstChild("descrizione"), item.descrizione);
    leggiTesto(trattamento.firstChild("annotazioni"), item.Annotazioni);
    leggiTesto(trattamento.firstChild("situazioneOrale"), item.SituazioneOrale);
    if (item.descrizione.isEmpty()) item.descrizione = descrizioniDeiRighi(trattamento.firstChild("righi"));
    item.lavori = item.lavoriaperti = item.lavorifiniti = 0;
    item.righi.clear();
}

XmlNode radice(platform::XmlDocument& documento, const QString& memo) {
    if (!documento.loadText(memo) || documento.root().name() != QLatin1String("trattamento")) return {};
    return documento.root();
}

} // namespace

QString scriviMemoTrattamento(const clsItemTrattamento& item) {
    QString memo;
    memo.reserve(1024 + static_cast<qsizetype>(item.righi.size()) * 512);
    scriviApertura(memo, item);
    scriviPersona(memo, QLatin1String("paziente"), item.cliente, item.descrizionecliente);
    scriviPersona(memo, QLatin1String("medico"), item.medico, item.descrizionemedico);
    memo += QLatin1String("\t<righi>") + FINE_RIGA;
    for (const clsItemRigoTrattamento& rigo : item.righi)
        scriviRigo(memo, rigo);
    memo += QLatin1String("\t</righi>") + FINE_RIGA;
    scriviTesto(memo, QLatin1String("descrizione"), item.descrizione);
    scriviTesto(memo, QLatin1String("annotazioni"), item.Annotazioni);
    scriviTesto(memo, QLatin1String("situazioneOrale"), item.SituazioneOrale);
    memo += QLatin1String("</trattamento>");
    return memo;
}

void leggiMemoTrattamento(clsItemTrattamento& item, const QString& memo) {
    platform::XmlDocument documento;
    const XmlNode trattamento = radice(documento, memo);
    if (!trattamento) return;
    leggiTesta(item, trattamento);
    if (const std::exception_ptr doppio = leggiRighi(item, trattamento.firstChild("righi")))
        std::rethrow_exception(doppio);
}

void leggiMemoPerElenco(clsItemTrattamento& item, const QString& memo) {
    platform::XmlDocument documento;
    const XmlNode trattamento = radice(documento, memo);
    if (!trattamento) return;
    leggiTesta(item, trattamento);
    const XmlNode righi = trattamento.firstChild("righi");
    for (XmlNode nodo = righi.firstChild("rigo"); nodo; nodo = nodo.nextSibling("rigo"))
        conta(item, !nodo.attributeBytes("inizioLavori").isEmpty(), !nodo.attributeBytes("fineLavori").isEmpty());
}
