#pragma once

#include <QString>
#include <QWidget>
#include <array>

class QKeyEvent;
class QPushButton;
class QTimer;

namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

/// The rows of a document in its editor, whatever its kind: the grid rcRighi, the buttons cbRighi(n), the context menu
/// and the keys, the way of a command through the timer tmRighi, the return of the keyboard through tmSetFocusOnRow.
/// What a row is and what is done to it stand in RowsOf and in the kind. Rows are counted from 0. Owned by the editor.
class DocumentRows : public QWidget {
    Q_OBJECT

public:
    enum Command { NEW = 0, EDIT = 1, REMOVE = 2, OWN = 3 }; ///< The last one is the kind's own.

    /// Runs a command through the timer tmRighi, after the event at hand has ended.
    void arm(Command command);
    void press(Command command); ///< As a click on its button: nothing when that is disabled or not there.
    void endEdit();              ///< Ends the edit in a cell with all that follows from it.
    void setReadOnly();

    static QString rowNumber(int position); ///< Counted from 1, as shown and stored.

signals:
    void changed(); ///< What is computed from the rows must follow.

protected:
    /// `ownCommand` is the caption of the kind's own button; empty where there is none.
    explicit DocumentRows(const QString& ownCommand, QWidget* parent = nullptr);

    platform::ReportGrid& grid() const { return *rcRighi_; }
    bool isReadOnly() const { return readOnly_; }
    int position(const platform::ReportRecord* record) const; ///< -1 when it is no row any more.
    void editCell(int row, int column);                       ///< When the grid can take the keyboard.
    void returnToRow(int row);                                ///< Once the edit at hand has ended.

    virtual void newRow() = 0;
    virtual bool editRow(int row) = 0;
    virtual void removeRow(int row) = 0;
    virtual void moveRow(int from, int to) = 0;
    virtual void ownCommand() {}
    virtual void cellTyped(int row, int column) = 0;
    virtual bool openCell(int row, int column); ///< By its button or a double click; false when there is nothing to it.
    virtual void rowFocused(int row);           ///< -1 for none.

private:
    void buildButtons(const QString& ownCommand);
    void wire();
    void run(int command);
    void moveSelected(int step);
    void keyPressed(QKeyEvent* event);
    void showMenu();
    void doubleClicked(platform::ReportRecord* record, int column);
    void takeFocusBack();

    platform::ReportGrid* rcRighi_;
    std::array<QPushButton*, 4> cbRighi_{};
    QTimer* tmRighi_;
    QTimer* tmSetFocusOnRow_;
    int armedCommand_ = -1;
    int rowToFocus_ = -1;
    bool readOnly_ = false;
};
