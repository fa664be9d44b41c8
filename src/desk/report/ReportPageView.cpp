#include "desk/report/ReportPageView.h"

#include "desk/report/ReportDocument.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

namespace desk {

namespace {

constexpr int MARGIN = 18; // Of the table around the paper.
constexpr int ZOOM_STEP = 10;
constexpr int WHEEL_NOTCH = 120;
const QColor TABLE(205, 213, 220);
const QColor SHADOW(0, 0, 0, 14);

} // namespace

ReportPageView::ReportPageView(const ReportDocument& document, QWidget* parent)
    : QAbstractScrollArea(parent)
    , document_(document) {
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setSingleStep(40);
}

void ReportPageView::showPage(int number) {
    page_ = std::clamp(number, 0, document_.pageCount() - 1);
    verticalScrollBar()->setValue(0);
    viewport()->update();
    emit pageShown(page_);
}

void ReportPageView::setZoom(int percent) {
    fit_ = Fit::None;
    applyZoom(percent, viewport()->rect().center());
}

void ReportPageView::setFit(Fit fit) {
    fit_ = fit;
    applyFit();
    emit zoomChanged();
}

QSize ReportPageView::paper() const {
    return (document_.pageSize() * (logicalDpiX() / REPORT_UNITS_PER_INCH * zoom_ / 100)).toSize();
}

/// Where the page begins: in the middle of a larger window, else as far as the bars have moved it.
QPoint ReportPageView::origin() const {
    const QSize free = viewport()->size() - paper();
    return {free.width() > 2 * MARGIN ? free.width() / 2 : MARGIN - horizontalScrollBar()->value(),
            free.height() > 2 * MARGIN ? free.height() / 2 : MARGIN - verticalScrollBar()->value()};
}

void ReportPageView::applyFit() {
    if (fit_ != Fit::None) {
        const QSizeF whole = document_.pageSize() * (logicalDpiX() / REPORT_UNITS_PER_INCH);
        const QSize room = maximumViewportSize() - QSize(2 * MARGIN, 2 * MARGIN);
        const int bar = verticalScrollBar()->sizeHint().width();
        const qreal across = (room.width() - (fit_ == Fit::Width ? bar : 0)) / whole.width();
        const qreal down = room.height() / whole.height();
        const qreal factor = fit_ == Fit::Width ? across : std::min(across, down);
        // Rounded down, or bars would come up for the last pixel. A small window shows the page smaller than by hand.
        zoom_ = std::clamp(static_cast<int>(factor * 100), 10, MOST_ZOOM);
    }
    layOutBars();
    viewport()->update();
}

void ReportPageView::applyZoom(int percent, QPoint fixed) {
    const QPointF inPage = QPointF(fixed - origin()) / zoom_;
    zoom_ = std::clamp(percent, LEAST_ZOOM, MOST_ZOOM);
    layOutBars();
    const QPoint now = origin() + (inPage * zoom_).toPoint();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + now.x() - fixed.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + now.y() - fixed.y());
    viewport()->update();
    emit zoomChanged();
}

void ReportPageView::layOutBars() {
    const QSize whole = paper() + QSize(2 * MARGIN, 2 * MARGIN);
    const QSize view = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, whole.width() - view.width()));
    horizontalScrollBar()->setPageStep(view.width());
    verticalScrollBar()->setRange(0, std::max(0, whole.height() - view.height()));
    verticalScrollBar()->setPageStep(view.height());
}

void ReportPageView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), TABLE);
    const QRect sheet(origin(), paper());
    for (int i = 1; i <= 4; ++i)
        painter.fillRect(sheet.adjusted(-i + 1, 0, i, i + 1), SHADOW);
    painter.fillRect(sheet, Qt::white);
    painter.setClipRect(sheet);
    painter.translate(sheet.topLeft());
    const qreal scale = sheet.width() / document_.pageSize().width();
    painter.scale(scale, scale);
    document_.paint(painter, page_);
}

void ReportPageView::resizeEvent(QResizeEvent*) {
    applyFit();
    if (fit_ != Fit::None) emit zoomChanged();
}

bool ReportPageView::turnAtEdge(bool down) {
    const QScrollBar* bar = verticalScrollBar();
    if (down ? bar->value() < bar->maximum() : bar->value() > bar->minimum()) return false;
    if (down ? page_ + 1 >= document_.pageCount() : page_ == 0) return true;
    showPage(page_ + (down ? 1 : -1));
    if (!down) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    return true;
}

void ReportPageView::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    event->accept();
    if (!(event->modifiers() & Qt::ControlModifier)) {
        if (turned != 0 && turnAtEdge(turned < 0)) return;
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    // Touch pads tell of small parts of a notch.
    wheel_ += turned;
    const int notches = wheel_ / WHEEL_NOTCH;
    if (notches == 0) return;
    wheel_ -= notches * WHEEL_NOTCH;
    fit_ = Fit::None;
    applyZoom(zoom_ + notches * ZOOM_STEP, event->position().toPoint());
}

void ReportPageView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        if (!turnAtEdge(true)) verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
        return;
    case Qt::Key_PageUp:
        if (!turnAtEdge(false)) verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
        return;
    case Qt::Key_Home:
        return showPage(0);
    case Qt::Key_End:
        return showPage(document_.pageCount() - 1);
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

} // namespace desk
