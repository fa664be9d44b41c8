#include "config/clsConfig.h"

#include "config/ConfigFolder.h"
#include "config/clsItemIva.h"
#include "config/clsItemRaggMerc.h"
#include "config/clsItemSituazioneDente.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Regional.h"
#include "platform/SingleByteText.h"

#include <vector>

using platform::XmlNode;

namespace {

const char* const APPUNTI_MODALI = "mostraAppuntiPazienteInFinestraModale";

QString decodifica(const QString& base64) {
    return platform::fromSingleByte(QByteArray::fromBase64(base64.trimmed().toLatin1()));
}

// The parameters of one group with one name; a file may hold it twice.
std::vector<XmlNode> nodiParametro(const XmlNode& radice, const Parametro& parametro) {
    std::vector<XmlNode> trovati;
    for (const XmlNode& nodo : radice.select((std::string("parameters/") + parametro.gruppo + "/parameter").c_str())) {
        if (nodo.attribute("name", QString()) == QLatin1String(parametro.nome)) trovati.push_back(nodo);
    }
    return trovati;
}

XmlNode figlio(const XmlNode& padre, const char* nome) {
    const XmlNode presente = padre.firstChild(nome);
    return presente ? presente : padre.appendChild(nome);
}

} // namespace

bool clsConfig::Init() {
    valori_ = Impostazioni();
    appuntiPazienteModali_ = oHost->Utente().Items().GetITEM(QLatin1String(APPUNTI_MODALI)) != QLatin1String("NO");
    ConfigFolder cartella;
    fileName_ = cartella.file();
    if (!cartella.open(documento_)) {
        lastError_ = cartella.error();
        return false;
    }
    leggi();
    cartella.mendCatalogues(DBPAth());
    avvisi_ = cartella.notices();
    return true;
}

void clsConfig::leggi() {
    const XmlNode radice = documento_.root();
    webInformation_ = radice.attribute("webinfo", QString());
    userTitle_ = decodifica(radice.selectOne("user/title").text());
    userDetails_ = decodifica(radice.selectOne("user/details").text());
    imageEditor_.clear();
    for (const XmlNode& nodo : radice.select("tools/tool")) {
        if (nodo.attribute("id", QString()) == QLatin1String("imageEditor"))
            imageEditor_ = nodo.attribute("path", QString());
    }
    leggiParametri();
    leggiRaccolte();
}

void clsConfig::leggiParametri() {
    for (const Parametro& parametro : parametri()) {
        for (const XmlNode& nodo : nodiParametro(documento_.root(), parametro))
            leggiParametro(parametro, nodo.text(), valori_);
    }
}

void clsConfig::leggiRaccolte() const {
    const XmlNode radice = documento_.root();
    colIva->clear();
    for (const XmlNode& nodo : radice.select("accise/iva")) {
        const QString codice = nodo.attribute("codice", QString());
        const double percentuale = platform::regional().toNumber(nodo.attribute("percentuale", QString())).value_or(0);
        if (!colIva->contains(codice)) colIva->add(codice, {codice, nodo.text(), static_cast<float>(percentuale)});
    }
    colRaggMerc->clear();
    for (const XmlNode& nodo : radice.select("ragruppamentiMerciologici/ragruppamento")) {
        const QString codice = nodo.attribute("codice", QString());
        if (!colRaggMerc->contains(codice)) colRaggMerc->add(codice, {codice, nodo.text()});
    }
    colSituazioniDenti->clear();
    for (const XmlNode& nodo : radice.select("situazioniDenti/situazione")) {
        const QString id = nodo.attribute("id", QString());
        if (!colSituazioniDenti->contains(id))
            colSituazioniDenti->add(id, {id, nodo.attribute("descrizione", QString())});
    }
}

QString clsConfig::ProductName() const {
    return documento_.root().attribute("name", QString());
}

QString clsConfig::DBPAth() const {
    QString percorso = valori_.DBPAth;
    return percorso.replace(QStringLiteral("[app.path]"), sAppPath);
}

QString clsConfig::FileDati(const QString& nome) const {
    const QString cartella = DBPAth();
    if (cartella.isEmpty()) return {};
    const bool chiusa = cartella.endsWith(QLatin1Char('\\')) || cartella.endsWith(QLatin1Char('/'));
    return cartella + (chiusa ? QString() : QStringLiteral("/")) + nome;
}

void clsConfig::setUserTitle(const QString& testo) {
    scriviUtente("title", testo, userTitle_);
}
void clsConfig::setUserDetails(const QString& testo) {
    scriviUtente("details", testo, userDetails_);
}

void clsConfig::scriviUtente(const char* nome, const QString& testo, QString& campo) {
    const QByteArray prima = documento_.toBytes();
    const QByteArray scritto = platform::toSingleByte(testo);
    figlio(figlio(documento_.root(), "user"), nome).setText(QLatin1String(scritto.toBase64()));
    try {
        salva();
    } catch (const ErroreConfigurazione&) {
        documento_.loadBytes(prima);
        throw;
    }
    campo = platform::fromSingleByte(scritto); // as the next run will read it
}

void clsConfig::setAppuntiPazienteModali(bool valore) {
    oHost->Utente().Items().SetITEM(QLatin1String(APPUNTI_MODALI),
                                    valore ? QStringLiteral("SI") : QStringLiteral("NO"));
    appuntiPazienteModali_ = valore;
}

template <class T>
void clsConfig::scrivi(T Impostazioni::*campo, const T& valore) {
    for (const Parametro& parametro : parametri()) {
        if (parametro.campo != Parametro::Campo(campo)) continue;
        Impostazioni nuove = valori_;
        nuove.*campo = valore;
        scriviNodi(parametro, testoParametro(parametro, nuove));
        leggiParametro(parametro, testoParametro(parametro, nuove), valori_);
    }
}
template void clsConfig::scrivi(QString Impostazioni::*, const QString&);
template void clsConfig::scrivi(bool Impostazioni::*, const bool&);
template void clsConfig::scrivi(qint16 Impostazioni::*, const qint16&);

// Only the settings that came after the first files get a node where there is none. The others keep their value for
// this run alone: a practice that took a parameter out of its file does not find it back there.
void clsConfig::scriviNodi(const Parametro& parametro, const QString& testo) {
    const QByteArray prima = documento_.toBytes();
    std::vector<XmlNode> nodi = nodiParametro(documento_.root(), parametro);
    if (nodi.empty() && parametro.aggiunto) {
        const XmlNode gruppo = figlio(figlio(documento_.root(), "parameters"), parametro.gruppo);
        nodi.push_back(gruppo.appendChild("parameter"));
        nodi.back().setAttribute("name", QLatin1String(parametro.nome));
    }
    for (const XmlNode& nodo : nodi)
        nodo.setText(testo);
    try {
        salva();
    } catch (const ErroreConfigurazione&) {
        documento_.loadBytes(prima); // or the refused value would go out with the next setting
        throw;
    }
}

void clsConfig::salva() {
    if (documento_.saveFile(fileName_)) return;
    throw ErroreConfigurazione("Non è stato possibile salvare il file di configurazione " + fileName_.toStdString());
}

clsServices& clsConfig::services() {
    if (!services_) services_.emplace(documento_.root(), oHost->Framework());
    return *services_;
}
