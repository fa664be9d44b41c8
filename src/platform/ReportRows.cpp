#include "platform/ReportRows.h"

#include <algorithm>

namespace platform {

void ReportRows::clear() {
    nested_ = 0;
    free_.clear();
    ids_.clear();
    slots_.clear();
    slots_.emplace_back().used = true;
}

int ReportRows::take() {
    if (free_.empty()) {
        slots_.emplace_back();
        return static_cast<int>(slots_.size()) - 1;
    }
    const int id = free_.back();
    free_.pop_back();
    return id;
}

int ReportRows::insert(int parent, int position, ReportRecord* record) {
    const int id = take();
    Slot& made = slot(id);
    made.used = true;
    made.row.parent = parent;
    made.row.record = record;
    made.position = position;
    Slot& above = slot(parent);
    auto& siblings = above.row.children;
    if (position < static_cast<int>(siblings.size())) above.numbered = false;
    siblings.insert(siblings.begin() + position, id);
    if (record) ids_.insert(record, id);
    if (parent != root) ++nested_;
    return id;
}

int ReportRows::addHead(int parent, int column, const QString& value) {
    const int id = insert(parent, static_cast<int>(children(parent).size()), nullptr);
    slot(id).row.groupColumn = column;
    slot(id).row.groupValue = value;
    return id;
}

void ReportRows::release(int id) {
    const std::vector<int> below = slot(id).row.children;
    for (int child : below)
        release(child);
    if (slot(id).row.record) ids_.remove(slot(id).row.record);
    if (parentOf(id) != root) --nested_;
    slot(id) = Slot();
    free_.push_back(id);
}

void ReportRows::remove(int id) {
    Slot& above = slot(parentOf(id));
    auto& siblings = above.row.children;
    siblings.erase(siblings.begin() + positionOf(id));
    above.numbered = false;
    release(id);
}

void ReportRows::append(int parent, int id) {
    Slot& above = slot(parent);
    slot(id).row.parent = parent;
    if (parent != root) ++nested_;
    slot(id).position = static_cast<int>(above.row.children.size());
    above.row.children.push_back(id);
}

void ReportRows::detachAll() {
    std::vector<int> heads = slot(root).row.children;
    slot(root).row.children.clear();
    slot(root).numbered = true;
    while (!heads.empty()) {
        const int id = heads.back();
        heads.pop_back();
        if (slot(id).row.record) {
            if (parentOf(id) != root) --nested_;
            slot(id).row.parent = root;
            continue;
        }
        heads.insert(heads.end(), children(id).begin(), children(id).end());
        slot(id).row.children.clear();
        release(id);
    }
}

const ReportRows::Row* ReportRows::find(int id) const {
    if (id < 0 || id >= static_cast<int>(slots_.size()) || !slot(id).used) return nullptr;
    return &slot(id).row;
}

int ReportRows::idOf(const ReportRecord* record) const {
    return ids_.value(record, -1);
}

int ReportRows::positionOf(int id) const {
    const Slot& above = slot(parentOf(id));
    if (!above.numbered) {
        int position = 0;
        for (int child : above.row.children)
            slot(child).position = position++;
        above.numbered = true;
    }
    return slot(id).position;
}

int ReportRows::recordsBelow(int id) const {
    int count = 0;
    for (int child : children(id))
        count += slot(child).row.record ? 1 : recordsBelow(child);
    return count;
}

} // namespace platform
