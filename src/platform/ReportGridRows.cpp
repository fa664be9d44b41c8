// Displayed rows, focus, edits and events of the report grid; its set-up and records are in ReportGrid.cpp.
#include "platform/Dialogs.h"
#include "platform/ReportGridParts.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QPainter>
#include <QSet>

namespace platform {

namespace {

/// A row that can be folded, known again after its index has changed.
QString foldKey(const ReportGridModel& model, const QModelIndex& index) {
    if (const ReportRecord* record = model.recordAt(index)) {
        return QStringLiteral("r%1").arg(reinterpret_cast<quintptr>(record), 0, 16);
    }
    QString key;
    for (QModelIndex above = index; above.isValid(); above = above.parent()) {
        key.prepend(model.groupText(above).section(QStringLiteral(" ("), 0, -2) + QLatin1Char('\n'));
    }
    return key;
}

} // namespace

void ReportGrid::Parts::change(ReportGrid& grid, const std::function<void()>& work) {
    QSet<QString> folded;
    view->forEachBranch([&](const QModelIndex& branch) {
        if (!view->isExpanded(branch)) folded.insert(foldKey(*model, branch));
    });
    ++changing;
    work();
    view->unfold([&](const QModelIndex& branch) { return !folded.contains(foldKey(*model, branch)); });
    view->viewport()->update();
    --changing;
    grid.announceFocus();
}

int ReportGrid::rowCount() const {
    return parts_->view->displayedRowCount();
}

ReportRecord* ReportGrid::rowRecord(int row) const {
    return parts_->model->recordAt(parts_->view->displayedRow(row));
}

int ReportGrid::rowOf(const ReportRecord* record) const {
    return parts_->view->displayedRowOf(parts_->model->indexOf(record));
}

QString ReportGrid::rowCaption(int row) const {
    return parts_->model->groupText(parts_->view->displayedRow(row));
}

// Focus and selection

ReportRecord* ReportGrid::focusedRecord() const {
    const QItemSelectionModel* selection = parts_->view->selectionModel();
    const QModelIndex current = selection->currentIndex();
    if (current.isValid() && selection->isSelected(current)) return parts_->model->recordAt(current);
    const QModelIndexList rows = selection->selectedRows();
    return rows.isEmpty() ? nullptr : parts_->model->recordAt(rows.first());
}

void ReportGrid::setFocusedRecord(ReportRecord* record) {
    Parts& p = *parts_;
    QItemSelectionModel* selection = p.view->selectionModel();
    if (!record) {
        selection->clear();
        return;
    }
    p.change(*this, [&] {
        p.model->flush();
        // The focus stays in its column, so that a timer which sets it again does not move the cell.
        const QModelIndex index = p.model->indexOf(record, std::max(0, selection->currentIndex().column()));
        if (!index.isValid()) return;
        selection->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        p.view->scrollTo(index);
    });
}

int ReportGrid::focusedColumn() const {
    const QModelIndex current = parts_->view->currentIndex();
    return current.isValid() ? parts_->model->spanStart(current) : -1;
}

QList<ReportRecord*> ReportGrid::selectedRecords() const {
    QList<std::pair<int, ReportRecord*>> byRow;
    for (const QModelIndex& index : parts_->view->selectionModel()->selectedRows()) {
        if (ReportRecord* record = parts_->model->recordAt(index))
            byRow.append({parts_->view->displayedRowOf(index), record});
    }
    std::sort(byRow.begin(), byRow.end());
    QList<ReportRecord*> records;
    for (const auto& entry : byRow)
        records.append(entry.second);
    return records;
}

void ReportGrid::announceFocus() {
    if (parts_->changing > 0) return;
    ReportRecord* focused = focusedRecord();
    if (focused == parts_->announced) return;
    parts_->announced = focused;
    emit focusedRecordChanged(focused);
}

// Edits

void ReportGrid::editCell(ReportRecord* record, int column) {
    parts_->model->flush();
    parts_->view->startEdit(parts_->model->indexOf(record, column));
}

bool ReportGrid::isEditing() const {
    return parts_->view->isEditing();
}

void ReportGrid::finishEdit() {
    parts_->view->finishEdit();
}

bool ReportGrid::enterText(int row, int column, const QString& text) {
    const QModelIndex index = parts_->view->displayedRow(row);
    return column >= 0 && column < columnCount() && parts_->view->typeText(index.siblingAtColumn(column), text);
}

bool ReportGrid::setChecked(int row, int column, bool checked) {
    const QModelIndex index = parts_->view->displayedRow(row);
    return column >= 0 && column < columnCount() && parts_->view->setChecked(index.siblingAtColumn(column), checked);
}

QTreeView* ReportGrid::view() const {
    return parts_->view;
}

// Heads

void ReportGrid::sortByHead(int column) {
    const ReportGridModel& model = *parts_->model;
    const bool grouped = groups().contains(column);
    if (!model.column(column).sortable && !grouped) return;
    emit orderRequested(column);
    bool ascending = !(model.sortColumn() == column && model.sortOrder() == Qt::AscendingOrder);
    for (const ReportGridModel::Group& group : model.groups()) {
        if (group.column == column) ascending = group.order == Qt::DescendingOrder;
    }
    setSort(column, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    if (grouped) {
        setGroups(groups());
    } else {
        populate();
    }
}

void ReportGrid::headMenu(int column) {
    const bool grouped = groups().contains(column);
    const bool canSort = parts_->model->column(column).sortable;
    const QString caption = parts_->model->column(column).caption;
    const int chosen = dialogs().popup({{parts_->sortPrompt + caption, canSort},
                                        {tr("Raggruppa per %1").arg(caption), !grouped},
                                        {tr("Togli i raggruppamenti"), !groups().isEmpty()}});
    if (chosen == 0) sortByHead(column);
    if (chosen == 1) groupBy(column);
    if (chosen == 2) setGroups({});
}

void ReportGrid::groupBy(int column) {
    emit orderRequested(column);
    setGroups(groups() << column);
}

bool ReportGrid::overGroupBox(const QPoint& globalPosition) const {
    const QWidget* box = parts_->groupBox;
    return box->isVisible() && box->rect().contains(box->mapFromGlobal(globalPosition));
}

// Events

void ReportGrid::prepareShown() {
    if (!parts_->beforeShown) return;
    const ReportTreeView& view = *parts_->view;
    const int bottom = view.viewport()->height();
    for (QModelIndex row = view.indexAt(QPoint(0, 0)); row.isValid(); row = view.indexBelow(row)) {
        if (view.visualRect(row).top() > bottom) return;
        if (ReportRecord* record = parts_->model->recordAt(row)) parts_->beforeShown(*record);
    }
}

bool ReportGrid::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parts_->view->viewport() && event->type() == QEvent::Paint) prepareShown();
    if (watched == parts_->view->viewport() && event->type() == QEvent::Resize) parts_->widths.apply();
    if (watched != parts_->view) return false;
    // A key that an open editor did not want belongs to the edit, not to the commands of the grid.
    if (event->type() != QEvent::KeyPress || isEditing()) return false;
    auto* key = static_cast<QKeyEvent*>(event);
    key->ignore();
    emit keyPressed(key);
    const bool taken = key->isAccepted();
    key->accept();
    return taken;
}

void ReportGrid::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!accessibleName().isEmpty()) parts_->view->setAccessibleName(accessibleName());
    parts_->widths.apply();
}

void ReportGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(parts_->colours.head.darker(135));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace platform
