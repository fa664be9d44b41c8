#include "platform/XmlDocument.h"

#include "platform/Files.h"

#include <algorithm>
#include <cstring>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

namespace platform {

namespace {

// Never expands entities, reads other files or lifts the limits on size and depth: a document may come from anywhere.
constexpr int PARSE_OPTIONS = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;

struct FreeContext {
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
    void operator()(xmlXPathContext* context) const { xmlXPathFreeContext(context); }
    void operator()(xmlXPathObject* object) const { xmlXPathFreeObject(object); }
    void operator()(xmlChar* text) const { xmlFree(text); }
};
template <class T>
using Owned = std::unique_ptr<T, FreeContext>;

const char* chars(const xmlChar* text) {
    return reinterpret_cast<const char*>(text);
}
const xmlChar* xmlChars(const char* text) {
    return reinterpret_cast<const xmlChar*>(text);
}

QString toText(const xmlChar* text) {
    return text ? QString::fromUtf8(chars(text)) : QStringLiteral("");
}

/// Stops at a document type declaration, before any entity in it could be read.
void refuseDocumentType(void* data, const xmlChar*, const xmlChar*, const xmlChar*) {
    auto* const context = static_cast<xmlParserCtxt*>(data);
    context->wellFormed = 0; // A parser that was stopped would hand out what it had so far.
    xmlStopParser(context);
}

void ignoreError(void*, xmlErrorPtr) {}

bool isAllowed(QChar character) {
    const char16_t code = character.unicode();
    if (code < 0x20) return code == '\t' || code == '\n' || code == '\r';
    return code < 0xFFFE;
}

/// UTF-8 without the characters that XML cannot hold at all, so that pasted control characters never make a document
/// that cannot be read again.
QByteArray storable(const QString& text) {
    if (std::all_of(text.begin(), text.end(), isAllowed)) return text.toUtf8();
    QString kept;
    std::copy_if(text.begin(), text.end(), std::back_inserter(kept), isAllowed);
    return kept.toUtf8();
}

/// The text of a list of nodes: mostly one text node, whose content is taken where it lies.
QString contentOf(xmlDoc* doc, xmlNode* list) {
    if (!list) return QStringLiteral("");
    if (!list->next && list->type == XML_TEXT_NODE) return toText(list->content);
    const Owned<xmlChar> joined(xmlNodeListGetString(doc, list, 1));
    return toText(joined.get());
}

xmlAttr* findAttribute(const xmlNode* node, const char* name) {
    if (!node) return nullptr;
    xmlAttr* attribute = node->properties;
    while (attribute && std::strcmp(chars(attribute->name), name) != 0)
        attribute = attribute->next;
    return attribute;
}

xmlNode* elementFrom(xmlNode* node, const char* name) {
    while (node && (node->type != XML_ELEMENT_NODE || (name && std::strcmp(chars(node->name), name) != 0)))
        node = node->next;
    return node;
}

void unlinkAndFree(xmlNode* node) {
    xmlUnlinkNode(node);
    xmlFreeNode(node);
}

/// Elements of a path, in document order.
std::vector<xmlNode*> evaluate(xmlDoc* doc, xmlNode* from, const char* xpath) {
    std::vector<xmlNode*> elements;
    if (!doc) return elements;
    const Owned<xmlXPathContext> context(xmlXPathNewContext(doc));
    context->error = ignoreError;
    context->node = from;
    const Owned<xmlXPathObject> result(xmlXPathEvalExpression(xmlChars(xpath), context.get()));
    if (!result) throw XmlError(std::string("Percorso non valido: ") + xpath);
    if (result->type != XPATH_NODESET || !result->nodesetval) return elements;
    xmlXPathNodeSetSort(result->nodesetval);
    std::copy_if(result->nodesetval->nodeTab, result->nodesetval->nodeTab + result->nodesetval->nodeNr,
                 std::back_inserter(elements), [](const xmlNode* node) { return node->type == XML_ELEMENT_NODE; });
    return elements;
}

/// Setting up a parser costs as much as reading a small record, so one serves for many documents; with it stay the
/// names that it has met, which is why it does not serve for ever.
xmlParserCtxt& parser() {
    constexpr int MOST_NAMES = 4096;
    static thread_local Owned<xmlParserCtxt> kept;
    if (!kept || xmlDictSize(kept->dict) > MOST_NAMES) {
        kept.reset(xmlNewParserCtxt());
        kept->sax->internalSubset = refuseDocumentType;
    }
    kept->options = 0; // libxml2 would add those of the next document to these
    return *kept;
}

QString describe(const xmlParserCtxt& context) {
    if (context.lastError.code == XML_ERR_OK || !context.lastError.message)
        return QStringLiteral("Documento XML non valido, o con una dichiarazione di tipo");
    return QStringLiteral("Riga %1: %2")
        .arg(context.lastError.line)
        .arg(QString::fromUtf8(context.lastError.message).trimmed());
}

} // namespace

QString XmlNode::name() const {
    return node_ ? toText(node_->name) : QString();
}

QString XmlNode::text() const {
    if (!node_) return {};
    if (!node_->children || !node_->children->next) {
        if (!node_->children || node_->children->type == XML_TEXT_NODE) return contentOf(node_->doc, node_->children);
    }
    const Owned<xmlChar> content(xmlNodeGetContent(node_));
    return toText(content.get());
}

QString XmlNode::xml() const {
    if (!node_) return {};
    const std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)> buffer(xmlBufferCreate(), &xmlBufferFree);
    if (!buffer || xmlNodeDump(buffer.get(), node_->doc, node_, 0, 0) < 0) return {};
    return toText(xmlBufferContent(buffer.get()));
}

void XmlNode::setText(const QString& text) const {
    if (!node_) return;
    const QByteArray content = storable(text);
    xmlNodeSetContent(node_, nullptr);
    xmlNodeAddContentLen(node_, xmlChars(content.constData()), static_cast<int>(content.size()));
}

std::optional<QString> XmlNode::attribute(const char* name) const {
    const xmlAttr* found = findAttribute(node_, name);
    if (!found) return std::nullopt;
    return contentOf(found->doc, found->children);
}

QString XmlNode::attribute(const char* name, const QString& otherwise) const {
    const xmlAttr* found = findAttribute(node_, name);
    return found ? contentOf(found->doc, found->children) : otherwise;
}

bool XmlNode::hasAttribute(const char* name) const {
    return findAttribute(node_, name) != nullptr;
}

std::vector<std::pair<QString, QString>> XmlNode::attributes() const {
    std::vector<std::pair<QString, QString>> all;
    for (const xmlAttr* one = node_ ? node_->properties : nullptr; one; one = one->next)
        all.emplace_back(toText(one->name), contentOf(one->doc, one->children));
    return all;
}

void XmlNode::setAttribute(const char* name, const QString& value) const {
    if (node_) xmlSetProp(node_, xmlChars(name), xmlChars(storable(value).constData()));
}

XmlNode XmlNode::parent() const {
    if (!node_ || !node_->parent || node_->parent->type != XML_ELEMENT_NODE) return {};
    return XmlNode(node_->parent);
}

XmlNode XmlNode::firstChild() const {
    return XmlNode(node_ ? elementFrom(node_->children, nullptr) : nullptr);
}

XmlNode XmlNode::firstChild(const char* name) const {
    return XmlNode(node_ ? elementFrom(node_->children, name) : nullptr);
}

XmlNode XmlNode::nextSibling() const {
    return XmlNode(node_ ? elementFrom(node_->next, nullptr) : nullptr);
}

XmlNode XmlNode::nextSibling(const char* name) const {
    return XmlNode(node_ ? elementFrom(node_->next, name) : nullptr);
}

XmlNode XmlNode::appendChild(const char* name) const {
    return XmlNode(node_ ? xmlNewChild(node_, nullptr, xmlChars(name), nullptr) : nullptr);
}

void XmlNode::removeChild(XmlNode& child) const {
    if (!node_ || !child || child.node_->parent != node_)
        throw XmlError("Il nodo da eliminare non è figlio diretto del nodo dato");
    unlinkAndFree(child.node_);
    child = XmlNode();
}

std::vector<XmlNode> XmlNode::select(const char* xpath) const {
    std::vector<XmlNode> nodes;
    if (!node_) return nodes;
    for (xmlNode* node : evaluate(node_->doc, node_, xpath))
        nodes.push_back(XmlNode(node));
    return nodes;
}

XmlNode XmlNode::selectOne(const char* xpath) const {
    const std::vector<XmlNode> nodes = select(xpath);
    return nodes.empty() ? XmlNode() : nodes.front();
}

void XmlDocument::Free::operator()(_xmlDoc* doc) const {
    xmlFreeDoc(doc);
}

XmlDocument::XmlDocument() = default;
XmlDocument::~XmlDocument() = default;
XmlDocument::XmlDocument(XmlDocument&&) noexcept = default;
XmlDocument& XmlDocument::operator=(XmlDocument&&) noexcept = default;

bool XmlDocument::loadText(const QString& text) {
    return loadBytes(text.toUtf8());
}

// The text is UTF-8 by now, whatever its declaration says.
bool XmlDocument::loadBytes(const QByteArray& utf8) {
    return parse(utf8, "UTF-8", PARSE_OPTIONS | XML_PARSE_IGNORE_ENC);
}

bool XmlDocument::parse(const QByteArray& content, const char* encoding, int options) {
    static const bool ready = (xmlInitParser(), true);
    Q_UNUSED(ready)
    doc_.reset();
    xmlParserCtxt& context = parser();
    doc_.reset(
        xmlCtxtReadMemory(&context, content.constData(), static_cast<int>(content.size()), nullptr, encoding, options));
    lastError_ = doc_ ? QString() : describe(context);
    return doc_ != nullptr;
}

bool XmlDocument::loadFile(const QString& path) {
    const std::optional<QByteArray> content = files::read(path);
    // A file of an older program may well be Windows-1252, and says so.
    if (content) return parse(*content, nullptr, PARSE_OPTIONS);
    doc_.reset();
    lastError_ = QStringLiteral("File non leggibile: %1").arg(path);
    return false;
}

XmlNode XmlDocument::root() const {
    return XmlNode(doc_ ? xmlDocGetRootElement(doc_.get()) : nullptr);
}

void XmlDocument::removeChild(XmlNode& child) {
    if (!doc_ || !child || child.node_ != xmlDocGetRootElement(doc_.get()))
        throw XmlError("Il nodo da eliminare non è la radice del documento");
    unlinkAndFree(child.node_);
    child = XmlNode();
}

std::vector<XmlNode> XmlDocument::select(const char* xpath) const {
    std::vector<XmlNode> nodes;
    for (xmlNode* node : evaluate(doc_.get(), reinterpret_cast<xmlNode*>(doc_.get()), xpath))
        nodes.push_back(XmlNode(node));
    return nodes;
}

XmlNode XmlDocument::selectOne(const char* xpath) const {
    const std::vector<XmlNode> nodes = select(xpath);
    return nodes.empty() ? XmlNode() : nodes.front();
}

QByteArray XmlDocument::toBytes() const {
    if (!doc_) return {};
    xmlChar* text = nullptr;
    int size = 0;
    xmlDocDumpMemoryEnc(doc_.get(), &text, &size, "UTF-8");
    const Owned<xmlChar> owned(text);
    return QByteArray(chars(text), size);
}

bool XmlDocument::saveFile(const QString& path) const {
    return doc_ && files::writeAtomically(path, toBytes());
}

} // namespace platform
