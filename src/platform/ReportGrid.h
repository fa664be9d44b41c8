#pragma once

#include "platform/ReportColumn.h"
#include "platform/ReportRecord.h"

#include <QTreeView>
#include <functional>
#include <memory>

namespace platform {

/// The grid of all lists: records with cells, grouping by dragging a header into the box above, sorting by click,
/// in-cell editing with lists and buttons, check boxes, merged cells, texts when empty. Rows are counted from 0 as
/// displayed. Ten thousand rows stay fluid: records are held as they are and painted by a delegate.
class ReportGrid : public QWidget {
    Q_OBJECT

public:
    explicit ReportGrid(QWidget* parent = nullptr);
    ~ReportGrid() override;

    // Set-up
    int addColumn(const ReportColumn& column);
    int columnCount() const;
    const ReportColumn& column(int index) const;
    void setColumnVisible(int column, bool visible);
    void setTexts(const QString& empty, const QString& groupBox, const QString& sortPrompt);
    QString emptyText() const; ///< What stands in the place of the rows when there are none.
    void setGroupBoxVisible(bool visible);
    void setColours(const QColor& shaded, const QColor& plain, const QColor& head);
    void setSort(int column, Qt::SortOrder order); ///< -1 for the order of adding. Taken up by `populate`.
    int sortColumn() const;                        ///< -1 when not sorted.
    void setGroups(const QList<int>& columns);     ///< Outermost first; empty for none. Shown at once.
    QList<int> groups() const;
    void setEditMode(bool cellFocus, bool editable); ///< Cell focus marks one cell; else the whole row.
    void setReadOnly(bool readOnly);

    // Records. Changes between begin and endUpdate are shown at once at the end.
    void beginUpdate();
    void endUpdate();
    ReportRecord* addRecord(); ///< A record with a cell per column; owned by the grid.
    ReportRecord* insertRecord(int position);
    void removeRecord(ReportRecord* record); ///< Of the grid or a child; it lives on until the running handler ends.
    /// The same for many at once; the focus stays on its record if that is kept.
    void removeRecords(const std::function<bool(const ReportRecord&)>& which);
    void moveRecord(int from, int to);
    void clear();
    int recordCount() const;
    ReportRecord* record(int position) const; ///< In the order of adding.
    void populate();                          ///< Shows what was changed in records.
    void refreshRecord(ReportRecord* record);
    /// Told of each record that is about to be painted: cells that take long to fill are filled then. It may change the
    /// cells of the record, must not throw, and is told of a record again whenever it is painted again.
    void setBeforeShown(std::function<void(ReportRecord&)> prepare);

    // Displayed rows
    int rowCount() const;
    ReportRecord* rowRecord(int row) const;      ///< Null for a group head.
    int rowOf(const ReportRecord* record) const; ///< -1 when not shown.
    QString rowCaption(int row) const;           ///< Text of a group head; empty for a record.

    // Focus and selection
    ReportRecord* focusedRecord() const;         ///< Null when none.
    void setFocusedRecord(ReportRecord* record); ///< Null takes the selection away.
    int focusedColumn() const;
    QList<ReportRecord*> selectedRecords() const;
    void editCell(ReportRecord* record, int column); ///< Starts the edit in that cell.
    bool isEditing() const;
    void finishEdit(); ///< Commits the edit that is open, with its handlers, before whatever comes next.
    /// Types a text into the cell as a person would: edit, replace, commit. False when the cell cannot be edited.
    bool enterText(int row, int column, const QString& text);
    bool setChecked(int row, int column, bool checked);

    QTreeView* view() const; ///< For key and mouse handling and accessibility.

signals:
    void orderRequested(int column); ///< The user is about to sort or group by it; its cells are read next.
    void valueChanged(platform::ReportRecord* record,
                      int column); ///< After an edit in the cell or a check by the user.
    void rowDoubleClicked(platform::ReportRecord* record, int column);
    void rowRightClicked(platform::ReportRecord* record, int column); ///< Null record on the empty area.
    void inplaceButton(platform::ReportRecord* record, int column);
    void focusedRecordChanged(platform::ReportRecord* record);
    void keyPressed(QKeyEvent* event); ///< Accept the event to keep it from the grid.

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Parts;
    void announceFocus();
    void prepareShown();
    void sortByHead(int column);
    void groupBy(int column);
    void headMenu(int column);
    bool overGroupBox(const QPoint& globalPosition) const;

    std::unique_ptr<Parts> parts_;
};

} // namespace platform
