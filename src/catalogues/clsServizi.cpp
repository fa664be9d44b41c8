#include "catalogues/clsServizi.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "platform/Files.h"
#include "platform/XmlDocument.h"
#include "store/clsAES.h"

using platform::XmlDocument;
using platform::XmlError;
using platform::XmlNode;

clsServizi* oServizi = nullptr;

namespace {

constexpr char ENTRIES[] = "/servizi/servizio";

QString fileOfConfiguration() {
    return oConfig == nullptr ? QString() : oConfig->dataFile(QStringLiteral("tabellaServizi.xml"));
}

QByteArray newFile() {
    return QByteArrayLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<servizi>\r\n</servizi>");
}

QString flag(bool value) {
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

QString required(const XmlNode& node, const char* attribute) {
    const std::optional<QString> value = node.attribute(attribute);
    if (!value) throw XmlError(std::string("Attributo mancante: ") + attribute);
    return *value;
}

clsItemServizio readEntry(const XmlNode& node) {
    clsAES aes;
    clsItemServizio item;
    item.ID = required(node, "ID");
    item.descrizione = aes.plbDecodeStrB64(required(node, "descrizione"));
    item.breve = node.attribute("breve", QString());
    item.UM = required(node, "UM");
    item.prezzo = Amount::fromText(required(node, "prezzo"));
    item.codiceIva = required(node, "codiceIva");
    item.raggruppamento = required(node, "raggruppamento");
    item.usabileInPianoTrattamento = required(node, "usabileInPianoTrattamento") == QLatin1String("1");
    item.inEvidenza = node.attribute("inEvidenza", QString()) == QLatin1String("1");
    item.statusLavori = aes.plbDecodeStrB64(required(node, "statusLavori"));
    return item;
}

/// Sets everything but the code, in the order of a new entry. "breve" and "inEvidenza" came later than the format, so
/// an older entry gets them here; `set` decides about the others.
template <class Set>
void write(const XmlNode& node, const clsItemServizio& item, Set set) {
    clsAES aes;
    set("descrizione", aes.plbEncodeStrB64(item.descrizione));
    node.setAttribute("breve", item.breve);
    set("UM", item.UM);
    set("prezzo", item.prezzo.text());
    set("codiceIva", item.codiceIva);
    set("raggruppamento", item.raggruppamento);
    set("usabileInPianoTrattamento", flag(item.usabileInPianoTrattamento));
    node.setAttribute("inEvidenza", flag(item.inEvidenza));
    set("statusLavori", aes.plbEncodeStrB64(item.statusLavori));
}

XmlNode entryWithCode(const XmlDocument& document, const QString& id) {
    for (const XmlNode& node : document.select(ENTRIES))
        if (required(node, "ID") == id) return node;
    return {};
}

} // namespace

clsServizi::clsServizi()
    : clsServizi(fileOfConfiguration) {}

clsServizi::clsServizi(FileProvider file)
    : file_(std::move(file)) {}

bool clsServizi::Aggiorna(const clsItemServizio& item) {
    const QString path = file_();
    if (!platform::files::exists(path) && platform::files::writeAtomically(path, newFile()))
        platform::files::shareAsFolder(path);
    XmlDocument document;
    if (!document.loadFile(path)) return false;
    try {
        if (!replace(document, item)) append(document, item);
    } catch (const XmlError&) {
        return false;
    }
    return save(document);
}

bool clsServizi::replace(const XmlDocument& document, const clsItemServizio& item) const {
    // Compared with its case, unlike the look-ups: "a1" beside "A1" makes a second entry, at which reading then ends.
    const XmlNode node = entryWithCode(document, item.ID);
    if (!node) return false;
    write(node, item, [&node](const char* attribute, const QString& value) {
        required(node, attribute);
        node.setAttribute(attribute, value);
    });
    return true;
}

void clsServizi::append(const XmlDocument& document, const clsItemServizio& item) const {
    const XmlNode root = document.selectOne("/servizi");
    if (!root) throw XmlError("Elemento mancante: servizi");
    const XmlNode node = root.appendChild("servizio");
    node.setAttribute("ID", item.ID);
    write(node, item, [&node](const char* attribute, const QString& value) { node.setAttribute(attribute, value); });
}

bool clsServizi::save(const XmlDocument& document) {
    if (!document.saveFile(file_())) return false;
    Refresh();
    return true;
}

const clsItemServizio* clsServizi::Carica(const QString& id) {
    const platform::Collection<clsItemServizio>& list = Lista();
    // Rows nearly always spell a code as the catalogue does, and a long list of plans asks for every price.
    const auto spelled = exact_.constFind(id);
    return spelled == exact_.cend() ? list.find(id) : &list[*spelled];
}

void clsServizi::Refresh() {
    list_.reset();
    exact_.clear();
}

const clsItemServizio* clsServizi::CaricaDaDescrizione(const QString& description) {
    for (const clsItemServizio& item : Lista())
        if (item.descrizione.compare(description, Qt::CaseInsensitive) == 0) return &item;
    return nullptr;
}

bool clsServizi::Elimina(const QString& id) {
    XmlDocument document;
    if (!document.loadFile(file_())) return false;
    try {
        XmlNode node = entryWithCode(document, id);
        if (!node) return true;
        // Asks the document and not the list element, on purpose: the document refuses, and so a service that rows of
        // plans and invoices may name is never taken out of the file. Articles, in contrast, do go.
        document.removeChild(node);
    } catch (const XmlError&) {
        return false;
    }
    return save(document);
}

const platform::Collection<clsItemServizio>& clsServizi::Lista() {
    if (list_) return *list_;
    list_.emplace(); // Kept at once: a file that cannot be read gives an empty list until the next Refresh.
    read();
    for (std::size_t place = 0; place < list_->size(); ++place)
        exact_.insert((*list_)[place].ID, place);
    return *list_;
}

void clsServizi::read() {
    XmlDocument document;
    if (!document.loadFile(file_())) return;
    try {
        for (const XmlNode& node : document.select(ENTRIES)) {
            clsItemServizio item = readEntry(node);
            const QString key = item.ID;
            list_->add(key, std::move(item));
        }
    } catch (const XmlError&) {               // An incomplete entry: those before it stand.
    } catch (const platform::DuplicateKey&) { // Likewise.
    }
}
