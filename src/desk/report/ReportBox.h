#pragma once

#include "desk/report/ReportItem.h"

#include <optional>

namespace desk {

/// Things laid out one below or beside the other, counted from the box's own top left corner. Can be cut between lines
/// of text, never through one.
class ReportBox {
public:
    qreal height() const { return height_; }
    bool isEmpty() const { return items_.empty(); }
    const ReportItems& items() const { return items_; }

    void add(ReportItem item); ///< Grows the box to hold it.
    void addSpace(qreal height) { height_ += height; }
    void reach(qreal height) { height_ = std::max(height_, height); }
    void place(const ReportBox& other, QPointF at);
    void placeBelow(const ReportBox& other) { place(other, {0, height_}); }
    /// Puts fills and frames behind everything else.
    void addBehind(ReportItem item) { items_.insert(items_.begin(), std::move(item)); }

    /// The part that fits into `room`, with the rest left in this box. Nothing when not even a line fits; where a
    /// single line or picture is higher than `whole`, the height of an empty page, it is given all the same.
    std::optional<ReportBox> takeTop(qreal room, qreal whole);

private:
    qreal cutAt(qreal room) const;
    ReportBox slice(qreal from, qreal to) const;

    ReportItems items_;
    qreal height_ = 0;
};

} // namespace desk
