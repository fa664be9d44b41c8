#pragma once

#include <QAbstractScrollArea>

namespace desk {

struct ReportDocument;

/// One page of a report as it will look on paper. Zooms with Ctrl and the wheel around what is under the pointer, turns
/// pages at the end of a page. Borrows the document.
class ReportPageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    enum class Fit { None, Width, Page };
    static constexpr int LEAST_ZOOM = 50; ///< Per cent of the size on paper.
    static constexpr int MOST_ZOOM = 300;

    explicit ReportPageView(const ReportDocument& document, QWidget* parent = nullptr);

    int page() const { return page_; } ///< Counted from 0.
    void showPage(int number);         ///< Numbers beyond the ends are the first and the last.
    int zoom() const { return zoom_; }
    void setZoom(int percent); ///< Kept within the limits; ends a fit.
    void setFit(Fit fit);
    Fit fit() const { return fit_; }

signals:
    void pageShown(int number);
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QSize paper() const; ///< Size of the page on the screen.
    QPoint origin() const;
    void applyFit();
    void applyZoom(int percent, QPoint fixed);
    void layOutBars();
    bool turnAtEdge(bool down);

    const ReportDocument& document_;
    int page_ = 0;
    int zoom_ = 100;
    Fit fit_ = Fit::Width;
    int wheel_ = 0; ///< Turning of the wheel that is not yet a whole step of the zoom.
};

} // namespace desk
