#include "platform/ReportColumnWidths.h"

#include "platform/ReportGridModel.h"

#include <QHeaderView>
#include <QTreeView>
#include <algorithm>
#include <cmath>

namespace platform {

namespace {
constexpr int narrowest = 60; ///< A resizable column never shrinks below this or its own width.

/// A date with its margins takes 64 of the units in which columns are measured.
qreal unit(const QTreeView& view) {
    const int date = view.fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000"));
    return std::max(1.0, (date + 8) / 64.0);
}
} // namespace

void ReportColumnWidths::apply() {
    if (applying_) return;
    applying_ = true;
    const qreal scale = unit(view_);
    const auto scaled = [scale](int width) { return static_cast<int>(std::lround(width * scale)); };
    int room = view_.viewport()->width();
    int shares = 0;
    for (int i = 0; i < model_.columns(); ++i) {
        const ReportColumn& column = model_.column(i);
        view_.setColumnHidden(i, !column.visible);
        if (!column.visible) continue;
        const bool shared = column.resizable && !dragged_.contains(i);
        if (shared) {
            shares += std::max(column.width, 1);
        } else {
            const int width = dragged_.contains(i) ? dragged_.value(i) : scaled(column.width);
            view_.setColumnWidth(i, width);
            room -= width;
        }
    }
    for (int i = 0; i < model_.columns(); ++i) {
        const ReportColumn& column = model_.column(i);
        if (!column.visible || !column.resizable || dragged_.contains(i)) continue;
        // What is left after rounding goes to the last one, so that the columns end at the edge.
        const int share = std::max(column.width, 1);
        const int width = shares == share ? room : room * share / shares;
        room -= width;
        shares -= share;
        view_.setColumnWidth(i, std::max(width, scaled(std::min(column.width, narrowest))));
    }
    applying_ = false;
}

void ReportColumnWidths::dragged(int column, int width) {
    if (applying_) return;
    dragged_.insert(column, width);
    apply();
}

} // namespace platform
