#pragma once

#include <QHash>
#include <QString>
#include <vector>

namespace platform {

class ReportRecord;

/// The rows of a report grid as a tree of numbers: records, their child records and group heads. A number is never an
/// address, so that one kept across the removal of its row leads nowhere instead of into freed memory. Borrows the
/// records.
class ReportRows {
public:
    static constexpr int root = 0;

    struct Row {
        int parent = root;
        ReportRecord* record = nullptr; ///< Null for a group head.
        int groupColumn = 0;
        QString groupValue;
        std::vector<int> children;
    };

    ReportRows() { clear(); }
    void clear();
    int insert(int parent, int position, ReportRecord* record);
    int addHead(int parent, int column, const QString& value);
    /// Takes the row and everything below it away.
    void remove(int id);
    /// Puts a row in another place: for a new arrangement, after `detachAll`.
    void append(int parent, int id);
    /// Leaves the record rows without a place and frees the group heads.
    void detachAll();

    const Row* find(int id) const;              ///< Null for a row that is gone.
    int idOf(const ReportRecord* record) const; ///< -1 when it has no row.
    int parentOf(int id) const { return slot(id).row.parent; }
    int positionOf(int id) const;
    const std::vector<int>& children(int id) const { return slot(id).row.children; }
    bool nested() const { return nested_ > 0; } ///< Whether any row has rows below it.
    int recordsBelow(int id) const;             ///< Records under a group head, at any depth of heads.

private:
    struct Slot {
        Row row;
        mutable int position = 0;
        mutable bool numbered = true; ///< Whether the children know their positions.
        bool used = false;
    };
    Slot& slot(int id) { return slots_[static_cast<std::size_t>(id)]; }
    const Slot& slot(int id) const { return slots_[static_cast<std::size_t>(id)]; }
    int take();
    void release(int id);

    std::vector<Slot> slots_;
    std::vector<int> free_;
    int nested_ = 0; ///< Rows that are below another.
    QHash<const ReportRecord*, int> ids_;
};

} // namespace platform
