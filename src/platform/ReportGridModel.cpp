#include "platform/ReportGridModel.h"

#include <QFont>

namespace platform {

namespace {

// Qt keeps its persistent indexes in a hash over row and id, unmixed: numbers in a row make it crawl with ten thousand
// groups. Multiplying by an odd number spreads them, and its inverse leads back.
constexpr quintptr spreading = 0x9E3779B97F4A7C15u;
constexpr quintptr gathering = 0xF1DE83E19937733Du;
static_assert(spreading * gathering == 1);

quintptr spread(int id) {
    return static_cast<quintptr>(id) * spreading;
}

} // namespace

int ReportGridModel::idOf(const QModelIndex& index) {
    return static_cast<int>(index.internalId() * gathering);
}

ReportGridModel::ReportGridModel(QObject* parent)
    : QAbstractItemModel(parent) {}
ReportGridModel::~ReportGridModel() = default;

int ReportGridModel::addColumn(const ReportColumn& column) {
    beginResetModel();
    columns_.push_back(column);
    endResetModel();
    return columns() - 1;
}

const ReportCell& ReportGridModel::cellIn(const ReportRecord& record, int column) {
    static const ReportCell empty;
    return column >= 0 && column < record.cellCount() ? record.cell(column) : empty;
}

const ReportRows::Row* ReportGridModel::rowAt(const QModelIndex& index) const {
    if (!index.isValid() || index.model() != this) return nullptr;
    const int id = idOf(index);
    return id == ReportRows::root ? nullptr : rows_.find(id);
}

QModelIndex ReportGridModel::indexOfRow(int id, int column) const {
    if (id <= ReportRows::root || column < 0) return {};
    return createIndex(rows_.positionOf(id), column, spread(id));
}

ReportRecord* ReportGridModel::recordAt(const QModelIndex& index) const {
    const ReportRows::Row* row = rowAt(index);
    return row ? row->record : nullptr;
}

QModelIndex ReportGridModel::indexOf(const ReportRecord* record, int column) const {
    return indexOfRow(rows_.idOf(record), column);
}

bool ReportGridModel::isGroupHead(const QModelIndex& index) const {
    const ReportRows::Row* row = rowAt(index);
    return row && !row->record;
}

QString ReportGridModel::groupText(const QModelIndex& index) const {
    const ReportRows::Row* row = rowAt(index);
    if (!row || row->record) return {};
    const int records = rows_.recordsBelow(idOf(index));
    return QStringLiteral("%1: %2 (%3)").arg(column(row->groupColumn).caption, row->groupValue).arg(records);
}

const ReportCell& ReportGridModel::cellAt(const QModelIndex& index) const {
    static const ReportRecord none;
    const ReportRecord* record = recordAt(index);
    return cellIn(record ? *record : none, index.column());
}

int ReportGridModel::spanStart(const QModelIndex& index) const {
    const ReportRecord* record = recordAt(index);
    if (!record) return index.column();
    for (int column = index.column() - 1; column >= 0; --column) {
        if (column + cellIn(*record, column).style().mergedColumns > index.column()) return column;
    }
    return index.column();
}

void ReportGridModel::setEditing(bool editable, bool readOnly) {
    editable_ = editable;
    readOnly_ = readOnly;
}

bool ReportGridModel::isEditable(const QModelIndex& index) const {
    if (!editable_ || readOnly_ || !recordAt(index) || spanStart(index) != index.column()) return false;
    return column(index.column()).editable && cellAt(index).style().editable;
}

bool ReportGridModel::isCheckable(const QModelIndex& index) const {
    const ReportCellStyle& style = cellAt(index).style();
    return !readOnly_ && style.hasCheckBox && style.checkEditable;
}

void ReportGridModel::recordChanged(const ReportRecord* record) {
    const QModelIndex first = indexOf(record);
    if (first.isValid() && columns() > 0) emit dataChanged(first, first.siblingAtColumn(columns() - 1));
}

QModelIndex ReportGridModel::index(int row, int column, const QModelIndex& parent) const {
    if (row < 0 || column < 0 || column >= columns() || (parent.isValid() && parent.column() != 0)) return {};
    if (parent.isValid() && !rowAt(parent)) return {};
    const auto& children = rows_.children(parent.isValid() ? idOf(parent) : ReportRows::root);
    if (row >= static_cast<int>(children.size())) return {};
    return createIndex(row, column, spread(children[static_cast<std::size_t>(row)]));
}

QModelIndex ReportGridModel::parent(const QModelIndex& child) const {
    const ReportRows::Row* row = rowAt(child);
    return row ? indexOfRow(row->parent, 0) : QModelIndex();
}

int ReportGridModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) return static_cast<int>(rows_.children(ReportRows::root).size());
    const ReportRows::Row* row = parent.column() == 0 ? rowAt(parent) : nullptr;
    return row ? static_cast<int>(row->children.size()) : 0;
}

int ReportGridModel::columnCount(const QModelIndex&) const {
    return columns();
}

QVariant ReportGridModel::data(const QModelIndex& index, int role) const {
    const ReportRows::Row* row = rowAt(index);
    if (!row || index.column() >= columns()) return {};
    if (row->record) return look(cellAt(index), index.column(), role);
    if (index.column() != 0 || role != Qt::DisplayRole) return {};
    return groupText(index);
}

QVariant ReportGridModel::look(const ReportCell& cell, int column, int role) const {
    const ReportCellStyle& style = cell.style();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return cell.value;
    case Qt::CheckStateRole:
        if (!style.hasCheckBox) return {};
        return static_cast<int>(style.checked ? Qt::Checked : Qt::Unchecked);
    case Qt::TextAlignmentRole:
        return static_cast<int>(columns_[static_cast<std::size_t>(column)].alignment.toInt());
    case Qt::BackgroundRole:
        return style.background.isValid() ? QVariant(style.background) : QVariant();
    case Qt::ForegroundRole:
        return style.foreground.isValid() ? QVariant(style.foreground) : QVariant();
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return style.tooltip.isEmpty() ? QVariant() : QVariant(style.tooltip);
    case Qt::DecorationRole:
        return style.icon.isNull() ? QVariant() : QVariant(style.icon);
    case Qt::FontRole: {
        if (!style.bold) return {};
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    default:
        return {};
    }
}

bool ReportGridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    ReportRecord* record = recordAt(index);
    if (!record) return false;
    if (role == Qt::EditRole && isEditable(index)) {
        record->cell(index.column()).value = value.toString();
    } else if (role == Qt::CheckStateRole && isCheckable(index)) {
        record->cell(index.column()).changeStyle().checked = value.toInt() == Qt::Checked;
    } else {
        return false;
    }
    emit dataChanged(index, index);
    return true;
}

QVariant ReportGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columns()) return {};
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return column(section).caption;
    if (role == Qt::TextAlignmentRole) return static_cast<int>(column(section).alignment.toInt());
    return {};
}

Qt::ItemFlags ReportGridModel::flags(const QModelIndex& index) const {
    if (!rowAt(index)) return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (isEditable(index)) flags |= Qt::ItemIsEditable;
    if (isCheckable(index)) flags |= Qt::ItemIsUserCheckable;
    return flags;
}

} // namespace platform
