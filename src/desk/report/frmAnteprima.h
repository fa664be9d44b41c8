#pragma once

#include "desk/report/ReportDocument.h"

#include <QDialog>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace desk {

class ReportPageView;

/// Modal preview of a report: turns pages, zooms, prints and saves as PDF. Says in its last line which variables the
/// layout misses. Shows failures of printing and saving itself.
class frmAnteprima : public QDialog {
    Q_OBJECT

public:
    frmAnteprima(ReportDocument document, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QHBoxLayout* buildBar();
    void buildPages(QHBoxLayout& bar);
    void buildZoom(QHBoxLayout& bar);
    void buildState();
    QToolButton* tool(const char* name, const char* icon, const QString& tip);
    void showPage(int number);
    void showZoom();
    void takeZoom();
    void print();
    void save();

    ReportDocument document_;
    ReportPageView* view_ = nullptr;
    QLineEdit* tbPagina_ = nullptr;
    QLabel* laPagine_ = nullptr;
    QToolButton* cbPrima_ = nullptr;
    QToolButton* cbPrecedente_ = nullptr;
    QToolButton* cbSuccessiva_ = nullptr;
    QToolButton* cbUltima_ = nullptr;
    QToolButton* cbRiduci_ = nullptr;
    QToolButton* cbIngrandisci_ = nullptr;
    QComboBox* cbZoom_ = nullptr;
    QLabel* laStato_ = nullptr;
};

} // namespace desk
