#pragma once

#include <QDialog>

class QPushButton;
class clsListaReports;
namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

/// Modal list of the print reports, in which one is made that of the estimates and one that of the invoices. Borrows
/// the list. Shows itself when a setting cannot be written.
class frmListaReports : public QDialog {
    Q_OBJECT

public:
    explicit frmListaReports(const clsListaReports& reports, QWidget* parent = nullptr);

private:
    void costruisciLista(const clsListaReports& reports);
    void mostraMenu(platform::ReportRecord* record);
    void mostraUtilizzo();

    platform::ReportGrid* rcLista_ = nullptr;
    QPushButton* cbChiudi_ = nullptr;
};
