#pragma once

#include <QDialog>

class QPushButton;
class ReportList;
namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

/// Modal list of the print reports, in which one is made that of the estimates and one that of the invoices. Borrows
/// the list. Shows itself when a setting cannot be written.
class frmListaReports : public QDialog {
    Q_OBJECT

public:
    explicit frmListaReports(const ReportList& reports, QWidget* parent = nullptr);

private:
    void buildList(const ReportList& reports);
    void showMenu(platform::ReportRecord* record);
    void showUse();

    platform::ReportGrid* rcLista_ = nullptr;
    QPushButton* cbChiudi_ = nullptr;
};
