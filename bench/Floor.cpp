#include "Floor.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

namespace {

std::size_t lengthOf(const xmlNode* text) {
    std::size_t length = 0;
    for (; text; text = text->next)
        length += static_cast<std::size_t>(xmlStrlen(text->content));
    return length;
}

std::size_t readElement(const xmlNode* element) {
    std::size_t length = 0;
    for (const xmlAttr* attribute = element->properties; attribute; attribute = attribute->next)
        length += lengthOf(attribute->children);
    for (const xmlNode* child = element->children; child; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) length += readElement(child);
        if (child->type == XML_TEXT_NODE) length += static_cast<std::size_t>(xmlStrlen(child->content));
    }
    return length;
}

} // namespace

std::size_t readBare(const QByteArray& utf8) {
    constexpr int options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;
    xmlDoc* const document = xmlReadMemory(utf8.constData(), static_cast<int>(utf8.size()), nullptr, "UTF-8", options);
    if (!document) return 0;
    const std::size_t length = readElement(xmlDocGetRootElement(document));
    xmlFreeDoc(document);
    return length;
}
