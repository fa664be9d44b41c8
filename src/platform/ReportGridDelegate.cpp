#include "platform/ReportGridDelegate.h"

#include "platform/ReportCellPainter.h"
#include "platform/ReportGridModel.h"
#include "platform/ReportTreeView.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace platform {

ReportGridDelegate::ReportGridDelegate(ReportGridModel& model, QObject* parent)
    : QStyledItemDelegate(parent)
    , model_(model) {}

QWidget* ReportGridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                          const QModelIndex& index) const {
    QWidget* editor = nullptr;
    if (model_.cellAt(index).style().choices.isEmpty()) {
        auto* line = new QLineEdit(parent);
        line->setFrame(false);
        line->setAlignment(model_.column(index.column()).alignment);
        editor = line;
    } else {
        editor = createList(parent, index);
    }
    editor->setAutoFillBackground(true);
    editor->setAccessibleName(model_.column(index.column()).caption);
    editor_ = editor;
    edited_ = index;
    return editor;
}

QWidget* ReportGridDelegate::createList(QWidget* parent, const QModelIndex& index) const {
    const ReportCellStyle& style = model_.cellAt(index).style();
    auto* list = new QComboBox(parent);
    list->setFrame(false);
    list->addItems(style.choices);
    list->setEditable(!style.choicesOnly);
    list->setInsertPolicy(QComboBox::NoInsert);
    connect(list, &QComboBox::activated, this, [this, list] { finish(list); });
    return list;
}

void ReportGridDelegate::finish(QWidget* editor) const {
    auto* self = const_cast<ReportGridDelegate*>(this); // The signals of the base are not const.
    QPointer<QWidget> open(editor);
    emit self->commitData(editor);
    if (open) emit self->closeEditor(editor, NoHint);
}

void ReportGridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const QString value = model_.cellAt(index).value;
    if (auto* list = qobject_cast<QComboBox*>(editor)) {
        list->setCurrentIndex(list->findText(value));
        if (list->isEditable()) {
            list->setEditText(value);
            // Selected from the end, so that the start of a long name stays in sight.
            list->lineEdit()->setSelection(static_cast<int>(value.size()), -static_cast<int>(value.size()));
        }
    } else if (auto* line = qobject_cast<QLineEdit*>(editor)) {
        line->setText(value);
    }
}

void ReportGridDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    QString text;
    if (const auto* list = qobject_cast<QComboBox*>(editor)) {
        // A list left without a choice keeps what the cell had, even if that is none of the entries.
        if (!list->isEditable() && list->currentIndex() < 0) return;
        text = list->currentText();
    } else if (const auto* line = qobject_cast<QLineEdit*>(editor)) {
        text = line->text();
    }
    if (text == model_.cellAt(index).value) return;
    if (model->setData(index, text, Qt::EditRole)) emit committed(index);
}

bool ReportGridDelegate::fill(const QString& text) const {
    if (auto* list = qobject_cast<QComboBox*>(editor_.data())) {
        if (list->isEditable()) {
            list->setEditText(text);
            return true;
        }
        list->setCurrentIndex(list->findText(text, Qt::MatchFixedString));
        return list->currentIndex() >= 0;
    }
    auto* line = qobject_cast<QLineEdit*>(editor_.data());
    if (!line) return false;
    line->selectAll();
    line->insert(text);
    return true;
}

void ReportGridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem&,
                                              const QModelIndex& index) const {
    const auto* view = qobject_cast<const ReportTreeView*>(parent());
    const bool list = !model_.cellAt(index).style().choices.isEmpty();
    const ReportCellParts parts(model_.cellAt(index), view->cellRect(index), view->indentOf(index), list);
    const QRect cell = parts.text.united(parts.list);
    editor->setGeometry(cell.adjusted(-2, 1, list ? 0 : 2, 0));
}

QSize ReportGridDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {40, std::max(option.fontMetrics.height() + 8, 22)};
}

bool ReportGridDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* editor = qobject_cast<QWidget*>(object);
    if (event->type() == QEvent::KeyPress && editor && editor == editor_) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        // Taken here and now: the window must not see the key, or Enter would also press its default button.
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            finish(editor);
            return true;
        }
        if (key == Qt::Key_Escape) {
            emit closeEditor(editor, RevertModelCache);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

bool ReportGridDelegate::editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&, const QModelIndex&) {
    return false; // The view itself ticks the boxes, and says so.
}

} // namespace platform
