#include "treatments/MemoTrattamento.h"

#include "catalogues/modServizi.h"
#include "platform/Regional.h"
#include "platform/SingleByteText.h"
#include "platform/XmlDocument.h"
#include "store/modConversioni.h"
#include "treatments/clsItemTrattamento.h"

#include <exception>

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

// What the reader gathers while it walks the rows.
struct Conteggi {
    int righi = 0;
    int aperti = 0;
    int finiti = 0;
    QString descrizioni;
    std::exception_ptr errore; ///< The row number that stands twice; told once all else is read.
};

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
    rigo.descrizione = platform::fromBase64(attributo(nodo, "descrizione"));
    rigo.raggruppamento = attributo(nodo, "ragruppamento");
    rigo.operatore = attributo(nodo, "operatore");
    rigo.assistente = leggiAssistente(nodo);
    rigo.inizio = attributo(nodo, "inizioLavori");
    rigo.fine = attributo(nodo, "fineLavori");
    rigo.statuslavori = platform::fromBase64(attributo(nodo, "statusLavori"));
    rigo.fattura = attributo(nodo, "fattura");
    rigo.prezzo = leggiPrezzo(rigo, nodo.attribute("prezzo"));
    rigo.fuoripreventivo = attributo(nodo, "fuoriPreventivo") == QLatin1String("1");
    rigo.note = platform::fromBase64(attributo(nodo, "note"));
    return rigo;
}

void conta(Conteggi& conteggi, const clsItemRigoTrattamento& rigo) {
    ++conteggi.righi;
    if (!rigo.fine.isEmpty())
        ++conteggi.finiti;
    else if (!rigo.inizio.isEmpty())
        ++conteggi.aperti;
    if (rigo.descrizione.isEmpty()) return;
    if (!conteggi.descrizioni.isEmpty()) conteggi.descrizioni += FINE_RIGA;
    conteggi.descrizioni += rigo.descrizione;
}

void leggiRighi(clsItemTrattamento& item, const XmlNode& righi, Conteggi& conteggi) {
    for (XmlNode nodo = righi.firstChild("rigo"); nodo; nodo = nodo.nextSibling("rigo")) {
        const clsItemRigoTrattamento rigo = leggiRigo(item, nodo);
        const QString chiave = rigo.progressivo.trimmed();
        try {
            item.righi.add(chiave, rigo);
        } catch (const platform::DuplicateKey&) {
            conteggi.errore = std::current_exception();
            return;
        }
        conta(conteggi, rigo);
    }
}

void leggiElemento(clsItemTrattamento& item, const XmlNode& nodo, Conteggi& conteggi) {
    const QString nome = nodo.name();
    if (nome == QLatin1String("righi")) {
        leggiRighi(item, nodo, conteggi);
    } else if (nome == QLatin1String("paziente")) {
        item.cliente = attributo(nodo, "codiceFiscale");
        item.descrizionecliente = platform::fromBase64(nodo.text());
    } else if (nome == QLatin1String("medico")) {
        item.medico = attributo(nodo, "codiceFiscale");
        item.descrizionemedico = platform::fromBase64(nodo.text());
    } else if (nome == QLatin1String("descrizione")) {
        item.descrizione = platform::fromBase64(nodo.text());
    } else if (nome == QLatin1String("annotazioni")) {
        item.Annotazioni = platform::fromBase64(nodo.text());
    } else if (nome == QLatin1String("situazioneOrale")) {
        item.SituazioneOrale = platform::fromBase64(nodo.text());
    }
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
    if (!documento.loadText(memo)) return;
    const XmlNode trattamento = documento.root();
    if (trattamento.name() != QLatin1String("trattamento")) return;

    leggiApertura(item, trattamento);
    item.righi.clear();
    Conteggi conteggi;
    for (XmlNode nodo = trattamento.firstChild(); nodo; nodo = nodo.nextSibling())
        leggiElemento(item, nodo, conteggi);
    if (item.descrizione.isEmpty()) item.descrizione = conteggi.descrizioni;
    item.lavori = static_cast<qint16>(conteggi.righi);
    item.lavoriaperti = static_cast<qint16>(conteggi.aperti);
    item.lavorifiniti = static_cast<qint16>(conteggi.finiti);
    if (conteggi.errore) std::rethrow_exception(conteggi.errore);
}
