#include "chart/clsGraphical.h"

#include "host/context.h"

#include <exception>

using platform::XmlNode;

namespace {

constexpr qint16 LAST_GLANCE_PLACE = 11;

XmlNode firstWithId(const XmlNode& first, const char* element, const QString& id) {
    for (XmlNode node = first; node; node = node.nextSibling(element))
        if (node.attribute("id") == id) return node;
    return {};
}

XmlNode entry(const XmlNode& parent, const char* element, const QString& id) {
    return firstWithId(parent.firstChild(element), element, id);
}

// Replaced at each lookup and in lower case only: a practice may move the folder of the module between two runs.
QString path(const XmlNode& node, const char* attribute) {
    return node.attribute(attribute, QString()).replace(QStringLiteral("[app.path]"), sAppPath);
}

bool answer(const XmlNode& node, const char* attribute, QString& image) {
    image = path(node, attribute);
    return !image.isEmpty();
}

const char* attributeOfColour(const QString& colour) {
    const QString upper = colour.toUpper();
    if (upper == QLatin1String("RED")) return "redImage";
    if (upper == QLatin1String("YELLOW")) return "yellowImage";
    if (upper == QLatin1String("GREEN")) return "greenImage";
    return nullptr;
}

} // namespace

bool clsGraphical::Init(const QString& file) {
    lastError_.clear();
    try {
        if (document_.loadFile(file)) return true;
        lastError_ = QStringLiteral("Non è stato possibile caricare il file di configurazione");
    } catch (const std::exception& error) {
        lastError_ = QStringLiteral("Errore 0: ") + QString::fromUtf8(error.what());
    }
    return false;
}

XmlNode clsGraphical::toothNode(const QString& id) const {
    return entry(document_.root().firstChild("tooths"), "tooth", id);
}

bool clsGraphical::ImmagineServizio(const QString& tooth, const QString& service, qint16& left, qint16& top,
                                    QString& image) const {
    const XmlNode found = entry(toothNode(tooth), "trattamento", service);
    left = found.attribute("left", QString()).toShort();
    top = found.attribute("top", QString()).toShort();
    return answer(found, "image", image);
}

bool clsGraphical::SituazioneDente(const QString& tooth, const QString& situation, QString& image) const {
    return answer(entry(toothNode(tooth), "situazione", situation), "image", image);
}

bool clsGraphical::ImmagineInEvidenza(const QString& service, QString& image) const {
    return answer(entry(document_.root().firstChild("inEvidenza"), "trattamento", service), "image", image);
}

bool clsGraphical::ImmagineAllOcchio(const QString& service, qint16& index, QString& image) const {
    index = 0;
    image.clear();
    XmlNode node = entry(document_.root().firstChild("inEvidenza"), "trattamento", service);
    for (; node; node = firstWithId(node.nextSibling("trattamento"), "trattamento", service)) {
        bool number = false;
        const qint16 place = node.attribute("eyeIndex", QString()).toShort(&number);
        if (!number || place < 0 || place > LAST_GLANCE_PLACE) continue;
        index = place;
        return answer(node, "eyeImage", image);
    }
    return false;
}

bool clsGraphical::ServizioConStatus(const QString& service, const QString& colour, QString& image) const {
    image.clear();
    const char* attribute = attributeOfColour(colour);
    if (attribute == nullptr) return false;
    return answer(entry(document_.root().firstChild("status"), "trattamento", service), attribute, image);
}
