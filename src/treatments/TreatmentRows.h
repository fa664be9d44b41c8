#pragma once

#include "chart/ChartComposition.h"
#include "documents/RowsOf.h"
#include "treatments/GridRow.h"
#include "treatments/RowTotals.h"

#include <QList>
#include <QString>

class frmZoomRighiTrattamento;

struct clsItemTrattamento;

/// The rows of the plan editor, which are the working copy: chart, marks and totals follow them, and the window takes
/// the record's rows from here when it saves. Owned by the window.
class TreatmentRows : public RowsOf<PlanRow> {
    Q_OBJECT

public:
    static constexpr Command ZOOM = OWN;

    explicit TreatmentRows(QWidget* parent = nullptr);

    void load(const clsItemTrattamento& item);
    QList<clsItemRigoTrattamento> rows() const; ///< As they will be stored; without the number of the plan.
    QList<ChartRow> forChart() const;
    RowTotals totals() const;
    /// Reference of the plan's advance invoice, which new rows count as covered by; empty for none.
    void setAdvanceInvoice(const QString& reference) { advanceInvoice_ = reference; }

    /// Shows the rows of a tooth bold; empty ends it.
    void highlight(const QString& tooth);
    /// The teeth of all rows with a service, as a selection.
    QString teethOfService(const QString& service) const;
    void copyTo(frmZoomRighiTrattamento& zoom) const; ///< The rows as they stand, to be read only.
    bool hasRow(const QString& number) const { return rowWithNumber(number) >= 0; }
    bool openRow(const QString& number); ///< The row editor on the row of that number; true when it was accepted.

signals:
    void zoomRequested();
    void rowSelected(const QString& teeth); ///< Teeth of the row now selected.

protected:
    void newRow() override;
    bool editRow(int at) override;
    void removeRow(int at) override;
    void ownCommand() override { emit zoomRequested(); }
    void afterCell(int at, int column) override;
    bool openCell(int at, int column) override;
    void rowFocused(int at) override;

private:
    int rowWithNumber(const QString& number) const; ///< -1 when there is none.
    clsItemRigoTrattamento stored(int at) const;
    void serviceTyped(int at, int column);
    void searchService(int at);
    void applyService(int at);

    QString advanceInvoice_;
};
