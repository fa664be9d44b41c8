#pragma once

#include "desk/report/ReportDocument.h"

#include <QDialog>
#include <memory>

class QComboBox;
class QGraphicsView;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPrintPreviewWidget;
class QPrinter;
class QPushButton;
class QToolButton;

namespace desk {

/// Modal preview of a report: one page below the other, two side by side or all at once; zooms with Ctrl and the wheel
/// too, prints and saves as PDF. Says in its last line which variables the layout misses. Shows failures of printing and
/// saving itself.
class frmAnteprima : public QDialog {
    Q_OBJECT

public:
    frmAnteprima(ReportDocument document, QWidget* parent = nullptr);
    ~frmAnteprima() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override; ///< Ctrl and the wheel, Home and End over the pages.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildView();
    QHBoxLayout* buildBar();
    void buildPages(QHBoxLayout& bar);
    void buildZoom(QHBoxLayout& bar);
    void buildState();
    QToolButton* tool(const char* name, const char* icon, const QString& tip);
    void goTo(int number); ///< Counted from 1; beyond the ends, the first and the last.
    int zoom() const;      ///< Per cent of the size on paper.
    void setZoom(int percent);
    void setFit(int fit);
    void showState();
    void takeZoom();
    void print();
    void save();

    ReportDocument document_;
    std::unique_ptr<QPrinter> printer_; ///< Lends the view its page; nothing is printed with it.
    QPrintPreviewWidget* view_ = nullptr;
    QGraphicsView* pages_ = nullptr;
    int wheel_ = 0; ///< Turning of the wheel that is not yet a whole step of the zoom.
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
