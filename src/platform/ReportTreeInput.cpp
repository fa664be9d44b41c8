// Mouse, keys and edits of the report grid's view; its painting and geometry are in ReportTreeView.cpp.
#include "platform/ReportGridDelegate.h"
#include "platform/ReportGridModel.h"
#include "platform/ReportTreeView.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPointer>

namespace platform {

void ReportTreeView::mousePressEvent(QMouseEvent* event) {
    editTimer_.stop();
    // Ends the edit before the cell is looked up: the handlers of an edit may move the rows.
    finishEdit();
    const QPoint position = event->position().toPoint();
    const QModelIndex at = cellAt(position);
    pressed_ = at;
    pressedPart_ = partAt(at, position);
    pressedFocused_ = at.isValid() && at == currentIndex() && selectionModel()->isSelected(at);
    if (pressedPart_ == Part::Expander && event->button() == Qt::LeftButton) {
        setExpanded(at.siblingAtColumn(0), !isExpanded(at.siblingAtColumn(0)));
        if (model_.isGroupHead(at)) setCurrentIndex(at.siblingAtColumn(0));
        return;
    }
    QTreeView::mousePressEvent(event);
    if (pressed_.isValid() && currentIndex() != pressed_ && indexAt(position) == currentIndex()) {
        selectionModel()->setCurrentIndex(pressed_, QItemSelectionModel::NoUpdate);
    }
}

void ReportTreeView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeView::mouseReleaseEvent(event);
    const QPoint position = event->position().toPoint();
    const QModelIndex at = cellAt(position);
    if (event->button() == Qt::RightButton) {
        emit cellRightClicked(model_.recordAt(at), at.column());
        return;
    }
    if (event->button() != Qt::LeftButton || !at.isValid() || QModelIndex(pressed_) != at) return;
    if (partAt(at, position) != pressedPart_ && pressedPart_ != Part::Text) return;
    releaseLeft(at, pressedPart_);
}

void ReportTreeView::releaseLeft(const QModelIndex& at, Part part) {
    switch (part) {
    case Part::Check:
        setChecked(at, !model_.cellAt(at).isChecked());
        return;
    case Part::Button:
        emit buttonClicked(model_.recordAt(at), at.column());
        return;
    case Part::List:
        if (!startEdit(at)) return;
        if (auto* list = qobject_cast<QComboBox*>(delegate_->editor())) list->showPopup();
        return;
    case Part::Text:
        if (cellFocus_ && pressedFocused_ && model_.isEditable(at))
            editTimer_.start(QApplication::doubleClickInterval());
        return;
    case Part::Expander:
    case Part::None:
        return;
    }
}

QItemSelectionModel::SelectionFlags ReportTreeView::selectionCommand(const QModelIndex& index,
                                                                     const QEvent* event) const {
    // The base would clear the selection that the menu on the empty area is about.
    const bool isRelease = event && event->type() == QEvent::MouseButtonRelease;
    if (isRelease && static_cast<const QMouseEvent*>(event)->button() == Qt::RightButton)
        return QItemSelectionModel::NoUpdate;
    return QTreeView::selectionCommand(index, event);
}

void ReportTreeView::mouseDoubleClickEvent(QMouseEvent* event) {
    editTimer_.stop();
    const QPoint position = event->position().toPoint();
    const Part part = partAt(cellAt(position), position);
    if (part == Part::Check || part == Part::Button || part == Part::Expander) {
        // Two quick clicks on a part are two clicks.
        mousePressEvent(event);
        return;
    }
    QTreeView::mouseDoubleClickEvent(event);
    const QModelIndex at = cellAt(position);
    pressed_ = QModelIndex();
    if (event->button() != Qt::LeftButton || !model_.recordAt(at)) return;
    emit cellDoubleClicked(model_.recordAt(at), at.column());
}

void ReportTreeView::contextMenuEvent(QContextMenuEvent* event) {
    // The mouse has its say on release of the button; this one comes from the menu key.
    if (event->reason() == QContextMenuEvent::Keyboard) {
        emit cellRightClicked(model_.recordAt(currentIndex()), currentIndex().column());
    }
    event->accept();
}

void ReportTreeView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex box = event->key() == Qt::Key_Space ? checkInRow(currentIndex()) : QModelIndex();
    if (box.isValid()) {
        setChecked(box, !model_.cellAt(box).isChecked());
        return;
    }
    QTreeView::keyPressEvent(event);
}

QModelIndex ReportTreeView::checkInRow(const QModelIndex& index) const {
    if (!index.isValid() || isEditing()) return {};
    if (cellFocus_) return model_.isCheckable(index) ? index : QModelIndex();
    for (int column = 0; column < model_.columns(); ++column) {
        const QModelIndex cell = index.siblingAtColumn(column);
        if (!isColumnHidden(column) && model_.isCheckable(cell)) return cell;
    }
    return {};
}

QModelIndex ReportTreeView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const QModelIndex current = currentIndex();
    const bool across = action == MoveLeft || action == MoveRight;
    if (!across || !cellFocus_ || !model_.recordAt(current)) return QTreeView::moveCursor(action, modifiers);
    const QModelIndex next = stepColumn(current, action == MoveRight ? 1 : -1);
    return next.isValid() ? next : current;
}

QModelIndex ReportTreeView::stepColumn(const QModelIndex& from, int step) const {
    const int start = model_.spanStart(from);
    for (int column = from.column() + step; column >= 0 && column < model_.columns(); column += step) {
        const QModelIndex at = from.siblingAtColumn(column);
        const int owner = model_.spanStart(at);
        if (owner != start && !isColumnHidden(owner)) return at.siblingAtColumn(owner);
    }
    return {};
}

QModelIndex ReportTreeView::nextEditable(const QModelIndex& from, int step) const {
    const int columns = model_.columns();
    int row = displayedRowOf(from);
    int column = from.column() + step;
    for (; row >= 0 && row<displayedRowCount(); row += step, column = step> 0 ? 0 : columns - 1) {
        for (; column >= 0 && column < columns; column += step) {
            const QModelIndex at = displayedRow(row).siblingAtColumn(column);
            if (!isColumnHidden(column) && model_.isEditable(at)) return at;
        }
    }
    return {};
}

bool ReportTreeView::isEditing() const {
    return delegate_->editor() != nullptr;
}

bool ReportTreeView::startEdit(const QModelIndex& index) {
    const QPersistentModelIndex at(index);
    finishEdit();
    if (!at.isValid() || isColumnHidden(at.column()) || !model_.isEditable(at)) return false;
    setCurrentIndex(at);
    if (!at.isValid()) return false;
    return edit(at, QAbstractItemView::AllEditTriggers, nullptr);
}

void ReportTreeView::finishEdit() {
    QPointer<QWidget> editor(delegate_->editor());
    if (!editor) return;
    commitData(editor);
    if (editor) closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void ReportTreeView::abandonEdit(const ReportRecord* record) {
    if (!isEditing()) return;
    bool concerned = record == nullptr;
    for (QModelIndex at = delegate_->editedIndex(); at.isValid() && !concerned; at = at.parent()) {
        concerned = model_.recordAt(at) == record;
    }
    if (concerned) closeEditor(delegate_->editor(), QAbstractItemDelegate::RevertModelCache);
}

void ReportTreeView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    const bool own = editor && editor == delegate_->editor();
    const QPersistentModelIndex at = delegate_->editedIndex();
    const bool next = hint == QAbstractItemDelegate::EditNextItem;
    const bool previous = hint == QAbstractItemDelegate::EditPreviousItem;
    if (own) delegate_->forgetEditor();
    // The base would step to the neighbouring cell before the handlers of this edit have run.
    QTreeView::closeEditor(editor, next || previous ? QAbstractItemDelegate::NoHint : hint);
    if (!own) return;
    const QPointer<ReportTreeView> alive(this);
    announceEdit();
    if (!alive || isEditing() || !at.isValid() || !(next || previous)) return;
    const QModelIndex neighbour = nextEditable(at, next ? 1 : -1);
    if (neighbour.isValid()) startEdit(neighbour);
}

void ReportTreeView::announceEdit() {
    ReportRecord* record = std::exchange(changedRecord_, nullptr);
    if (record && model_.indexOf(record).isValid()) emit edited(record, changedColumn_);
}

bool ReportTreeView::typeText(const QModelIndex& index, const QString& text) {
    if (!startEdit(index) || !isEditing()) return false;
    if (!delegate_->fill(text)) {
        abandonEdit();
        return false;
    }
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(delegate_->editor(), &enter);
    return true;
}

bool ReportTreeView::setChecked(const QModelIndex& index, bool checked) {
    if (!model_.isCheckable(index)) return false;
    if (model_.cellAt(index).isChecked() == checked) return true;
    ReportRecord* record = model_.recordAt(index);
    const int column = index.column();
    model_.setData(index, checked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    emit edited(record, column);
    return true;
}

} // namespace platform
