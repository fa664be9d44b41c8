#pragma once

#include "platform/ReportCellPainter.h"

#include <QPersistentModelIndex>
#include <QTimer>
#include <QTreeView>
#include <functional>
#include <optional>

namespace platform {

class ReportGridDelegate;
class ReportGridModel;
class ReportRecord;

/// The rows of a report grid on screen: paints them, turns mouse and keys into edits, ticks and the signals of the
/// grid. Counts rows as displayed. Signals come when the event that caused them has been dealt with, so that a handler
/// may change or remove the records.
class ReportTreeView : public QTreeView {
    Q_OBJECT

public:
    ReportTreeView(ReportGridModel& model, const ReportColours& colours, QWidget* parent);

    void setCellFocus(bool cellFocus);
    void setEmptyText(const QString& text);
    const QString& emptyText() const { return emptyText_; }

    // Displayed rows
    int displayedRowCount() const { return static_cast<int>(displayed().size()); }
    QModelIndex displayedRow(int row) const; ///< Invalid outside the rows.
    int displayedRowOf(const QModelIndex& index) const;
    /// Visits the rows that have rows below them.
    void forEachBranch(const std::function<void(const QModelIndex&)>& visit) const;
    /// Opens the branches that are to be open and folds the others.
    void unfold(const std::function<bool(const QModelIndex&)>& open);

    // Cells
    QRect cellRect(const QModelIndex& index) const; ///< With the columns that the cell covers.
    int indentOf(const QModelIndex& index) const;
    QModelIndex cellAt(const QPoint& position) const;

    // Edits
    bool isEditing() const;
    bool startEdit(const QModelIndex& index);
    void finishEdit();                                      ///< Commits what is open.
    void abandonEdit(const ReportRecord* record = nullptr); ///< Drops the edit in that record, or any.
    bool typeText(const QModelIndex& index, const QString& text);
    bool setChecked(const QModelIndex& index, bool checked);

signals:
    void edited(platform::ReportRecord* record, int column);
    void cellDoubleClicked(platform::ReportRecord* record, int column);
    void cellRightClicked(platform::ReportRecord* record, int column);
    void buttonClicked(platform::ReportRecord* record, int column);
    void moved(); ///< The current cell or the selection.

protected:
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void drawBranches(QPainter*, const QRect&, const QModelIndex&) const override {}
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    enum class Part { None, Text, Check, Button, List, Expander };

    const std::vector<QModelIndex>& displayed() const;
    void forgetDisplayed() { displayedKnown_ = false; }
    void collectDisplayed(const QModelIndex& parent) const;
    int firstColumn() const;
    QRect columnsIn(const QRect& row, int first, int covered) const;
    const ReportCellPainter& cells() const;
    ReportCellParts partsOf(const QModelIndex& index) const;
    Part partAt(const QModelIndex& index, const QPoint& position) const;
    QModelIndex stepColumn(const QModelIndex& from, int step) const;
    QModelIndex nextEditable(const QModelIndex& from, int step) const;
    QModelIndex checkInRow(const QModelIndex& index) const;
    void paintRecord(QPainter& painter, const QRect& row, const QModelIndex& index) const;
    void announceEdit();
    void releaseLeft(const QModelIndex& at, Part part);
    void repaintRow(const QModelIndex& index);
    void repaintRows(const QItemSelection& rows);

    ReportGridModel& model_;
    const ReportColours& colours_;
    ReportGridDelegate* delegate_;
    QString emptyText_;
    QTimer editTimer_; ///< Waits whether a second click becomes a double click.
    QPersistentModelIndex pressed_;
    Part pressedPart_ = Part::None;
    bool pressedFocused_ = false; ///< The press came on the cell that had the focus already.
    ReportRecord* changedRecord_ = nullptr;
    int changedColumn_ = 0;
    bool cellFocus_ = false;
    mutable std::optional<ReportCellPainter> cells_; ///< For the present font.
    mutable std::vector<QModelIndex> displayed_;
    mutable bool displayedKnown_ = false;
    mutable bool indented_ = false; ///< Some record has child records.
};

} // namespace platform
