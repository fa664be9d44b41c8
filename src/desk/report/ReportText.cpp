#include "desk/report/ReportText.h"

#include <QFontMetricsF>
#include <QRegularExpression>
#include <QTextLayout>
#include <QTextOption>

namespace desk {

namespace {

constexpr qreal LEADING = 1.04; // Lines a little apart, as in a letter.

/// The text as it can be set in lines: one kind of line end, and no control character, which fonts show as boxes.
QString settable(const QString& text, const ReportStyle& style) {
    QString result = style.upperCase ? text.toUpper() : text;
    result.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar& character : result) {
        const char16_t code = character.unicode();
        if (code == '\r' || code == 8)
            character = QLatin1Char('\n');
        else if (code < 0x20 && code != '\n')
            character = QLatin1Char(' ');
    }
    while (result.endsWith(QLatin1Char('\n')))
        result.chop(1);
    return result;
}

qreal leftOf(qreal lineWidth, qreal width, Qt::Alignment alignment) {
    if (alignment & Qt::AlignRight) return width - lineWidth;
    if (alignment & Qt::AlignHCenter) return (width - lineWidth) / 2;
    return 0;
}

ReportBox layOutParagraph(const QString& text, const ReportStyle& style, qreal width) {
    const QFont font = style.font();
    ReportBox box;
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const qreal lineWidth = line.naturalTextWidth();
        const qreal lineHeight = (line.ascent() + line.descent()) * LEADING;
        ReportItem item;
        item.kind = ReportItem::Kind::Text;
        item.text = text.mid(line.textStart(), line.textLength());
        item.rect = QRectF(leftOf(lineWidth, width, style.alignment), box.height(), lineWidth, lineHeight);
        item.ascent = line.ascent() + (lineHeight - line.ascent() - line.descent()) / 2;
        item.font = font;
        item.colour = style.colour;
        box.add(std::move(item));
    }
    layout.endLayout();
    return box;
}

} // namespace

ReportBox layOutText(const QString& text, const ReportStyle& style, qreal width) {
    ReportBox box;
    const QString clean = settable(text, style);
    if (clean.trimmed().isEmpty()) return box;
    for (const QString& paragraph : clean.split(QLatin1Char('\n')))
        box.placeBelow(layOutParagraph(paragraph, style, std::max(width, fromPoints(1))));
    return box;
}

qreal reportLineWidth(const QString& text, const ReportStyle& style) {
    const QFontMetricsF metrics(style.font());
    qreal width = 0;
    for (const QString& line : settable(text, style).split(QLatin1Char('\n')))
        width = std::max(width, metrics.horizontalAdvance(line));
    return width;
}

qreal longestWordWidth(const QString& text, const ReportStyle& style) {
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    const QFontMetricsF metrics(style.font());
    qreal width = 0;
    for (const QString& word : settable(text, style).split(blanks, Qt::SkipEmptyParts))
        width = std::max(width, metrics.horizontalAdvance(word));
    return width;
}

} // namespace desk
