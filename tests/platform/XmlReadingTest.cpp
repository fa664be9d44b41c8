#include "platform/XmlReading.h"
#include "platform/XmlDocument.h"

#include <gtest/gtest.h>

using platform::XmlAttributes;
using platform::XmlDocument;
using platform::XmlElement;
using platform::XmlNode;
using platform::XmlReading;

namespace {

void expectSame(const XmlElement& element, const XmlNode& node) {
    EXPECT_EQ(element.name(), node.name());
    EXPECT_EQ(QString::fromUtf8(element.text()), node.text());
    const auto attributes = node.attributes();
    ASSERT_EQ(element.attributeNames().size(), attributes.size());
    for (const auto& [name, value] : attributes)
        EXPECT_EQ(element.attribute(name.toLatin1().constData()), value) << name.toStdString();
    XmlElement child = element.firstChild();
    for (XmlNode other = node.firstChild(); other; other = other.nextSibling(), child = child.nextSibling()) {
        ASSERT_TRUE(child);
        expectSame(child, other);
    }
    EXPECT_FALSE(child);
}

} // namespace

TEST(XmlReading, ReadsAndRefusesWhatTheDocumentDoes) {
    const char* const texts[] = {
        "<a/>",
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<a x=\"1\" y=\"\">\r\n\t<b z=\"più\"/>t<b>u<c/>v</b>\n</a>",
        "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?><a x='è'>è</a>",
        "<a x=\"&amp;&lt;&gt;&quot;&apos;&#13;&#10;&#x20AC; &#38;lt;\">&amp;&lt;&#38;amp;</a>",
        "<a><![CDATA[<b>]]> <!-- c --> <?p i?>d</a>",
        "",
        "  ",
        "testo",
        "<a>",
        "<a><b></a>",
        "<a x=1/>",
        "<a x=\"1\" x=\"2\"/>",
        "<a>&nbsp;</a>",
        "<a/><b/>",
        "<!DOCTYPE a [<!ENTITY e \"x\">]><a>&e;</a>",
        "<!DOCTYPE a><a/>",
        "<a x=\"\x01\"/>",
    };
    for (const char* text : texts) {
        SCOPED_TRACE(text);
        XmlDocument document;
        const bool loaded = document.loadText(QString::fromUtf8(text));
        const XmlReading reading(QString::fromUtf8(text));
        ASSERT_EQ(static_cast<bool>(reading.root()), loaded);
        if (loaded) expectSame(reading.root(), document.root());
    }
}

TEST(XmlReading, FindsAttributesInAnyOrder) {
    const XmlReading reading(QStringLiteral("<a uno=\"1\" due=\"2\" tre=\"\"/>"));
    XmlAttributes attributes(reading.root());
    EXPECT_EQ(attributes.text("tre"), QStringLiteral(""));
    EXPECT_FALSE(attributes.text("tre").isNull());
    EXPECT_TRUE(attributes.text("manca").isNull());
    EXPECT_EQ(attributes.bytes("uno"), "1");
    const QString likely = QStringLiteral("2");
    EXPECT_EQ(attributes.text("due", likely).constData(), likely.constData()) << "the same text is one text in memory";
    EXPECT_EQ(attributes.text("uno", likely), QStringLiteral("1"));
    EXPECT_EQ(attributes.find("quattro"), std::nullopt);
    XmlAttributes none{XmlElement()};
    EXPECT_EQ(none.find("uno"), std::nullopt);
}
