#pragma once

#include "platform/ReportColumn.h"
#include "platform/ReportRecord.h"
#include "platform/ReportRows.h"

#include <QAbstractItemModel>
#include <functional>
#include <memory>
#include <vector>

namespace platform {

/// Maps records to rows: in the order of adding, or sorted, or under group heads. Owns the records; one that is removed
/// stays alive until the handlers that are running have ended. A stale index gives an empty cell.
class ReportGridModel : public QAbstractItemModel {
    Q_OBJECT

public:
    struct Group {
        int column = 0;
        Qt::SortOrder order = Qt::AscendingOrder;
    };

    explicit ReportGridModel(QObject* parent = nullptr);
    ~ReportGridModel() override;

    int addColumn(const ReportColumn& column);
    ReportColumn& column(int index) { return columns_[static_cast<std::size_t>(index)]; }
    const ReportColumn& column(int index) const { return columns_[static_cast<std::size_t>(index)]; }
    int columns() const { return static_cast<int>(columns_.size()); }

    // Records
    ReportRecord* insert(int position);
    void remove(ReportRecord* record);
    void removeIf(const std::function<bool(const ReportRecord&)>& which); ///< Of the records, not of their children.
    void move(int from, int to);
    void clear();
    int count() const { return static_cast<int>(records_.size()); }
    ReportRecord* at(int position) const; ///< Null outside the list.
    void beginBatch() { ++batch_; }       ///< Holds new records back until the batch ends or `flush`.
    bool endBatch();                      ///< True when it was the outermost.
    void flush();

    // Arrangement, taken up by `arrange`
    void setSort(int column, Qt::SortOrder order);
    int sortColumn() const { return sortColumn_; }
    Qt::SortOrder sortOrder() const { return sortOrder_; }
    void setGroups(const QList<Group>& groups) { groups_ = groups; }
    const QList<Group>& groups() const { return groups_; }
    void arrange();

    // Rows
    ReportRecord* recordAt(const QModelIndex& index) const; ///< Null for a group head.
    QModelIndex indexOf(const ReportRecord* record, int column = 0) const;
    bool isGroupHead(const QModelIndex& index) const;
    QString groupText(const QModelIndex& index) const; ///< "caption: value (count)".
    const ReportCell& cellAt(const QModelIndex& index) const;
    static const ReportCell& cellIn(const ReportRecord& record, int column); ///< An empty one beyond its cells.
    int spanStart(const QModelIndex& index) const;                           ///< The column whose cell covers this one.
    bool hasTree() const { return rows_.nested(); }                          ///< Whether any row has rows below it.

    void setEditing(bool editable, bool readOnly);
    bool isEditable(const QModelIndex& index) const;
    bool isCheckable(const QModelIndex& index) const;
    void recordChanged(const ReportRecord* record);

    // QAbstractItemModel
    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Held {
        std::unique_ptr<ReportRecord> record;
        bool shown = false; ///< False while a batch holds it back.
    };

    const ReportRows::Row* rowAt(const QModelIndex& index) const; ///< Null for an index that leads nowhere any more.
    static int idOf(const QModelIndex& index);
    QModelIndex indexOfRow(int id, int column) const;
    void showRecord(int parent, int position, ReportRecord* record);
    void showNewChildren();
    void retire(std::unique_ptr<ReportRecord> record);
    void removeRow(int id);
    std::vector<int> arrangedOrder() const;
    void rebuild(const std::vector<int>& order);
    QVariant look(const ReportCell& cell, int column, int role) const;

    std::vector<ReportColumn> columns_;
    std::vector<Held> records_;
    std::vector<std::unique_ptr<ReportRecord>> retired_; ///< Gone, yet alive until the running handlers have ended.
    ReportRows rows_;
    QList<Group> groups_;
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    int batch_ = 0;
    bool heldBack_ = false;
    bool editable_ = false;
    bool readOnly_ = false;
};

} // namespace platform
