#include "desk/report/ReportFlow.h"

#include <algorithm>

namespace desk {

namespace {

constexpr qreal FEW_LINES = fromPoints(30); // Of a text that may break, what a heading wants below itself.
constexpr qreal HAIR = 0.5;

class Paginator {
public:
    Paginator(ReportFlow& flow, qreal firstRoom, qreal otherRoom)
        : flow_(flow)
        , room_(firstRoom)
        , otherRoom_(otherRoom)
        , pages_(1) {}

    std::vector<ReportBox> run() {
        for (std::size_t i = 0; i < flow_.size(); ++i)
            place(i);
        return std::move(pages_);
    }

private:
    ReportBox& page() { return pages_.back(); }
    qreal headOf(const ReportFlowBlock& block) const {
        return block.head && block.head != head_ ? block.head->height() : 0;
    }

    /// What must still fit below the block for it to stay on this page.
    qreal follower(std::size_t i) const {
        qreal height = 0;
        for (; flow_[i].withNext && i + 1 < flow_.size(); ++i) {
            const ReportFlowBlock& next = flow_[i + 1];
            height += flow_[i].below + next.above;
            if (next.head && next.head != flow_[i].head) height += next.head->height();
            const qreal whole = next.box.height();
            height += next.mayBreak ? std::min(whole, FEW_LINES) : whole;
        }
        return height;
    }

    void place(std::size_t i) {
        ReportFlowBlock& block = flow_[i];
        while (true) {
            const bool isFresh = page().height() <= 0;
            const qreal gap = isFresh ? 0 : below_ + block.above;
            const qreal room = room_ - page().height() - gap - headOf(block) + HAIR;
            const qreal height = block.box.height();
            qreal wanted = height + follower(i);
            if (isFresh || wanted > otherRoom_) wanted = height;
            if (wanted <= room) return put(block.box, block, gap);
            if (block.mayBreak || isFresh) {
                if (const auto part = block.box.takeTop(room, isFresh ? room : room_)) put(*part, block, gap);
                if (block.box.height() <= 0) return;
            }
            turn();
        }
    }

    void put(const ReportBox& box, const ReportFlowBlock& block, qreal gap) {
        page().addSpace(gap);
        if (headOf(block) > 0) page().placeBelow(*block.head);
        page().placeBelow(box);
        head_ = block.head;
        below_ = block.below;
    }

    void turn() {
        pages_.emplace_back();
        room_ = otherRoom_;
        head_ = nullptr;
        below_ = 0;
    }

    ReportFlow& flow_;
    qreal room_;
    qreal otherRoom_;
    std::vector<ReportBox> pages_;
    std::shared_ptr<const ReportBox> head_; ///< The one above what was placed last.
    qreal below_ = 0;
};

} // namespace

ReportBox stacked(const ReportFlow& flow) {
    ReportBox box;
    std::shared_ptr<const ReportBox> head;
    for (const ReportFlowBlock& block : flow) {
        box.addSpace(block.above);
        if (block.head && block.head != head) box.placeBelow(*block.head);
        head = block.head;
        box.placeBelow(block.box);
        box.addSpace(block.below);
    }
    return box;
}

std::vector<ReportBox> paginated(ReportFlow flow, qreal firstRoom, qreal otherRoom) {
    return Paginator(flow, firstRoom, otherRoom).run();
}

} // namespace desk
