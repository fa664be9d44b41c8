#pragma once

#include "treatments/GridRow.h"

#include <QDialog>
#include <QString>
#include <vector>

class QPushButton;

/// The rows of a plan in a large window, to be read and pointed at while the chart stays in view behind it. It holds
/// copies and changes nothing in the plan. Modal, one per call of the editor.
class frmZoomRighiTrattamento : public QDialog {
    Q_OBJECT

public:
    /// `number` is that of the plan, "2026-0001".
    explicit frmZoomRighiTrattamento(const QString& number, QWidget* parent = nullptr);

    void setRows(const std::vector<RowLine<PlanRow>>& lines);

signals:
    void rowSelected(const QString& teeth); ///< Teeth of the row now selected.

protected:
    void showEvent(QShowEvent* event) override;

private:
    void buildGrid();

    platform::ReportGrid* rcRighi_ = nullptr;
    RowColumns<PlanRow> columns_;
    std::vector<RowLine<PlanRow>> lines_;
    QPushButton* cbChiudi_ = nullptr;
};
