#include "documents/MemoText.h"

#include "platform/SingleByteText.h"

#include <QStringList>

namespace memo {

namespace {

bool isAllowedInXml(QChar c) {
    const char16_t u = c.unicode();
    return u >= 0x20 ? u < 0xFFFE : (u == '\t' || u == '\r' || u == '\n');
}

bool isPlain(const QString& value) {
    for (const QChar c : value) {
        const char16_t u = c.unicode();
        if (u < 0x20 || u == '"' || u == '&' || u == '<' || u >= 0xD800) return false;
    }
    return true;
}

} // namespace

void appendDeclaration(QString& memo) {
    memo += QLatin1String("<?xml version=\"1.0\" encoding=\"utf-8\"?>") + LINE_END;
}

void appendValue(QString& memo, const QString& value) {
    if (isPlain(value)) {
        memo += value;
        return;
    }
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar c = value.at(i);
        if (c.isSurrogate()) {
            const bool pair = c.isHighSurrogate() && i + 1 < value.size() && value.at(i + 1).isLowSurrogate();
            if (pair) memo.append(c).append(value.at(++i));
        } else if (c == u'"') {
            memo += QLatin1String("&quot;");
        } else if (c == u'&') {
            memo += QLatin1String("&amp;");
        } else if (c == u'<') {
            memo += QLatin1String("&lt;");
        } else if (c == u'\t' || c == u'\r' || c == u'\n') {
            memo += QStringLiteral("&#%1;").arg(c.unicode());
        } else if (isAllowedInXml(c)) {
            memo += c;
        }
    }
}

void appendAttribute(QString& memo, QLatin1String name, const QString& value) {
    memo += name;
    memo += QLatin1String("=\"");
    appendValue(memo, value);
    memo += QLatin1String("\" ");
}

void appendEncoded(QString& memo, QLatin1String name, const QString& text) {
    memo += name;
    memo += QLatin1String("=\"") + platform::toBase64(text) + QLatin1String("\" ");
}

void appendPerson(QString& memo, QLatin1String element, const QString& taxCode, const QString& name) {
    memo += QLatin1String("\t<") + element + QLatin1String(" codiceFiscale=\"");
    appendValue(memo, taxCode);
    memo +=
        QLatin1String("\">") + platform::toBase64(name) + QLatin1String("</") + element + QLatin1Char('>') + LINE_END;
}

void appendText(QString& memo, QLatin1String element, const QString& text) {
    memo += QLatin1String("\t<") + element + QLatin1Char('>') + platform::toBase64(text) + QLatin1String("</") +
            element + QLatin1Char('>') + LINE_END;
}

void readPerson(const platform::XmlElement& node, QString& taxCode, QString& name) {
    if (!node) return;
    taxCode = node.attribute("codiceFiscale", QString());
    name = platform::fromBase64(node.text());
}

void readText(const platform::XmlElement& node, QString& text) {
    if (node) text = platform::fromBase64(node.text());
}

platform::XmlElement root(const platform::XmlReading& memo, const char* element) {
    return memo.root().is(element) ? memo.root() : platform::XmlElement();
}

QString rowDescriptions(const platform::XmlElement& rows) {
    QStringList descriptions;
    for (platform::XmlElement row = rows.firstChild("rigo"); row; row = row.nextSibling("rigo")) {
        const QString description = platform::fromBase64(row.attributeBytes("descrizione"));
        if (!description.isEmpty()) descriptions << description;
    }
    return descriptions.join(LINE_END);
}

} // namespace memo
