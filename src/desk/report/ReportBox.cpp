#include "desk/report/ReportBox.h"

#include <algorithm>

namespace desk {

namespace {

constexpr qreal HAIR = 0.01; // Rounding in the positions must not count as overlapping.

bool isSolid(const ReportItem& item) {
    return item.kind == ReportItem::Kind::Text || item.kind == ReportItem::Kind::Picture;
}

} // namespace

void ReportBox::add(ReportItem item) {
    reach(item.rect.bottom());
    items_.push_back(std::move(item));
}

void ReportBox::place(const ReportBox& other, QPointF at) {
    for (const ReportItem& item : other.items_) {
        items_.push_back(item);
        items_.back().rect.translate(at);
    }
    reach(at.y() + other.height_);
}

/// The lowest place above `room` at which no line of text and no picture is cut; 0 when there is none.
qreal ReportBox::cutAt(qreal room) const {
    qreal cut = std::min(room, height_);
    bool moved = true;
    while (moved && cut > HAIR) {
        moved = false;
        for (const ReportItem& item : items_) {
            if (!isSolid(item) || item.rect.top() >= cut - HAIR || item.rect.bottom() <= cut + HAIR) continue;
            cut = item.rect.top();
            moved = true;
        }
    }
    return cut > HAIR ? cut : 0;
}

ReportBox ReportBox::slice(qreal from, qreal to) const {
    ReportBox part;
    for (ReportItem item : items_) {
        if (isSolid(item)) {
            if (item.rect.top() < from - HAIR || item.rect.top() >= to - HAIR) continue;
        } else {
            const QRectF kept = item.rect & QRectF(item.rect.left(), from, item.rect.width(), to - from);
            if (kept.isEmpty()) continue;
            item.rect = kept;
        }
        item.rect.translate(0, -from);
        part.items_.push_back(std::move(item));
    }
    part.height_ = to - from;
    return part;
}

std::optional<ReportBox> ReportBox::takeTop(qreal room, qreal whole) {
    qreal cut = cutAt(room);
    if (cut <= 0) {
        if (room < whole - HAIR) return std::nullopt;
        // On an empty page there is nothing better to come: the first thing goes here even if it sticks out.
        cut = height_;
        for (const ReportItem& item : items_)
            if (isSolid(item) && item.rect.bottom() > room) cut = std::min(cut, item.rect.bottom());
    }
    ReportBox top = slice(0, cut);
    *this = slice(cut, height_);
    return top;
}

} // namespace desk
