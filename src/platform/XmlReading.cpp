#include "platform/XmlReading.h"

#include <algorithm>
#include <cstring>
#include <libxml/parser.h>

namespace platform {

namespace {

const char* chars(const xmlChar* text) {
    return reinterpret_cast<const char*>(text);
}

bool isSameAscii(const QString& text, const QByteArray& utf8) {
    return std::equal(text.begin(), text.end(), utf8.begin(), utf8.end(), [](QChar letter, char byte) {
        return static_cast<unsigned char>(byte) < 0x80 && letter.unicode() == static_cast<unsigned char>(byte);
    });
}

QString toText(const QByteArray& utf8) {
    return utf8.isEmpty() ? QStringLiteral("") : QString::fromUtf8(utf8);
}

} // namespace

/// What the parser tells while it reads, put down in the blocks of the reading.
struct XmlEvents {
    XmlReading& reading;
    xmlParserCtxt& context;
    int open = -1;   ///< The element that is open.
    int before = -1; ///< The child of it that was closed last.

    static XmlEvents& of(void* data) { return *static_cast<XmlEvents*>(data); }

    static void begin(void* data, const xmlChar* name, const xmlChar*, const xmlChar*, int, const xmlChar**, int count,
                      int, const xmlChar** attributes) {
        of(data).begin(chars(name), count, attributes);
    }

    static void end(void* data, const xmlChar*, const xmlChar*, const xmlChar*) { of(data).end(); }

    static void text(void* data, const xmlChar* text, int size) { of(data).reading.texts_.append(chars(text), size); }

    /// Stops before any entity of the declaration could be read.
    static void refuseDocumentType(void* data, const xmlChar*, const xmlChar*, const xmlChar*) {
        XmlEvents& events = of(data);
        events.context.wellFormed = 0;
        xmlStopParser(&events.context);
    }

    void begin(const char* name, int count, const xmlChar** attributes) {
        const int self = static_cast<int>(reading.elements_.size());
        if (before >= 0)
            reading.elements_[static_cast<std::size_t>(before)].nextSibling = self;
        else if (open >= 0)
            reading.elements_[static_cast<std::size_t>(open)].firstChild = self;
        const int first = static_cast<int>(reading.attributes_.size());
        for (int i = 0; i < count; ++i, attributes += 5) {
            const qsizetype size = attributes[4] - attributes[3];
            reading.attributes_.push_back({chars(attributes[0]), reading.values_.size(), size});
            reading.values_.append(chars(attributes[3]), size);
        }
        const qsizetype here = reading.texts_.size();
        reading.elements_.push_back({name, open, -1, -1, first, first + count, here, here});
        open = self;
        before = -1;
    }

    void end() {
        XmlReading::Element& self = reading.elements_[static_cast<std::size_t>(open)];
        self.textEnd = reading.texts_.size();
        before = open;
        open = self.parent;
    }
};

namespace {

struct FreeContext {
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};

/// One serves for many readings; with it stay the names that it has met, which is why it does not serve for ever.
xmlParserCtxt& parser() {
    constexpr int MOST_NAMES = 4096;
    static thread_local std::unique_ptr<xmlParserCtxt, FreeContext> kept;
    if (!kept || xmlDictSize(kept->dict) > MOST_NAMES) {
        xmlInitParser();
        kept.reset(xmlNewParserCtxt());
        xmlSAXHandler& events = *kept->sax;
        events = {};
        events.initialized = XML_SAX2_MAGIC;
        events.internalSubset = &XmlEvents::refuseDocumentType;
        events.startElementNs = &XmlEvents::begin;
        events.endElementNs = &XmlEvents::end;
        events.characters = &XmlEvents::text;
        events.ignorableWhitespace = &XmlEvents::text;
        events.cdataBlock = &XmlEvents::text;
    }
    kept->options = 0; // libxml2 would add those of the next text to these
    return *kept;
}

} // namespace

void XmlReading::Names::operator()(void* dictionary) const {
    xmlDictFree(static_cast<xmlDict*>(dictionary));
}

XmlReading::XmlReading(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    // The few blocks are made once: most of a memo is what stands in its attributes.
    constexpr qsizetype BYTES_OF_AN_ATTRIBUTE = 32;
    attributes_.reserve(static_cast<std::size_t>(utf8.size() / BYTES_OF_AN_ATTRIBUTE + 1));
    elements_.reserve(attributes_.capacity() / 8 + 8);
    values_.reserve(utf8.size());
    texts_.reserve(utf8.size() / 4);

    xmlParserCtxt& context = parser();
    xmlDictReference(context.dict);
    names_.reset(context.dict);
    XmlEvents events{*this, context};
    context.userData = &events;
    // Without an entity of its own the text has only those of XML itself, which the parser resolves in attributes as
    // well when it is told to. The text is UTF-8 by now, whatever its declaration says.
    constexpr int options =
        XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NOENT | XML_PARSE_IGNORE_ENC;
    xmlFreeDoc(xmlCtxtReadMemory(&context, utf8.constData(), static_cast<int>(utf8.size()), nullptr, "UTF-8", options));
    context.userData = &context;
    if (context.wellFormed == 0) elements_.clear();
}

QByteArray XmlReading::bytes(const Attribute& attribute) const {
    return QByteArray::fromRawData(values_.constData() + attribute.value, attribute.size);
}

const XmlReading::Attribute* XmlReading::find(int element, const char* name) const {
    const Element& own = elements_[static_cast<std::size_t>(element)];
    for (int i = own.firstAttribute; i < own.endAttribute; ++i) {
        const Attribute& attribute = attributes_[static_cast<std::size_t>(i)];
        if (std::strcmp(attribute.name, name) == 0) return &attribute;
    }
    return nullptr;
}

// --------------------------------------------------------------------------------------------------------- the element

QString XmlElement::name() const {
    return reading_ ? QString::fromUtf8(reading_->elements_[static_cast<std::size_t>(index_)].name) : QString();
}

bool XmlElement::is(const char* name) const {
    return reading_ && std::strcmp(reading_->elements_[static_cast<std::size_t>(index_)].name, name) == 0;
}

XmlElement XmlElement::firstChild() const {
    if (!reading_) return {};
    return {reading_, reading_->elements_[static_cast<std::size_t>(index_)].firstChild};
}

XmlElement XmlElement::firstChild(const char* name) const {
    const XmlElement first = firstChild();
    return !first || first.is(name) ? first : first.nextSibling(name);
}

XmlElement XmlElement::nextSibling() const {
    if (!reading_) return {};
    return {reading_, reading_->elements_[static_cast<std::size_t>(index_)].nextSibling};
}

XmlElement XmlElement::nextSibling(const char* name) const {
    XmlElement next = nextSibling();
    while (next && !next.is(name))
        next = next.nextSibling();
    return next;
}

QByteArray XmlElement::text() const {
    if (!reading_) return {};
    const XmlReading::Element& own = reading_->elements_[static_cast<std::size_t>(index_)];
    return QByteArray::fromRawData(reading_->texts_.constData() + own.text, own.textEnd - own.text);
}

std::optional<QString> XmlElement::attribute(const char* name) const {
    const XmlReading::Attribute* found = reading_ ? reading_->find(index_, name) : nullptr;
    return found ? std::optional(toText(reading_->bytes(*found))) : std::nullopt;
}

QString XmlElement::attribute(const char* name, const QString& otherwise) const {
    return attribute(name).value_or(otherwise);
}

QByteArray XmlElement::attributeBytes(const char* name) const {
    const XmlReading::Attribute* found = reading_ ? reading_->find(index_, name) : nullptr;
    return found ? reading_->bytes(*found) : QByteArray();
}

std::vector<QString> XmlElement::attributeNames() const {
    std::vector<QString> names;
    if (!reading_) return names;
    const XmlReading::Element& own = reading_->elements_[static_cast<std::size_t>(index_)];
    for (int i = own.firstAttribute; i < own.endAttribute; ++i)
        names.push_back(QString::fromUtf8(reading_->attributes_[static_cast<std::size_t>(i)].name));
    return names;
}

// ------------------------------------------------------------------------------------------------------ the attributes

XmlAttributes::XmlAttributes(const XmlElement& element)
    : reading_(element.reading_) {
    if (!reading_) return;
    const XmlReading::Element& own = reading_->elements_[static_cast<std::size_t>(element.index_)];
    first_ = next_ = own.firstAttribute;
    end_ = own.endAttribute;
}

int XmlAttributes::seek(const char* name) {
    const int count = end_ - first_;
    for (int step = 0; step < count; ++step) {
        int index = next_ + step;
        if (index >= end_) index -= count;
        if (std::strcmp(reading_->attributes_[static_cast<std::size_t>(index)].name, name) != 0) continue;
        next_ = index + 1 < end_ ? index + 1 : first_;
        return index;
    }
    return -1;
}

std::optional<QString> XmlAttributes::find(const char* name) {
    const int found = seek(name);
    if (found < 0) return std::nullopt;
    return toText(reading_->bytes(reading_->attributes_[static_cast<std::size_t>(found)]));
}

QString XmlAttributes::text(const char* name) {
    return find(name).value_or(QString());
}

QString XmlAttributes::text(const char* name, const QString& likely) {
    const int found = seek(name);
    if (found < 0) return {};
    const QByteArray content = reading_->bytes(reading_->attributes_[static_cast<std::size_t>(found)]);
    if (content.isEmpty()) return QStringLiteral("");
    return isSameAscii(likely, content) ? likely : QString::fromUtf8(content);
}

QByteArray XmlAttributes::bytes(const char* name) {
    const int found = seek(name);
    return found < 0 ? QByteArray() : reading_->bytes(reading_->attributes_[static_cast<std::size_t>(found)]);
}

} // namespace platform
