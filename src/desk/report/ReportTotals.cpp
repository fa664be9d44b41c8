#include "desk/report/ReportTotals.h"

#include "desk/report/ReportText.h"

#include <algorithm>

namespace desk {

namespace {

constexpr qreal PADDING_ACROSS = fromPoints(6);
constexpr qreal PADDING_DOWN = fromPoints(2.6);
constexpr qreal LINE = fromPoints(0.5);

ReportItem fill(const QRectF& rect, const QColor& colour) {
    ReportItem item;
    item.rect = rect;
    item.colour = colour;
    return item;
}

ReportBox entryBox(const ReportTotal& entry, const ReportTotalsLook& look, qreal width) {
    const ReportStyle style = entry.stressed ? look.style.bolder().sized(look.style.size * 1.25) : look.style;
    const qreal padding = entry.stressed ? 2 * PADDING_DOWN : PADDING_DOWN;
    const qreal inner = width - 2 * PADDING_ACROSS;
    // The amount stays whole; the title wraps in what it leaves.
    const qreal amount = std::min(reportLineWidth(entry.value, style) + 1, inner * 0.7);
    ReportBox box;
    box.place(layOutText(entry.title, style.aligned(Qt::AlignLeft), inner - amount - PADDING_ACROSS),
              {PADDING_ACROSS, padding});
    box.place(layOutText(entry.value, style.aligned(Qt::AlignRight), amount),
              {width - PADDING_ACROSS - amount, padding});
    box.addSpace(padding);
    if (entry.stressed && look.fill.isValid()) {
        ReportItem ground = fill(QRectF(0, 0, width, box.height()), look.fill);
        ground.radius = fromMillimetres(1);
        box.addBehind(ground);
    }
    return box;
}

} // namespace

ReportBox layOutTotals(const QString& title, const std::vector<ReportTotal>& entries, const ReportTotalsLook& look,
                       qreal width) {
    ReportBox box;
    bool isFirst = true;
    if (!title.isEmpty())
        box.place(layOutText(title, look.style.bolder(), width - 2 * PADDING_ACROSS), {PADDING_ACROSS, 0});
    for (const ReportTotal& entry : entries) {
        if (entry.value.isEmpty() && !entry.isTitle) continue;
        if (entry.isTitle) {
            box.placeBelow(entryBox({entry.title, {}}, {look.style.bolder(), look.lineColour, {}}, width));
            isFirst = true;
            continue;
        }
        // A filled line needs no rule above it.
        if (!isFirst && !(entry.stressed && look.fill.isValid()))
            box.add(fill(QRectF(0, box.height(), width, LINE), look.lineColour));
        box.placeBelow(entryBox(entry, look, width));
        isFirst = false;
    }
    return box;
}

std::vector<ReportTotal> totalsOfLines(const QString& text) {
    std::vector<ReportTotal> entries;
    QString lines = text;
    lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    for (const QString& line : lines.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const qsizetype colon = line.indexOf(QLatin1Char(':'));
        if (line.trimmed().isEmpty()) continue;
        if (colon < 0)
            entries.push_back({.title = line.trimmed(), .value = {}, .isTitle = true});
        else
            entries.push_back({line.left(colon).trimmed(), line.mid(colon + 1).trimmed()});
    }
    return entries;
}

} // namespace desk
