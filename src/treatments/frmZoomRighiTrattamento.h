#pragma once

#include <QDialog>
#include <QString>

class QPushButton;

namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

/// The rows of a plan in a large window, to be read and pointed at while the chart stays in view behind it. It holds
/// copies and changes nothing in the plan. Modal, one per call of the editor.
class frmZoomRighiTrattamento : public QDialog {
    Q_OBJECT

public:
    /// `number` is that of the plan, "2026-0001".
    explicit frmZoomRighiTrattamento(const QString& number, QWidget* parent = nullptr);

    void add(const platform::ReportRecord& record); ///< A copy, cell by cell, at the end.

signals:
    void rowSelected(const QString& teeth); ///< Teeth of the row now selected.

protected:
    void showEvent(QShowEvent* event) override;

private:
    void buildGrid();

    platform::ReportGrid* rcRighi_ = nullptr;
    QPushButton* cbChiudi_ = nullptr;
};
