// The records of the model and their arrangement; the item model's own interface is in ReportGridModel.cpp.
#include "platform/ReportGridModel.h"

#include "platform/ReportSort.h"

#include <QTimer>
#include <algorithm>

namespace platform {

ReportRecord* ReportGridModel::insert(int position) {
    const int place = std::clamp(position, 0, count());
    Held held{std::make_unique<ReportRecord>(columns()), false};
    ReportRecord* record = held.record.get();
    records_.insert(records_.begin() + place, std::move(held));
    if (batch_ > 0) {
        heldBack_ = true;
        return record;
    }
    const int last = rowCount();
    const bool asAdded = sortColumn_ < 0 && groups_.isEmpty();
    showRecord(ReportRows::root, asAdded ? std::min(place, last) : last, record);
    records_[static_cast<std::size_t>(place)].shown = true;
    return record;
}

void ReportGridModel::showRecord(int parent, int position, ReportRecord* record) {
    beginInsertRows(indexOfRow(parent, 0), position, position);
    rows_.insert(parent, position, record);
    endInsertRows();
}

void ReportGridModel::retire(std::unique_ptr<ReportRecord> record) {
    if (retired_.empty()) QTimer::singleShot(0, this, [this] { retired_.clear(); });
    retired_.push_back(std::move(record));
}

void ReportGridModel::remove(ReportRecord* record) {
    const int id = rows_.idOf(record);
    const auto held = std::find_if(records_.begin(), records_.end(),
                                   [record](const Held& own) { return own.record.get() == record; });
    if (held != records_.end()) {
        retire(std::move(held->record));
        records_.erase(held);
        if (id > 0) removeRow(id);
        return;
    }
    if (id <= 0 || !record->parent()) return;
    removeRow(id);
    retire(record->parent()->takeChild(record));
}

void ReportGridModel::removeRow(int id) {
    // A group head without records goes with its last one.
    int gone = id;
    while (rows_.parentOf(gone) != ReportRows::root && !rows_.find(rows_.parentOf(gone))->record &&
           rows_.children(rows_.parentOf(gone)).size() == 1) {
        gone = rows_.parentOf(gone);
    }
    const int above = rows_.parentOf(gone);
    const int position = rows_.positionOf(gone);
    beginRemoveRows(indexOfRow(above, 0), position, position);
    rows_.remove(gone);
    endRemoveRows();
    for (int head = above; head != ReportRows::root; head = rows_.parentOf(head)) {
        emit dataChanged(indexOfRow(head, 0), indexOfRow(head, 0));
    }
}

void ReportGridModel::removeIf(const std::function<bool(const ReportRecord&)>& which) {
    beginResetModel();
    rows_.clear();
    std::vector<Held> kept;
    for (Held& held : records_) {
        if (which(*held.record)) {
            retire(std::move(held.record));
        } else {
            kept.push_back({std::move(held.record), false});
        }
    }
    records_ = std::move(kept);
    heldBack_ = !records_.empty();
    endResetModel();
    flush();
}

void ReportGridModel::move(int from, int to) {
    if (from == to || from < 0 || to < 0 || from >= count() || to >= count()) return;
    flush();
    const bool asShown = sortColumn_ < 0 && groups_.isEmpty();
    const auto first = records_.begin();
    const auto shift = [&] {
        if (from < to) {
            std::rotate(first + from, first + from + 1, first + to + 1);
        } else {
            std::rotate(first + to, first + from, first + from + 1);
        }
    };
    shift();
    if (asShown) arrange();
}

void ReportGridModel::clear() {
    if (records_.empty()) return;
    beginResetModel();
    rows_.clear();
    for (Held& held : records_)
        retire(std::move(held.record));
    records_.clear();
    heldBack_ = false;
    endResetModel();
}

ReportRecord* ReportGridModel::at(int position) const {
    return position < 0 || position >= count() ? nullptr : records_[static_cast<std::size_t>(position)].record.get();
}

bool ReportGridModel::endBatch() {
    if (batch_ == 0 || --batch_ > 0) return false;
    flush();
    return true;
}

void ReportGridModel::flush() {
    if (!heldBack_) return;
    heldBack_ = false;
    const int first = rowCount();
    const auto fresh = std::count_if(records_.begin(), records_.end(), [](const Held& held) { return !held.shown; });
    beginInsertRows({}, first, first + static_cast<int>(fresh) - 1);
    int position = first;
    for (Held& held : records_) {
        if (held.shown) continue;
        rows_.insert(ReportRows::root, position++, held.record.get());
        held.shown = true;
    }
    endInsertRows();
    arrange();
}

void ReportGridModel::setSort(int column, Qt::SortOrder order) {
    sortColumn_ = column < columns() ? column : -1;
    sortOrder_ = order;
    for (Group& group : groups_) {
        if (group.column == sortColumn_) group.order = order;
    }
}

void ReportGridModel::showNewChildren() {
    std::vector<int> open(rows_.children(ReportRows::root));
    while (!open.empty()) {
        const int id = open.back();
        open.pop_back();
        if (ReportRecord* record = rows_.find(id)->record) {
            const auto& wanted = record->children();
            const std::size_t shown = rows_.children(id).size();
            if (shown < wanted.size()) {
                beginInsertRows(indexOfRow(id, 0), static_cast<int>(shown), static_cast<int>(wanted.size()) - 1);
                for (std::size_t i = shown; i < wanted.size(); ++i)
                    rows_.insert(id, static_cast<int>(i), wanted[i].get());
                endInsertRows();
            }
        }
        const auto& below = rows_.children(id);
        open.insert(open.end(), below.begin(), below.end());
    }
}

std::vector<int> ReportGridModel::arrangedOrder() const {
    std::vector<Group> by(groups_.begin(), groups_.end());
    if (sortColumn_ >= 0) by.push_back({sortColumn_, sortOrder_});
    const QCollator collator = ReportSortKey::collator();
    std::vector<std::vector<ReportSortKey>> keys(by.size());
    for (std::size_t level = 0; level < by.size(); ++level) {
        keys[level].reserve(records_.size());
        for (const Held& held : records_)
            keys[level].emplace_back(cellIn(*held.record, by[level].column).value, collator);
    }
    std::vector<std::size_t> order(records_.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    const auto before = [&](std::size_t left, std::size_t right) {
        for (std::size_t level = 0; level < by.size(); ++level) {
            int difference = keys[level][left].compare(keys[level][right]);
            // Texts that sort alike still make two groups, so their records must not mix.
            if (difference == 0 && level < static_cast<std::size_t>(groups_.size())) {
                difference = cellIn(*records_[left].record, by[level].column)
                                 .value.compare(cellIn(*records_[right].record, by[level].column).value);
            }
            if (difference != 0) return by[level].order == Qt::AscendingOrder ? difference < 0 : difference > 0;
        }
        return false;
    };
    if (!by.empty()) std::stable_sort(order.begin(), order.end(), before);
    std::vector<int> ids;
    ids.reserve(order.size());
    for (std::size_t i : order) {
        if (records_[i].shown) ids.push_back(rows_.idOf(records_[i].record.get()));
    }
    return ids;
}

void ReportGridModel::rebuild(const std::vector<int>& order) {
    rows_.detachAll();
    std::vector<int> heads;
    for (int id : order) {
        const ReportRecord& record = *rows_.find(id)->record;
        int parent = ReportRows::root;
        for (qsizetype level = 0; level < groups_.size(); ++level) {
            const QString& value = cellIn(record, groups_[level].column).value;
            const auto depth = static_cast<std::size_t>(level);
            if (heads.size() > depth && rows_.find(heads[depth])->groupValue != value) heads.resize(depth);
            if (heads.size() <= depth) heads.push_back(rows_.addHead(parent, groups_[level].column, value));
            parent = heads[depth];
        }
        rows_.append(parent, id);
    }
}

void ReportGridModel::arrange() {
    showNewChildren();
    const std::vector<int> order = arrangedOrder();
    if (!groups_.isEmpty() || order != rows_.children(ReportRows::root)) {
        emit layoutAboutToBeChanged();
        const QModelIndexList before = persistentIndexList();
        rebuild(order);
        QModelIndexList after;
        after.reserve(before.size());
        for (const QModelIndex& old : before) {
            const int id = idOf(old);
            // Numbers of old group heads may have been given to new ones: such an index is not carried over.
            const ReportRows::Row* row = rows_.find(id);
            after.append(row && row->record ? indexOfRow(id, old.column()) : QModelIndex());
        }
        changePersistentIndexList(before, after);
        emit layoutChanged();
    }
    if (const int rows = rowCount(); rows > 0 && columns() > 0)
        emit dataChanged(index(0, 0), index(rows - 1, columns() - 1));
}

} // namespace platform
