#include "platform/ReportGridParts.h"

#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace platform {

ReportGrid::ReportGrid(QWidget* parent)
    : QWidget(parent)
    , parts_(std::make_unique<Parts>(this)) {
    Parts& p = *parts_;
    p.view->setHeader(p.header);
    p.header->setSectionsClickable(true);
    p.header->setSortIndicatorShown(true);
    p.header->setSortIndicator(-1, Qt::AscendingOrder);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    column->addWidget(p.groupBox);
    column->addWidget(p.view);
    setFocusProxy(p.view);
    p.groupBox->hide();
    setColours(p.colours.shaded, p.colours.plain, p.colours.head);
    p.view->installEventFilter(this);
    p.view->viewport()->installEventFilter(this);
    connect(p.view, &ReportTreeView::edited, this, &ReportGrid::valueChanged);
    connect(p.view, &ReportTreeView::cellDoubleClicked, this, &ReportGrid::rowDoubleClicked);
    connect(p.view, &ReportTreeView::cellRightClicked, this, &ReportGrid::rowRightClicked);
    connect(p.view, &ReportTreeView::buttonClicked, this, &ReportGrid::inplaceButton);
    connect(p.view, &ReportTreeView::moved, this, &ReportGrid::announceFocus);
    connect(p.header, &ReportHeader::headClicked, this, &ReportGrid::sortByHead);
    connect(p.header, &ReportHeader::menuRequested, this, &ReportGrid::headMenu);
    connect(p.header, &ReportHeader::widthDragged, this, [&p](int head, int width) { p.widths.dragged(head, width); });
    connect(p.header, &ReportHeader::headDragged, this,
            [this, &p](int, const QPoint& at) { p.groupBox->setDropHint(overGroupBox(at)); });
    connect(p.header, &ReportHeader::headDropped, this, [this, &p](int head, const QPoint& at) {
        p.groupBox->setDropHint(false);
        if (overGroupBox(at) && !groups().contains(head)) groupBy(head);
    });
    connect(p.groupBox, &ReportGroupBox::removed, this, [this](int head) {
        QList<int> kept = groups();
        kept.removeAll(head);
        setGroups(kept);
    });
    connect(p.groupBox, &ReportGroupBox::orderToggled, this, &ReportGrid::sortByHead);
    connect(this, &QObject::objectNameChanged, this, [&p](const QString& name) { p.view->setAccessibleName(name); });
}

ReportGrid::~ReportGrid() {
    // The view goes before the model that it shows.
    parts_->view->removeEventFilter(this);
    parts_->view->viewport()->removeEventFilter(this);
    parts_->view->disconnect(this);
    delete parts_->view;
}

// Set-up

int ReportGrid::addColumn(const ReportColumn& column) {
    const int index = parts_->model->addColumn(column);
    parts_->widths.apply();
    return index;
}

int ReportGrid::columnCount() const {
    return parts_->model->columns();
}

const ReportColumn& ReportGrid::column(int index) const {
    return parts_->model->column(index);
}

void ReportGrid::setColumnVisible(int column, bool visible) {
    parts_->model->column(column).visible = visible;
    parts_->widths.apply();
}

QString ReportGrid::emptyText() const {
    return parts_->view->emptyText();
}

void ReportGrid::setTexts(const QString& empty, const QString& groupBox, const QString& sortPrompt) {
    parts_->view->setEmptyText(empty);
    parts_->groupBox->setPrompt(groupBox);
    parts_->sortPrompt = sortPrompt;
}

void ReportGrid::setGroupBoxVisible(bool visible) {
    parts_->groupBox->setVisible(visible);
}

void ReportGrid::setColours(const QColor& shaded, const QColor& plain, const QColor& head) {
    parts_->colours.shaded = shaded;
    parts_->colours.plain = plain;
    parts_->colours.head = head;
    parts_->colours.accent = palette().color(QPalette::Highlight);
    QPalette inside = parts_->view->palette();
    inside.setColor(QPalette::Base, plain);
    inside.setColor(QPalette::AlternateBase, shaded);
    parts_->view->setPalette(inside);
    parts_->groupBox->coloursChanged();
    parts_->view->viewport()->update();
}

void ReportGrid::setSort(int column, Qt::SortOrder order) {
    parts_->model->setSort(column, order);
    parts_->header->setSortIndicator(parts_->model->sortColumn(), order);
}

int ReportGrid::sortColumn() const {
    return parts_->model->sortColumn();
}

void ReportGrid::setGroups(const QList<int>& columns) {
    Parts& p = *parts_;
    QList<ReportGridModel::Group> groups;
    QList<ReportGroupBox::Entry> entries;
    for (int column : columns) {
        if (column < 0 || column >= columnCount()) continue;
        ReportGridModel::Group group{column, Qt::AscendingOrder};
        for (const ReportGridModel::Group& before : p.model->groups()) {
            if (before.column == column) group = before;
        }
        groups.append(group);
        entries.append({column, p.model->column(column).caption, group.order == Qt::DescendingOrder});
    }
    p.model->setGroups(groups);
    p.groupBox->setEntries(entries);
    populate();
}

QList<int> ReportGrid::groups() const {
    QList<int> columns;
    for (const ReportGridModel::Group& group : parts_->model->groups())
        columns.append(group.column);
    return columns;
}

void ReportGrid::setEditMode(bool cellFocus, bool editable) {
    parts_->view->setCellFocus(cellFocus);
    parts_->editable = editable;
    parts_->model->setEditing(editable, parts_->readOnly);
}

void ReportGrid::setReadOnly(bool readOnly) {
    if (readOnly) parts_->view->abandonEdit();
    parts_->readOnly = readOnly;
    parts_->model->setEditing(parts_->editable, readOnly);
    parts_->view->viewport()->update();
}

// Records

void ReportGrid::beginUpdate() {
    parts_->model->beginBatch();
}

void ReportGrid::endUpdate() {
    parts_->change(*this, [this] { parts_->model->endBatch(); });
}

ReportRecord* ReportGrid::addRecord() {
    return insertRecord(recordCount());
}

ReportRecord* ReportGrid::insertRecord(int position) {
    return parts_->model->insert(position);
}

void ReportGrid::removeRecord(ReportRecord* record) {
    if (!record) return;
    const int row = record == focusedRecord() ? rowOf(record) : -1;
    parts_->change(*this, [this, record, row] {
        parts_->view->abandonEdit(record);
        parts_->model->remove(record);
        // The row that takes the place takes the focus too, so that the keyboard stays where the user was.
        if (row >= 0) setFocusedRecord(rowRecord(std::min(row, rowCount() - 1)));
    });
}

void ReportGrid::removeRecords(const std::function<bool(const ReportRecord&)>& which) {
    ReportRecord* focused = focusedRecord();
    const bool keepsFocus = focused && !which(*focused);
    parts_->change(*this, [&] {
        parts_->view->abandonEdit();
        parts_->model->removeIf(which);
        if (keepsFocus) setFocusedRecord(focused);
    });
}

void ReportGrid::moveRecord(int from, int to) {
    parts_->change(*this, [this, from, to] { parts_->model->move(from, to); });
}

void ReportGrid::clear() {
    parts_->change(*this, [this] {
        parts_->view->abandonEdit();
        parts_->model->clear();
    });
}

int ReportGrid::recordCount() const {
    return parts_->model->count();
}

ReportRecord* ReportGrid::record(int position) const {
    return parts_->model->at(position);
}

void ReportGrid::populate() {
    parts_->change(*this, [this] {
        parts_->model->flush();
        parts_->model->arrange();
    });
}

void ReportGrid::setBeforeShown(std::function<void(ReportRecord&)> prepare) {
    parts_->beforeShown = std::move(prepare);
}

void ReportGrid::refreshRecord(ReportRecord* record) {
    parts_->model->recordChanged(record);
}

} // namespace platform
