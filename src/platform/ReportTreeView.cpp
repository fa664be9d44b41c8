#include "platform/ReportTreeView.h"

#include "platform/ReportGridDelegate.h"
#include "platform/ReportGridModel.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

namespace platform {

namespace {
constexpr int depthIndent = 18;
}

ReportTreeView::ReportTreeView(ReportGridModel& model, const ReportColours& colours, QWidget* parent)
    : QTreeView(parent)
    , model_(model)
    , colours_(colours)
    , delegate_(new ReportGridDelegate(model, this)) {
    setModel(&model);
    setItemDelegate(delegate_);
    setRootIsDecorated(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setFrameShape(QFrame::NoFrame);
    setMouseTracking(true);
    editTimer_.setSingleShot(true);
    connect(&editTimer_, &QTimer::timeout, this, [this] {
        // Whoever went elsewhere meanwhile keeps the keyboard.
        if (hasFocus() && currentIndex() == pressed_) startEdit(pressed_);
    });
    connect(delegate_, &ReportGridDelegate::committed, this, [this](const QModelIndex& index) {
        changedRecord_ = model_.recordAt(index);
        changedColumn_ = index.column();
        // For a commit that leaves the editor open; closing it announces earlier.
        QMetaObject::invokeMethod(
            this, [this] { announceEdit(); }, Qt::QueuedConnection);
    });
    const auto forget = [this] { forgetDisplayed(); };
    connect(&model, &QAbstractItemModel::modelReset, this, forget);
    connect(&model, &QAbstractItemModel::layoutChanged, this, forget);
    connect(&model, &QAbstractItemModel::rowsInserted, this, forget);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, forget);
    connect(this, &QTreeView::expanded, this, forget);
    connect(this, &QTreeView::collapsed, this, forget);
}

void ReportTreeView::setCellFocus(bool cellFocus) {
    cellFocus_ = cellFocus;
    setSelectionMode(cellFocus ? QAbstractItemView::SingleSelection : QAbstractItemView::ExtendedSelection);
}

void ReportTreeView::setEmptyText(const QString& text) {
    emptyText_ = text;
    viewport()->update();
}

const std::vector<QModelIndex>& ReportTreeView::displayed() const {
    if (!displayedKnown_) {
        displayed_.clear();
        indented_ = false;
        collectDisplayed({});
        displayedKnown_ = true;
    }
    return displayed_;
}

void ReportTreeView::collectDisplayed(const QModelIndex& parent) const {
    const int rows = model_.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model_.index(row, 0, parent);
        displayed_.push_back(index);
        if (model_.rowCount(index) == 0) continue;
        if (!model_.isGroupHead(index)) indented_ = true;
        if (isExpanded(index)) collectDisplayed(index);
    }
}

void ReportTreeView::forEachBranch(const std::function<void(const QModelIndex&)>& visit) const {
    if (!model_.hasTree()) return;
    std::vector<QModelIndex> open{QModelIndex()};
    while (!open.empty()) {
        const QModelIndex parent = open.back();
        open.pop_back();
        for (int row = model_.rowCount(parent) - 1; row >= 0; --row) {
            const QModelIndex index = model_.index(row, 0, parent);
            if (model_.rowCount(index) == 0) continue;
            visit(index);
            open.push_back(index);
        }
    }
}

void ReportTreeView::unfold(const std::function<bool(const QModelIndex&)>& open) {
    if (!model_.hasTree()) return;
    // With a layout to come, a branch costs a note and no layout of its own.
    scheduleDelayedItemsLayout();
    forEachBranch([&](const QModelIndex& branch) { setExpanded(branch, open(branch)); });
    executeDelayedItemsLayout();
    forgetDisplayed();
}

QModelIndex ReportTreeView::displayedRow(int row) const {
    const auto& rows = displayed();
    return row < 0 || row >= static_cast<int>(rows.size()) ? QModelIndex() : rows[static_cast<std::size_t>(row)];
}

int ReportTreeView::displayedRowOf(const QModelIndex& index) const {
    if (!index.isValid()) return -1;
    const QModelIndex first = index.siblingAtColumn(0);
    const auto& rows = displayed();
    // In a plain list the row is where the model has it.
    const auto guess = static_cast<std::size_t>(first.row());
    if (guess < rows.size() && rows[guess] == first) return first.row();
    const auto at = std::find(rows.begin(), rows.end(), first);
    return at == rows.end() ? -1 : static_cast<int>(at - rows.begin());
}

int ReportTreeView::firstColumn() const {
    int column = 0;
    while (column < model_.columns() && isColumnHidden(column))
        ++column;
    return column;
}

int ReportTreeView::indentOf(const QModelIndex& index) const {
    if (model_.isGroupHead(index)) {
        int depth = 0;
        for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
            ++depth;
        return depth * depthIndent;
    }
    if (!displayed().empty() && (!indented_ || index.column() != firstColumn())) return 0;
    int depth = 1;
    for (QModelIndex above = index.parent(); model_.recordAt(above); above = above.parent())
        ++depth;
    return depth * depthIndent;
}

QRect ReportTreeView::cellRect(const QModelIndex& index) const {
    if (!index.isValid()) return {};
    const int first = model_.spanStart(index);
    return columnsIn(visualRect(index.siblingAtColumn(firstColumn())), first,
                     model_.cellAt(index.siblingAtColumn(first)).style().mergedColumns);
}

QRect ReportTreeView::columnsIn(const QRect& row, int first, int covered) const {
    QRect area;
    for (int column = first; column < std::min(first + std::max(1, covered), model_.columns()); ++column) {
        if (isColumnHidden(column)) continue;
        area |= QRect(columnViewportPosition(column), row.top(), columnWidth(column), row.height());
    }
    return area;
}

QModelIndex ReportTreeView::cellAt(const QPoint& position) const {
    const QModelIndex index = indexAt(position);
    return index.isValid() ? index.siblingAtColumn(model_.spanStart(index)) : index;
}

ReportCellParts ReportTreeView::partsOf(const QModelIndex& index) const {
    const QModelIndex current = currentIndex();
    const bool focused = cellFocus_ && index == current && model_.isEditable(index);
    const ReportCell& cell = model_.cellAt(index);
    return {cell, cellRect(index), indentOf(index), focused && !cell.style().choices.isEmpty()};
}

ReportTreeView::Part ReportTreeView::partAt(const QModelIndex& index, const QPoint& position) const {
    if (!index.isValid()) return Part::None;
    if (model_.isGroupHead(index)) return Part::Expander;
    const int indent = indentOf(index);
    const QRect area = cellRect(index);
    if (indent > 0 && model_.rowCount(index.siblingAtColumn(0)) > 0 && position.x() < area.left() + indent)
        return Part::Expander;
    const ReportCellParts parts = partsOf(index);
    // A box is small: a near miss counts.
    if (parts.check.adjusted(-3, -3, 3, 3).contains(position) && !parts.check.isNull()) return Part::Check;
    if (parts.button.contains(position)) return Part::Button;
    if (parts.list.contains(position)) return Part::List;
    return Part::Text;
}

void ReportTreeView::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (!model_.isGroupHead(index)) {
        paintRecord(*painter, option.rect, index.siblingAtColumn(0));
        return;
    }
    const QModelIndex head = index.siblingAtColumn(0);
    cells().groupHead(*painter, option.rect, model_.groupText(head), indentOf(head), isExpanded(head),
                      selectionModel()->isSelected(head));
}

const ReportCellPainter& ReportTreeView::cells() const {
    if (!cells_ || cells_->font() != font()) cells_.emplace(colours_, *this);
    return *cells_;
}

void ReportTreeView::paintRecord(QPainter& painter, const QRect& row, const QModelIndex& index) const {
    const ReportCellPainter& painted = cells();
    const ReportRecord* record = model_.recordAt(index);
    const QModelIndex current = currentIndex();
    const bool currentRow = current.isValid() && current.siblingAtColumn(0) == index;
    const int focusedColumn = currentRow && cellFocus_ ? model_.spanStart(current) : -1;
    const int first = firstColumn();
    ReportCellState state;
    state.shaded = displayedRowOf(index) % 2 != 0;
    state.selected = selectionModel()->isSelected(index);
    state.active = hasFocus() || isEditing();
    state.enabled = isEnabled();
    int end = 0;
    for (int column = 0; column < model_.columns();) {
        const ReportCell& cell = ReportGridModel::cellIn(*record, column);
        const int covered = std::max(1, cell.style().mergedColumns);
        const QRect area = columnsIn(row, column, covered);
        if (!area.isEmpty() && area.intersects(viewport()->rect())) {
            state.alignment = model_.column(column).alignment;
            state.focused = column == focusedColumn && state.selected;
            state.indent = column == first ? indentOf(index.siblingAtColumn(column)) : 0;
            painted.cell(painter, area, cell, state);
            if (state.indent > 0 && model_.rowCount(index) > 0) {
                painted.expander(
                    painter, QRect(area.left() + state.indent - depthIndent, area.top(), depthIndent, area.height()),
                    isExpanded(index));
            }
        }
        if (!area.isEmpty()) end = std::max(end, area.right() + 1);
        column += covered;
    }
    state.focused = false;
    if (end < row.right()) painted.rest(painter, QRect(end, row.top(), row.right() - end + 1, row.height()), state);
}

void ReportTreeView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model_.rowCount() > 0 || emptyText_.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(8, 12, -8, -8), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     emptyText_);
}

bool ReportTreeView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QTreeView::viewportEvent(event);
    auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex at = cellAt(help->pos());
    const ReportCell& cell = model_.cellAt(at);
    const bool clipped = at.isValid() && (fontMetrics().horizontalAdvance(cell.value) > partsOf(at).text.width() ||
                                          cell.value.contains(QLatin1Char('\n')));
    QStringList lines;
    if (clipped) lines << cell.value;
    if (at.isValid() && !cell.style().tooltip.isEmpty()) lines << cell.style().tooltip;
    const QString shown = lines.join(QLatin1Char('\n'));
    // What a person wrote is never markup.
    const bool isMarkup = Qt::mightBeRichText(shown);
    QToolTip::showText(help->globalPos(), isMarkup ? Qt::convertFromPlainText(shown) : shown, viewport());
    return true;
}

// Only the rows whose look changed: painting all that is on the screen costs more than the change itself.

void ReportTreeView::repaintRow(const QModelIndex& index) {
    const QRect row = visualRect(index.siblingAtColumn(firstColumn()));
    if (!row.isEmpty()) viewport()->update(0, row.top(), viewport()->width(), row.height());
}

void ReportTreeView::repaintRows(const QItemSelection& rows) {
    constexpr int MANY = 100;
    for (const QItemSelectionRange& range : rows) {
        if (range.height() > MANY) return viewport()->update();
        for (int row = range.top(); row <= range.bottom(); ++row)
            repaintRow(model_.index(row, 0, range.parent()));
    }
}

void ReportTreeView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    repaintRow(previous);
    repaintRow(current);
    emit moved();
}

void ReportTreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    repaintRows(selected);
    repaintRows(deselected);
    emit moved();
}

// The focus comes and goes with every edit, and QTreeView would paint everything anew for it; its other business with
// the focus is to make the first row the current one where there is none.
void ReportTreeView::focusInEvent(QFocusEvent* event) {
    if (!currentIndex().isValid()) return QTreeView::focusInEvent(event);
    QAbstractScrollArea::focusInEvent(event);
    repaintRows(selectionModel()->selection());
}

void ReportTreeView::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    repaintRows(selectionModel()->selection());
}

} // namespace platform
