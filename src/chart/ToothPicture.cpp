#include "chart/ToothPicture.h"

#include "chart/PictureFiles.h"
#include "chart/modDenti.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

QString soundTooth(int index) {
    return QStringLiteral(":/denti/dente_%1%2.svg").arg(toothQuadrant(index)).arg(toothPosition(index));
}

} // namespace

ToothPicture::ToothPicture(int index, QWidget* parent)
    : QWidget(parent)
    , index_(index) {
    setCursor(Qt::PointingHandCursor);
    setAccessibleName(QStringLiteral("Dente %1").arg(DenteDaIndice(index)));
}

void ToothPicture::setPicture(const QString& path) {
    if (path_ == path) return;
    path_ = path;
    loadedFor_ = QSize();
    update();
}

void ToothPicture::setMarked(bool marked) {
    if (marked_ == marked) return;
    marked_ = marked;
    update();
}

QSize ToothPicture::sizeHint() const {
    return isDeciduous(index_) ? QSize(32, 67) : QSize(40, 84);
}

void ToothPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (marked_) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 0, 0, 34));
        painter.drawRoundedRect(rect(), 5, 5);
    }
    const qreal ratio = devicePixelRatioF();
    if (loadedFor_ != size() * ratio) {
        loadedFor_ = size() * ratio;
        pixmap_ = loadPicture(path_, size(), ratio);
        if (pixmap_.isNull()) pixmap_ = loadPicture(soundTooth(index_), size(), ratio);
    }
    const QSizeF shown = pixmap_.deviceIndependentSize();
    painter.drawPixmap(QPointF((width() - shown.width()) / 2, (height() - shown.height()) / 2), pixmap_);
}

void ToothPicture::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void ToothPicture::mouseReleaseEvent(QMouseEvent* event) {
    if (!rect().contains(event->position().toPoint())) return;
    if (event->button() == Qt::LeftButton) emit clicked();
    if (event->button() == Qt::RightButton) emit rightClicked();
}
