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

const char* const MODAL_NOTES = "mostraAppuntiPazienteInFinestraModale";

QString decoded(const QString& base64) {
    return platform::fromSingleByte(QByteArray::fromBase64(base64.trimmed().toLatin1()));
}

// The parameters of one group with one name; a file may hold it twice.
std::vector<XmlNode> parameterNodes(const XmlNode& root, const Parameter& parameter) {
    std::vector<XmlNode> found;
    for (const XmlNode& node : root.select((std::string("parameters/") + parameter.group + "/parameter").c_str())) {
        if (node.attribute("name", QString()) == QLatin1String(parameter.name)) found.push_back(node);
    }
    return found;
}

XmlNode child(const XmlNode& parent, const char* name) {
    const XmlNode present = parent.firstChild(name);
    return present ? present : parent.appendChild(name);
}

} // namespace

bool clsConfig::Init() {
    values_ = Settings();
    modalNotes_ = oHost->Utente().Items().GetITEM(QLatin1String(MODAL_NOTES)) != QLatin1String("NO");
    ConfigFolder folder;
    fileName_ = folder.file();
    if (!folder.open(document_)) {
        lastError_ = folder.error();
        return false;
    }
    read();
    folder.mendCatalogues(DBPAth());
    notices_ = folder.notices();
    return true;
}

void clsConfig::read() {
    const XmlNode root = document_.root();
    webInformation_ = root.attribute("webinfo", QString());
    userTitle_ = decoded(root.selectOne("user/title").text());
    userDetails_ = decoded(root.selectOne("user/details").text());
    imageEditor_.clear();
    for (const XmlNode& node : root.select("tools/tool")) {
        if (node.attribute("id", QString()) == QLatin1String("imageEditor"))
            imageEditor_ = node.attribute("path", QString());
    }
    readParameters();
    readCollections();
}

void clsConfig::readParameters() {
    for (const Parameter& parameter : parameters()) {
        for (const XmlNode& node : parameterNodes(document_.root(), parameter))
            readParameter(parameter, node.text(), values_);
    }
}

void clsConfig::readCollections() const {
    const XmlNode root = document_.root();
    colIva->clear();
    for (const XmlNode& node : root.select("accise/iva")) {
        const QString code = node.attribute("codice", QString());
        const double rate = platform::regional().toNumber(node.attribute("percentuale", QString())).value_or(0);
        if (!colIva->contains(code)) colIva->add(code, {code, node.text(), static_cast<float>(rate)});
    }
    colRaggMerc->clear();
    for (const XmlNode& node : root.select("ragruppamentiMerciologici/ragruppamento")) {
        const QString code = node.attribute("codice", QString());
        if (!colRaggMerc->contains(code)) colRaggMerc->add(code, {code, node.text()});
    }
    colSituazioniDenti->clear();
    for (const XmlNode& node : root.select("situazioniDenti/situazione")) {
        const QString id = node.attribute("id", QString());
        if (!colSituazioniDenti->contains(id))
            colSituazioniDenti->add(id, {id, node.attribute("descrizione", QString())});
    }
}

QString clsConfig::ProductName() const {
    return document_.root().attribute("name", QString());
}

QString clsConfig::DBPAth() const {
    QString path = values_.DBPAth;
    return path.replace(QStringLiteral("[app.path]"), sAppPath);
}

QString clsConfig::dataFile(const QString& name) const {
    const QString folder = DBPAth();
    if (folder.isEmpty()) return {};
    const bool ends = folder.endsWith(QLatin1Char('\\')) || folder.endsWith(QLatin1Char('/'));
    return folder + (ends ? QString() : QStringLiteral("/")) + name;
}

void clsConfig::setUserTitle(const QString& text) {
    writeUser("title", text, userTitle_);
}
void clsConfig::setUserDetails(const QString& text) {
    writeUser("details", text, userDetails_);
}

void clsConfig::writeUser(const char* name, const QString& text, QString& field) {
    const QByteArray before = document_.toBytes();
    const QByteArray written = platform::toSingleByte(text);
    child(child(document_.root(), "user"), name).setText(QLatin1String(written.toBase64()));
    try {
        save();
    } catch (const ConfigError&) {
        document_.loadBytes(before);
        throw;
    }
    field = platform::fromSingleByte(written); // as the next run will read it
}

void clsConfig::setAppuntiPazienteModali(bool value) {
    oHost->Utente().Items().SetITEM(QLatin1String(MODAL_NOTES), value ? QStringLiteral("SI") : QStringLiteral("NO"));
    modalNotes_ = value;
}

template <class T>
void clsConfig::write(T Settings::*field, const T& value) {
    for (const Parameter& parameter : parameters()) {
        if (parameter.field != Parameter::Field(field)) continue;
        Settings changed = values_;
        changed.*field = value;
        writeNodes(parameter, parameterText(parameter, changed));
        readParameter(parameter, parameterText(parameter, changed), values_);
    }
}
template void clsConfig::write(QString Settings::*, const QString&);
template void clsConfig::write(bool Settings::*, const bool&);
template void clsConfig::write(qint16 Settings::*, const qint16&);

// Only the settings that came after the first files get a node where there is none. The others keep their value for
// this run alone: a practice that took a parameter out of its file does not find it back there.
void clsConfig::writeNodes(const Parameter& parameter, const QString& text) {
    const QByteArray before = document_.toBytes();
    std::vector<XmlNode> nodes = parameterNodes(document_.root(), parameter);
    if (nodes.empty() && parameter.addedLater) {
        const XmlNode group = child(child(document_.root(), "parameters"), parameter.group);
        nodes.push_back(group.appendChild("parameter"));
        nodes.back().setAttribute("name", QLatin1String(parameter.name));
    }
    for (const XmlNode& node : nodes)
        node.setText(text);
    try {
        save();
    } catch (const ConfigError&) {
        document_.loadBytes(before); // or the refused value would go out with the next setting
        throw;
    }
}

void clsConfig::save() {
    if (document_.saveFile(fileName_)) return;
    throw ConfigError("Non è stato possibile salvare il file di configurazione " + fileName_.toStdString());
}

clsServices& clsConfig::services() {
    if (!services_) services_.emplace(document_.root(), oHost->Framework());
    return *services_;
}
