#include "chart/PictureLabel.h"

#include <utility>

PictureLabel::PictureLabel(QWidget* parent)
    : QLabel(parent) {}

bool PictureLabel::setDrawing(const QSize& size, Drawing drawing) {
    size_ = size;
    drawing_ = std::move(drawing);
    return draw();
}

void PictureLabel::clearDrawing() {
    drawing_ = nullptr;
    setPixmap(QPixmap());
}

bool PictureLabel::draw() {
    drawnFor_ = devicePixelRatioF();
    const QPixmap picture = drawing_(size_, drawnFor_);
    setPixmap(picture);
    return !picture.isNull();
}

void PictureLabel::paintEvent(QPaintEvent* event) {
    if (drawing_ && !pixmap().isNull() && !qFuzzyCompare(drawnFor_, devicePixelRatioF())) draw();
    QLabel::paintEvent(event);
}
