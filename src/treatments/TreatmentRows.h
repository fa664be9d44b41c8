#pragma once

#include "chart/ChartComposition.h"
#include "treatments/clsItemRigoTrattamento.h"

#include <QList>
#include <QString>
#include <QWidget>
#include <array>

class QKeyEvent;
class QPushButton;
class QTimer;
class frmZoomRighiTrattamento;

namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

struct clsItemTrattamento;

/// The rows of the plan editor: the grid rcRighi, the buttons cbRighi(0) to cbRighi(3), the context menu and the keys,
/// the edit in the cells. The grid is the working copy; the window takes the rows from it when it saves. Owned by the
/// window.
class TreatmentRows : public QWidget {
    Q_OBJECT

public:
    enum Command { NEW = 0, EDIT = 1, REMOVE = 2, ZOOM = 3 };

    explicit TreatmentRows(QWidget* parent = nullptr);

    void load(const clsItemTrattamento& item);
    QList<clsItemRigoTrattamento> rows() const; ///< As they will be stored; without the number of the plan.
    QList<ChartRow> forChart() const;
    /// Reference of the plan's advance invoice, which new rows count as covered by; empty for none.
    void setAdvanceInvoice(const QString& reference) { advanceInvoice_ = reference; }
    void setReadOnly();

    /// Runs a command through the timer tmRighi, after the event at hand has ended.
    void arm(Command command);
    void endEdit();              ///< Ends the edit in a cell with all that follows from it.
    void press(Command command); ///< As a click on its button: nothing when that is disabled.

    /// Shows the rows of a tooth bold; empty ends it.
    void highlight(const QString& tooth);
    /// The teeth of all rows with a service, as a selection.
    QString teethOfService(const QString& service) const;
    void copyTo(frmZoomRighiTrattamento& zoom) const; ///< The rows as they stand, to be read only.
    bool hasRow(const QString& number) const { return rowWithNumber(number) != nullptr; }
    bool openRow(const QString& number); ///< The row editor on the row of that number; true when it was accepted.

signals:
    void zoomRequested();
    void changed();                         ///< Chart, marks and totals must follow.
    void rowSelected(const QString& teeth); ///< Teeth of the row now selected.

private:
    void buildColumns();
    void wire();
    platform::ReportRecord* add(const clsItemRigoTrattamento& row);
    platform::ReportRecord* rowWithNumber(const QString& number) const; ///< Null when there is none.
    void run(int command);
    void newRow();
    bool editRow(platform::ReportRecord* record);
    void removeRow();
    void renumber();
    void moveRow(int step);
    void offerChoices(platform::ReportRecord& record) const;
    void keyPressed(QKeyEvent* event);
    void showMenu();
    void doubleClicked(platform::ReportRecord* record, int column);

    void cellChanged(platform::ReportRecord* record, int column);
    void serviceTyped(platform::ReportRecord& record, int column);
    void searchService(platform::ReportRecord& record);
    void applyService(platform::ReportRecord& record);
    void chooseTeeth(platform::ReportRecord* record);
    void returnToRow(platform::ReportRecord* record);
    void takeFocusBack();
    int position(const platform::ReportRecord* record) const;

    platform::ReportGrid* rcRighi_ = nullptr;
    std::array<QPushButton*, 4> cbRighi_{};
    QTimer* tmRighi_ = nullptr;
    QTimer* tmSetFocusOnRow_ = nullptr;
    int armedCommand_ = -1;
    int rowToFocus_ = -1;
    QString advanceInvoice_;
    bool readOnly_ = false;
    QStringList groups_;
    QStringList operators_;
    QStringList assistants_;
};
