#include "platform/Files.h"
#include "platform/XmlDocument.h"
#include "support/Text.h"

#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using platform::XmlDocument;
using platform::XmlError;
using platform::XmlNode;

namespace {

XmlDocument loaded(const char* text) {
    XmlDocument document;
    EXPECT_TRUE(document.loadText(u8(text))) << document.lastError().toStdString();
    return document;
}

QByteArray billionLaughs() {
    QByteArray text = "<!DOCTYPE a [<!ENTITY e0 'ha'>";
    for (char level = '1'; level <= '9'; ++level) {
        const QByteArray inner = QByteArray("&e") + char(level - 1) + ';';
        text += QByteArray("<!ENTITY e") + level + " '" + inner.repeated(10) + "'>";
    }
    return text + "]><a b='&e9;'>&e9;</a>";
}

} // namespace

TEST(XmlDocument, RefusesEveryKindOfBrokenDocument) {
    const struct {
        const char* name;
        QByteArray text;
    } cases[] = {
        {"empty", ""},
        {"no element", "solo testo"},
        {"truncated", "<a><b x='1'/><c"},
        {"unclosed", "<a><b></a>"},
        {"two roots", "<a/><b/>"},
        {"duplicate attribute", "<a x='1' x='2'/>"},
        {"bare ampersand", "<a>b & c</a>"},
        {"bracket in an attribute", "<a x='<'/>"},
        {"attribute without quotes", "<a x=1/>"},
        {"invalid UTF-8", "<a>\xE8 solo</a>"},
        {"control character", "<a>\x01</a>"},
        {"declaration too late", " <?xml version='1.0'?><a/>"},
        {"unknown entity", "<a>&egrave;</a>"},
        {"document type", "<!DOCTYPE a><a/>"},
        {"document type elsewhere", "<!DOCTYPE a SYSTEM 'file:///etc/passwd'><a/>"},
        {"internal entity", "<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>"},
        {"external entity", "<!DOCTYPE a [<!ENTITY e SYSTEM 'file:///etc/hostname'>]><a>&e;</a>"},
        {"billion laughs", billionLaughs()},
        {"attribute of 100 MB", "<a x='" + QByteArray(100 << 20, 'x') + "'/>"},
        {"text of 100 MB", "<a>" + QByteArray(100 << 20, 'x') + "</a>"},
        {"a thousand levels", QByteArray("<a>").repeated(1000) + QByteArray("</a>").repeated(1000)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        XmlDocument document = loaded("<prima/>");
        EXPECT_FALSE(document.loadBytes(c.text));
        EXPECT_FALSE(document.lastError().isEmpty());
        EXPECT_FALSE(document.isLoaded());
        EXPECT_FALSE(document.root());
        EXPECT_TRUE(document.toBytes().isEmpty());
    }
}

TEST(XmlDocument, TheTextIsUtf8WhateverItsDeclarationSays) {
    for (const char* encoding : {"UTF-8", "utf-8", "ISO-8859-1", "UTF-16", "inventata"}) {
        SCOPED_TRACE(encoding);
        XmlDocument document;
        ASSERT_TRUE(
            document.loadText(u8("<?xml version=\"1.0\" encoding=\"%1\"?><a x=\"città €\"/>").arg(u8(encoding))));
        EXPECT_EQ(document.root().attribute("x"), u8("città €"));
        EXPECT_TRUE(document.toBytes().startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
        EXPECT_TRUE(document.toBytes().contains("citt\xC3\xA0"));
    }
    XmlDocument marked;
    EXPECT_TRUE(marked.loadBytes("\xEF\xBB\xBF<a/>"));
}

TEST(XmlDocument, WalksElementsAndSkipsTheRest) {
    const XmlDocument document =
        loaded("<r>\r\n\t<!-- nota --><a n=\"1\" vuoto=\"\"/>testo<b/><?pi x?><a n='2'>u<i>n</i>o</a></r>");
    const XmlNode first = document.root().firstChild();
    EXPECT_EQ(first.name(), u8("a"));
    EXPECT_EQ(first.attribute("n"), u8("1"));
    EXPECT_EQ(first.attribute("vuoto"), QString());
    EXPECT_TRUE(first.attribute("vuoto").has_value());
    EXPECT_EQ(first.attribute("manca"), std::nullopt);
    EXPECT_EQ(first.attribute("manca", u8("di serie")), u8("di serie"));
    EXPECT_FALSE(first.hasAttribute("manca"));
    EXPECT_EQ(first.nextSibling().name(), u8("b"));
    EXPECT_EQ(first.nextSibling("a").text(), u8("uno"));
    EXPECT_EQ(first.nextSibling("a").parent(), document.root());
    EXPECT_FALSE(first.nextSibling("a").nextSibling());
    EXPECT_FALSE(document.root().parent());
    EXPECT_EQ(document.root().firstChild("b").text(), QString());

    const XmlNode none;
    EXPECT_EQ(none.name() + none.text() + none.attribute("x", QString()), QString());
    EXPECT_FALSE(none.firstChild() || none.nextSibling("x") || none.parent() || none.appendChild("x"));
    EXPECT_TRUE(none.select("*").empty());
}

TEST(XmlDocument, SelectsElementsInTheOrderOfTheDocument) {
    const XmlDocument document = loaded("<r><a n='1'/><b><a n='2'/></b><a n='3'/></r>");
    QStringList order;
    for (const XmlNode& node : document.select("//a[@n>2] | //a[@n<3]"))
        order += node.attribute("n", QString());
    EXPECT_EQ(order, QStringList({u8("1"), u8("2"), u8("3")}));
    EXPECT_EQ(document.selectOne("/r/b").selectOne("a").attribute("n"), u8("2"));
    EXPECT_EQ(document.root().select("a").size(), 2U);
    EXPECT_FALSE(document.selectOne("/r/c"));
    EXPECT_TRUE(document.select("count(//a)").empty());
    EXPECT_THROW(document.select("//a["), XmlError);
    EXPECT_TRUE(XmlDocument().select("//a").empty());
}

TEST(XmlDocument, WhatIsWrittenReadsBackTheSame) {
    const QString hard = u8("<b> & \"doppi\" 'singoli'\r\n\tà € 🦷 ]]>");
    XmlDocument document = loaded("<r><a x='1' y='2' z='3'>vecchio <i>testo</i></a></r>");
    const XmlNode a = document.root().firstChild();
    a.setAttribute("y", hard);
    a.setAttribute("nuovo", QString());
    a.setText(hard);
    document.root().appendChild("b").setText(u8("coda\x01\x0B pulita")); // XML cannot hold these two at all.

    XmlDocument again;
    ASSERT_TRUE(again.loadBytes(document.toBytes())) << again.lastError().toStdString();
    const XmlNode back = again.root().firstChild();
    EXPECT_EQ(back.attribute("y"), hard);
    EXPECT_EQ(back.attribute("nuovo"), QString());
    EXPECT_EQ(back.text(), hard);
    EXPECT_EQ(back.nextSibling().text(), u8("coda pulita"));
    EXPECT_TRUE(again.toBytes().contains("<a x=\"1\" y=")); // An attribute that was there keeps its place.
}

TEST(XmlDocument, OnlyADirectChildIsRemoved) {
    XmlDocument document = loaded("<r><a><b/></a><c/></r>");
    XmlNode a = document.root().firstChild();
    XmlNode b = a.firstChild();
    XmlNode root = document.root();
    XmlNode none;
    EXPECT_THROW(document.root().removeChild(b), XmlError);
    EXPECT_THROW(document.removeChild(b), XmlError);
    EXPECT_THROW(document.root().removeChild(root), XmlError);
    EXPECT_THROW(document.root().removeChild(none), XmlError);
    EXPECT_EQ(document.select("//*").size(), 4U);
    a.removeChild(b);
    EXPECT_FALSE(b);
    EXPECT_FALSE(a.firstChild());
    document.root().removeChild(a);
    EXPECT_EQ(document.root().firstChild().name(), u8("c"));
    document.removeChild(root);
    EXPECT_FALSE(document.root());
    EXPECT_THROW(document.removeChild(none), XmlError);
}

TEST(XmlDocument, AFileIsReadInTheEncodingThatItDeclares) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u8("Config.xml"));
    const QString text = u8("<a x=\"citt\u00e0 \u20ac\"/>");
    QStringEncoder utf16(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    const struct {
        const char* name;
        QByteArray content;
    } cases[] = {
        {"none", text.toUtf8()},
        {"byte order mark", "\xEF\xBB\xBF" + text.toUtf8()},
        {"windows-1252", "<?xml version=\"1.0\" encoding=\"windows-1252\"?><a x=\"citt\xE0 \x80\"/>"},
        {"UTF-16", QByteArray(utf16(text))},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        ASSERT_TRUE(platform::files::writeAtomically(path, one.content));
        XmlDocument document;
        ASSERT_TRUE(document.loadFile(path)) << document.lastError().toStdString();
        EXPECT_EQ(document.root().attribute("x"), u8("citt\u00e0 \u20ac"));
        ASSERT_TRUE(document.saveFile(path));
        EXPECT_TRUE(XmlDocument().loadFile(path)) << "what is written back declares what it is";
    }
}

TEST(XmlDocument, FilesAreReadAndReplacedWhole) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u8("Config.xml"));
    EXPECT_FALSE(XmlDocument().saveFile(path));
    const char* const text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<r>\n\t<a x=\"1\"/>\n</r>\n";
    ASSERT_TRUE(loaded(text).saveFile(path));
    XmlDocument document;
    ASSERT_TRUE(document.loadFile(folder.filePath(u8("CONFIG.XML"))));
    EXPECT_EQ(document.toBytes(), text); // Layout as loaded.
    EXPECT_FALSE(document.loadFile(folder.filePath(u8("manca.xml"))));
    EXPECT_FALSE(document.isLoaded());
    EXPECT_FALSE(document.lastError().isEmpty());
    EXPECT_FALSE(loaded(text).saveFile(folder.filePath(u8("manca/Config.xml"))));
}
