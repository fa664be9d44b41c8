#include "platform/ReportCellPainter.h"

#include "platform/ReportRecord.h"

#include <QPainter>
#include <QPolygon>
#include <QStyle>
#include <QStyleOptionButton>
#include <QWidget>
#include <algorithm>

namespace platform {

namespace {

constexpr int margin = 3;
constexpr int iconSize = 16;
constexpr int checkSize = 15;
constexpr int buttonWidth = 17;

QColor mixed(const QColor& base, const QColor& over, int percent) {
    const auto part = [percent](int low, int high) { return (low * (100 - percent) + high * percent) / 100; };
    return {part(base.red(), over.red()), part(base.green(), over.green()), part(base.blue(), over.blue())};
}

QFont bolder(QFont font) {
    font.setBold(true);
    return font;
}

QRect takeLeft(QRect& rest, int width, int height) {
    const QRect taken(rest.left(), rest.top() + (rest.height() - height) / 2, width, height);
    rest.setLeft(rest.left() + width + margin);
    return taken;
}

void triangle(QPainter& painter, const QRect& area, bool down) {
    const QPoint centre = area.center();
    QPolygon shape;
    if (down) {
        shape << centre + QPoint(-4, -2) << centre + QPoint(4, -2) << centre + QPoint(0, 3);
    } else {
        shape << centre + QPoint(-2, -4) << centre + QPoint(-2, 4) << centre + QPoint(3, 0);
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(70, 80, 92));
    painter.drawPolygon(shape);
    painter.restore();
}

} // namespace

ReportCellParts::ReportCellParts(const ReportCell& cell, const QRect& area, int indent, bool showsList) {
    const ReportCellStyle& style = cell.style();
    QRect rest = area.adjusted(indent, 0, -1, -1);
    if (style.button) {
        button = QRect(rest.right() - buttonWidth + 1, rest.top(), buttonWidth, rest.height());
        rest.setRight(button.left() - 1);
    }
    if (showsList) {
        list = QRect(rest.right() - buttonWidth + 1, rest.top(), buttonWidth, rest.height());
        rest.setRight(list.left() - 1);
    }
    rest.adjust(margin, 0, 0, 0);
    if (style.hasCheckBox) {
        // A box without a text stands in the middle of its column.
        if (cell.value.isEmpty() && style.icon.isNull())
            rest.setLeft(std::max(rest.left(), area.center().x() - checkSize / 2));
        check = takeLeft(rest, checkSize, checkSize);
    }
    if (!style.icon.isNull()) {
        if (cell.value.isEmpty() && !style.hasCheckBox)
            rest.setLeft(std::max(area.left() + 2, area.center().x() - iconSize / 2));
        icon = takeLeft(rest, iconSize, iconSize);
    }
    text = rest.adjusted(0, 0, style.button || showsList ? -1 : -margin, 0);
}

ReportCellPainter::ReportCellPainter(const ReportColours& colours, const QWidget& widget)
    : colours_(colours)
    , widget_(widget)
    , plain_(widget.font())
    , bold_(bolder(widget.font())) {}

QColor ReportCellPainter::ground(const ReportCellStyle& style, const ReportCellState& state) const {
    // Under a text in the colour of a notice the cell's own colour gives way, or the text could not be read.
    const bool pale = style.background.isValid() && noticeColour(style.notice).isValid();
    const QColor own = pale ? mixed(style.background, colours_.plain, 65) : style.background;
    const QColor base = own.isValid() ? own : (state.shaded ? colours_.shaded : colours_.plain);
    if (!state.selected) return base;
    // A colour of the cell's own carries a meaning: the selection may only touch it.
    const int strength = own.isValid() ? 5 : 26;
    return mixed(base, colours_.accent, state.active ? strength : strength * 2 / 3);
}

void ReportCellPainter::cell(QPainter& painter, const QRect& area, const ReportCell& cell,
                             const ReportCellState& state) const {
    const ReportCellStyle& style = cell.style();
    painter.fillRect(area, ground(style, state));
    const ReportCellParts parts(cell, area, state.indent, state.focused && !style.choices.isEmpty());
    if (!parts.check.isNull()) {
        QStyleOptionButton option;
        option.initFrom(&widget_);
        option.rect = parts.check;
        option.state = style.checked ? QStyle::State_On : QStyle::State_Off;
        if (style.checkEditable && state.enabled) option.state |= QStyle::State_Enabled;
        widget_.style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter, &widget_);
    }
    if (!parts.icon.isNull()) style.icon.paint(&painter, parts.icon);
    if (!cell.value.isEmpty()) text(painter, parts.text, cell, state);
    if (!parts.button.isNull()) button(painter, parts.button);
    if (!parts.list.isNull()) triangle(painter, parts.list, true);
    painter.fillRect(area.right(), area.top(), 1, area.height(), colours_.line);
    frame(painter, area, state);
    if (const QColor notice = noticeColour(style.notice); notice.isValid()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(notice);
        painter.drawRect(area.adjusted(1, 1, -3, -3));
    }
}

void ReportCellPainter::text(QPainter& painter, const QRect& area, const ReportCell& cell,
                             const ReportCellState& state) const {
    const ReportCellStyle& style = cell.style();
    const CellFont& font = style.bold ? bold_ : plain_;
    painter.setFont(font.font());
    const QPalette& palette = widget_.palette();
    const auto group = state.enabled ? QPalette::Active : QPalette::Disabled;
    painter.setPen(style.foreground.isValid() ? style.foreground : palette.color(group, QPalette::Text));
    // Only the first line of a long note fits the row.
    const qsizetype lineEnd = cell.value.indexOf(QLatin1Char('\n'));
    const QString shown = lineEnd < 0 ? cell.value : cell.value.left(lineEnd).trimmed() + QChar(0x2026);
    const QString fitting = font.fitting(shown, area.width());
    int left = area.left();
    if (state.alignment & Qt::AlignRight) left = area.right() + 1 - font.width(fitting);
    if (state.alignment & Qt::AlignHCenter) left += (area.width() - font.width(fitting)) / 2;
    painter.drawText(left, font.baseline(area), fitting);
}

void ReportCellPainter::button(QPainter& painter, const QRect& area) const {
    const QRect box = area.adjusted(1, 2, -2, -2);
    painter.setPen(QColor(150, 162, 176));
    painter.setBrush(QColor(240, 243, 247));
    painter.drawRect(box);
    painter.setBrush(QColor(60, 70, 82));
    painter.setPen(Qt::NoPen);
    for (int dot = -1; dot <= 1; ++dot)
        painter.drawRect(box.center().x() + dot * 4, box.center().y() + 2, 2, 2);
    painter.setBrush(Qt::NoBrush);
}

void ReportCellPainter::frame(QPainter& painter, const QRect& area, const ReportCellState& state) const {
    // A fill is a fifth of the work of a line.
    painter.fillRect(area.left(), area.bottom(), area.width(), 1, state.selected ? colours_.accent : colours_.line);
    if (state.selected) painter.fillRect(area.left(), area.top(), area.width(), 1, colours_.accent);
    if (!state.focused) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(state.active ? QPen(colours_.accent.darker(130), 2) : QPen(colours_.accent, 1));
    painter.drawRect(state.active ? area.adjusted(1, 1, -1, -1) : area.adjusted(0, 0, -1, -1));
}

void ReportCellPainter::rest(QPainter& painter, const QRect& area, const ReportCellState& state) const {
    painter.fillRect(area, ground({}, state));
    frame(painter, area, state);
}

void ReportCellPainter::expander(QPainter& painter, const QRect& area, bool open) const {
    triangle(painter, area, open);
}

void ReportCellPainter::groupHead(QPainter& painter, const QRect& area, const QString& text, int indent, bool open,
                                  bool selected) const {
    const QColor head = mixed(colours_.head, colours_.plain, 35);
    painter.fillRect(area, selected ? mixed(head, colours_.accent, 30) : head);
    expander(painter, QRect(area.left() + indent, area.top(), 20, area.height()), open);
    painter.setFont(bold_.font());
    painter.setPen(widget_.palette().color(QPalette::Text));
    const QRect place = area.adjusted(indent + 22, 0, -margin, 0);
    painter.drawText(place.left(), bold_.baseline(place), bold_.fitting(text, place.width()));
    painter.setPen(selected ? colours_.accent : mixed(colours_.head, Qt::black, 18));
    painter.drawLine(area.bottomLeft(), area.bottomRight());
}

} // namespace platform
