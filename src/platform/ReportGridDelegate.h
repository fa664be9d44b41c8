#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>

class QKeyEvent;

namespace platform {

class ReportGridModel;

/// Makes and reads the editors in the cells of a report grid: a text field, or a list where the cell offers choices.
/// Keeps the one editor that is open. Painting is the view's own.
class ReportGridDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    ReportGridDelegate(ReportGridModel& model, QObject* parent);

    QWidget* editor() const { return editor_; } ///< Null when none is open.
    QModelIndex editedIndex() const { return edited_; }
    void forgetEditor() { editor_.clear(); }
    /// Puts a text into the open editor as if typed; false when none is open.
    bool fill(const QString& text) const;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

signals:
    void committed(const QModelIndex& index) const; ///< An edit has changed the text.

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    QWidget* createList(QWidget* parent, const QModelIndex& index) const;
    void finish(QWidget* editor) const;
    void passOn(QWidget* editor, const QKeyEvent& key) const;

    ReportGridModel& model_;
    mutable QPointer<QWidget> editor_;
    mutable QPersistentModelIndex edited_;
};

} // namespace platform
