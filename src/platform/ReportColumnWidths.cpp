#include "platform/ReportColumnWidths.h"

#include "platform/ReportGridModel.h"

#include <QHeaderView>
#include <QTreeView>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace platform {

namespace {
constexpr int narrowest = 60;    ///< A resizable column never shrinks below this or its own width.
constexpr int comfortable = 200; ///< What a resizable column keeps when another needs room for its sample.

/// A date with its margins takes 64 of the units in which columns are measured.
qreal unit(const QTreeView& view) {
    const int date = view.fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000"));
    return std::max(1.0, (date + 8) / 64.0);
}

} // namespace

// Remembered, since a list shows itself often and its font hardly ever changes.
int ReportColumnWidths::sampleWidth(const QString& sample) {
    if (sample.isEmpty()) return 0;
    if (font_ != view_.font()) {
        font_ = view_.font();
        sampleWidths_.clear();
    }
    int& width = sampleWidths_[sample];
    if (width > 0) return width;
    constexpr int margins = 10;
    QFont bold = view_.font();
    bold.setBold(true);
    return width = QFontMetrics(bold).horizontalAdvance(sample) + margins;
}

void ReportColumnWidths::apply() {
    if (applying_) return;
    applying_ = true;
    const qreal scale = unit(view_);
    const auto scaled = [scale](int width) { return static_cast<int>(std::lround(width * scale)); };
    int room = view_.viewport()->width();
    QList<int> shared;
    for (int i = 0; i < model_.columns(); ++i) {
        const ReportColumn& column = model_.column(i);
        view_.setColumnHidden(i, !column.visible);
        if (!column.visible) continue;
        if (column.resizable && !dragged_.contains(i)) {
            shared.append(i);
            continue;
        }
        const int width =
            dragged_.contains(i) ? dragged_.value(i) : std::max(scaled(column.width), sampleWidth(column.sample));
        view_.setColumnWidth(i, width);
        room -= width;
    }
    const auto least = [&](int i) { return scaled(std::min(model_.column(i).width, narrowest)); };
    share(shared, room, least);
    applying_ = false;
}

void ReportColumnWidths::share(QList<int> columns, int room, const std::function<int(int)>& least) {
    const auto weight = [this](int i) { return std::max(model_.column(i).width, 1); };
    const auto total = [&] {
        return std::accumulate(columns.cbegin(), columns.cend(), 0, [&](int sum, int i) { return sum + weight(i); });
    };
    // Those that would become too narrow get their least first; what they take is missing for the others.
    for (bool again = true; again;) {
        again = false;
        const int weights = total();
        for (qsizetype at = 0; at < columns.size() && !again; ++at) {
            const int i = columns.at(at);
            if (room * weight(i) / weights >= least(i)) continue;
            view_.setColumnWidth(i, least(i));
            room -= least(i);
            columns.removeAt(at);
            again = true;
        }
    }
    wholeSamples(columns, room, weight);
    int weights = total();
    for (int i : columns) {
        // The last one takes the rest of the roundings, so that the columns end at the edge.
        const int width = room * weight(i) / weights;
        view_.setColumnWidth(i, width);
        room -= width;
        weights -= weight(i);
    }
}

// A text that is to be read whole comes before room to spare in the other columns.
void ReportColumnWidths::wholeSamples(QList<int>& columns, int& room, const std::function<int(int)>& weight) {
    const qreal scale = unit(view_);
    const auto sum = [&columns](const auto& part) {
        return std::accumulate(columns.cbegin(), columns.cend(), 0, [&](int all, int i) { return all + part(i); });
    };
    const auto readable = [this, scale](int i) {
        return static_cast<int>(std::lround(std::min(model_.column(i).width, comfortable) * scale));
    };
    for (const int i : QList<int>(columns)) {
        const int others = sum(readable) - readable(i);
        const int width = std::min(sampleWidth(model_.column(i).sample), room - others);
        if (width <= room * weight(i) / sum(weight)) continue;
        view_.setColumnWidth(i, width);
        room -= width;
        columns.removeOne(i);
    }
}

void ReportColumnWidths::dragged(int column, int width) {
    if (applying_) return;
    dragged_.insert(column, width);
    apply();
}

} // namespace platform
