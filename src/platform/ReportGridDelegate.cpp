#include "platform/ReportGridDelegate.h"

#include "platform/ReportCellPainter.h"
#include "platform/ReportGridModel.h"
#include "platform/ReportTreeView.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace platform {

/// The list of a cell. A key or the wheel only changes what stands in it, as typing does; an entry taken from the open
/// list ends the edit.
class CellList : public QComboBox {
    Q_OBJECT

public:
    explicit CellList(QWidget* parent)
        : QComboBox(parent) {
        connect(this, &QComboBox::activated, this, [this] {
            if (!stepping_) emit chosen();
        });
    }

signals:
    void chosen();

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const QScopedValueRollback stepping(stepping_, true);
        QComboBox::keyPressEvent(event);
    }
    void wheelEvent(QWheelEvent* event) override {
        const QScopedValueRollback stepping(stepping_, true);
        QComboBox::wheelEvent(event);
    }

private:
    bool stepping_ = false;
};

namespace {

/// Keys of the window or of the grid; F2 starts an edit and has no meaning within one.
bool isCommand(const QKeyEvent& key) {
    const auto held = key.modifiers() & ~Qt::KeypadModifier;
    const bool function = key.key() >= Qt::Key_F3 && key.key() <= Qt::Key_F12;
    const bool upOrDown = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
    return (function && held == Qt::NoModifier) || (upOrDown && held == (Qt::ControlModifier | Qt::AltModifier));
}

} // namespace

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
    auto* list = new CellList(parent);
    list->setFrame(false);
    list->addItems(model_.cellAt(index).style().choices);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    // Later, since Enter in the field makes a choice too, and then ends the edit by itself.
    connect(
        list, &CellList::chosen, this,
        [this, list] {
            if (editor_ == list) finish(list);
        },
        Qt::QueuedConnection);
    return list;
}

void ReportGridDelegate::finish(QWidget* editor) const {
    auto* self = const_cast<ReportGridDelegate*>(this); // The signals of the base are not const.
    QPointer<QWidget> open(editor);
    emit self->commitData(editor);
    if (open) emit self->closeEditor(editor, NoHint);
}

// A command works on what the cell holds, so the edit ends first; the key then goes the way it takes without an edit.
void ReportGridDelegate::passOn(QWidget* editor, const QKeyEvent& key) const {
    const QPointer<QObject> view(parent());
    finish(editor);
    QKeyEvent passed(key.type(), key.key(), key.modifiers(), key.text());
    if (view) QCoreApplication::sendEvent(view, &passed);
}

void ReportGridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const QString value = model_.cellAt(index).value;
    auto* list = qobject_cast<QComboBox*>(editor);
    auto* line = list ? list->lineEdit() : qobject_cast<QLineEdit*>(editor);
    if (!line || line->isModified()) return; // shown anew meanwhile: what is being typed stays
    if (list) {
        list->setCurrentIndex(list->findText(value));
        list->setEditText(value);
        // Selected from the end, so that the start of a long name stays in sight.
        line->setSelection(static_cast<int>(value.size()), -static_cast<int>(value.size()));
    } else {
        line->setText(value);
    }
}

void ReportGridDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    QString text;
    if (const auto* list = qobject_cast<QComboBox*>(editor)) {
        // An entry is taken in its own spelling, whatever letters it was typed with.
        const int entry = list->findText(list->currentText().trimmed(), Qt::MatchFixedString);
        text = entry < 0 ? list->currentText() : list->itemText(entry);
    } else if (const auto* line = qobject_cast<QLineEdit*>(editor)) {
        text = line->text();
    }
    if (text == model_.cellAt(index).value) return;
    if (model->setData(index, text, Qt::EditRole)) emit committed(index);
}

bool ReportGridDelegate::fill(const QString& text) const {
    if (auto* list = qobject_cast<QComboBox*>(editor_.data())) {
        list->setEditText(text);
        return true;
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
        if (isCommand(*static_cast<QKeyEvent*>(event))) {
            passOn(editor, *static_cast<QKeyEvent*>(event));
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

bool ReportGridDelegate::editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&, const QModelIndex&) {
    return false; // The view itself ticks the boxes, and says so.
}

} // namespace platform

#include "ReportGridDelegate.moc"
