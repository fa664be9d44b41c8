#include "platform/TaskMarkup.h"

#include <QColor>
#include <QRegularExpression>
#include <QStringList>

namespace platform {

namespace {

QString attribute(const QString& attributes, const char* name) {
    const QRegularExpression pattern(QStringLiteral("\\b%1\\s*=\\s*(['\"])(.*?)\\1").arg(QLatin1String(name)),
                                     QRegularExpression::CaseInsensitiveOption);
    return pattern.match(attributes).captured(2);
}

QString runStart(const QString& attributes) {
    QString style;
    if (const QColor colour(attribute(attributes, "Foreground")); colour.isValid()) {
        style += QStringLiteral("color:%1;").arg(colour.name());
    }
    if (attribute(attributes, "FontWeight").compare(QLatin1String("Bold"), Qt::CaseInsensitive) == 0) {
        style += QStringLiteral("font-weight:bold;");
    }
    return QStringLiteral("<span style=\"%1\">").arg(style);
}

/// The name of the rich text element for a tag of the markup; empty when the tag is none of ours.
QString elementFor(const QString& tag) {
    if (tag == QLatin1String("bold")) return QStringLiteral("b");
    if (tag == QLatin1String("underline")) return QStringLiteral("u");
    if (tag == QLatin1String("italic")) return QStringLiteral("i");
    if (tag == QLatin1String("run") || tag == QLatin1String("textblock")) return QStringLiteral("span");
    if (tag == QLatin1String("a")) return QStringLiteral("a");
    return {};
}

QString startOf(const QString& element, const QString& attributes) {
    if (element == QLatin1String("span")) return runStart(attributes);
    if (element != QLatin1String("a")) return QLatin1Char('<') + element + QLatin1Char('>');
    return QStringLiteral("<a href=\"%1\">").arg(attribute(attributes, "HREF").toHtmlEscaped());
}

QString escapedText(QString text) {
    // Written entities are characters of the text, too; the ampersand comes last, or "&amp;lt;" would be read twice.
    text.replace(QLatin1String("&lt;"), QLatin1String("<")).replace(QLatin1String("&gt;"), QLatin1String(">"));
    text.replace(QLatin1String("&quot;"), QLatin1String("\"")).replace(QLatin1String("&apos;"), QLatin1String("'"));
    text.replace(QLatin1String("&amp;"), QLatin1String("&"));
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br/>"));
}

} // namespace

QString richText(const QString& markup) {
    static const QRegularExpression tags(QStringLiteral("<(/?)([A-Za-z]+)(\\s[^<>]*?)?(/?)>"));
    QString rich;
    QStringList open;
    qsizetype from = 0;
    auto matches = tags.globalMatch(markup);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString tag = match.captured(2).toLower();
        const QString element = elementFor(tag);
        if (element.isEmpty() && tag != QLatin1String("linebreak")) continue;
        rich += escapedText(markup.mid(from, match.capturedStart() - from));
        from = match.capturedEnd();
        if (element.isEmpty()) {
            rich += QLatin1String("<br/>");
        } else if (!match.captured(1).isEmpty()) {
            if (open.isEmpty() || open.last() != element) continue;
            rich += QLatin1String("</") + open.takeLast() + QLatin1Char('>');
        } else {
            rich += startOf(element, match.captured(3));
            if (tag == QLatin1String("run")) rich += escapedText(attribute(match.captured(3), "Text"));
            if (match.captured(4).isEmpty()) {
                open << element;
            } else {
                rich += QLatin1String("</") + element + QLatin1Char('>');
            }
        }
    }
    rich += escapedText(markup.mid(from));
    while (!open.isEmpty())
        rich += QLatin1String("</") + open.takeLast() + QLatin1Char('>');
    return rich;
}

} // namespace platform
