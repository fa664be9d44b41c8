#include "desk/report/ReportStyle.h"

#include "desk/report/ReportElement.h"
#include "desk/report/ReportItem.h"

namespace desk {

Qt::Alignment reportAlignment(const ReportElement& element) {
    const QString word = element.value("allineamento");
    if (word == QLatin1String("destra")) return Qt::AlignRight;
    return word == QLatin1String("centro") ? Qt::AlignHCenter : Qt::AlignLeft;
}

ReportStyle ReportStyle::changedBy(const ReportElement& element) const {
    ReportStyle changed = *this;
    changed.family = element.value("carattere", family);
    changed.size = element.number("dimensione", size);
    changed.bold = element.flag("grassetto", bold);
    changed.italic = element.flag("corsivo", italic);
    changed.upperCase = element.flag("maiuscolo", upperCase);
    changed.colour = element.colour("colore", colour);
    if (element.attributes.contains(QStringLiteral("allineamento"))) changed.alignment = reportAlignment(element);
    return changed;
}

ReportStyle ReportStyle::aligned(Qt::Alignment where) const {
    ReportStyle changed = *this;
    changed.alignment = where;
    return changed;
}

ReportStyle ReportStyle::bolder() const {
    ReportStyle changed = *this;
    changed.bold = true;
    return changed;
}

ReportStyle ReportStyle::coloured(const QColor& with) const {
    ReportStyle changed = *this;
    changed.colour = with;
    return changed;
}

ReportStyle ReportStyle::sized(qreal points) const {
    ReportStyle changed = *this;
    changed.size = points;
    return changed;
}

QFont ReportStyle::font() const {
    QFont font;
    // A family that this machine lacks must not turn the page into boxes.
    font.setFamilies({family, QStringLiteral("Carlito"), QStringLiteral("DejaVu Sans")});
    font.setPixelSize(qRound(fromPoints(size)));
    font.setBold(bold);
    font.setItalic(italic);
    // Without it glyphs would stand at the pixels of one device and not at those of another.
    font.setHintingPreference(QFont::PreferNoHinting);
    // Any spacing at all keeps letters from melting into ligatures, which many readers of a PDF cannot search or copy.
    if (upperCase)
        font.setLetterSpacing(QFont::PercentageSpacing, 106);
    else
        font.setLetterSpacing(QFont::AbsoluteSpacing, 0.1);
    return font;
}

} // namespace desk
