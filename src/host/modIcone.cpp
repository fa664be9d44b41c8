#include "host/modIcone.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

using Drawing = void (*)(QPainter&);

// Draws an icon at whatever size is asked, on a square of side 16, so that it is sharp at every scaling.
class DrawingEngine : public QIconEngine {
public:
    explicit DrawingEngine(Drawing drawing)
        : drawing_(drawing) {}
    QIconEngine* clone() const override { return new DrawingEngine(drawing_); }
    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State) override {
        const int side = qMin(area.width(), area.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (mode == QIcon::Disabled) painter->setOpacity(0.35);
        painter->translate(area.center() + QPointF(0.5, 0.5));
        painter->scale(side / 16.0, side / 16.0);
        painter->translate(-8, -8);
        drawing_(*painter);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }

private:
    Drawing drawing_;
};

QIcon iconOf(Drawing drawing) {
    return QIcon(new DrawingEngine(drawing));
}

void disc(QPainter& painter, const QColor& colour) {
    painter.setPen(QPen(colour.darker(125), 1));
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(1.5, 1.5, 13, 13));
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
}

void tick(QPainter& painter) {
    disc(painter, QColor(46, 139, 87));
    painter.drawPolyline(QPolygonF({QPointF(4.8, 8.4), QPointF(7.2, 10.8), QPointF(11.4, 5.6)}));
}

void clock(QPainter& painter) {
    disc(painter, QColor(222, 155, 0));
    painter.drawPolyline(QPolygonF({QPointF(8, 4.4), QPointF(8, 8.2), QPointF(10.8, 9.8)}));
}

void toStart(QPainter& painter) {
    disc(painter, QColor(200, 55, 45));
    painter.drawLine(QPointF(8, 4.6), QPointF(8, 8.6));
    painter.drawPoint(QPointF(8, 11.4));
}

// A molar on the green of the module.
void molar(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 122, 124));
    painter.drawRoundedRect(QRectF(0.5, 0.5, 15, 15), 3, 3);
    QPainterPath shape(QPointF(4, 5));
    shape.cubicTo(4, 2.4, 6.6, 2.8, 8, 3.8);
    shape.cubicTo(9.4, 2.8, 12, 2.4, 12, 5);
    shape.cubicTo(12, 7.5, 11, 8, 10.6, 11);
    shape.cubicTo(10.4, 13.6, 9.4, 13.6, 9.1, 11.2);
    shape.cubicTo(8.9, 9.2, 7.1, 9.2, 6.9, 11.2);
    shape.cubicTo(6.6, 13.6, 5.6, 13.6, 5.4, 11);
    shape.cubicTo(5, 8, 4, 7.5, 4, 5);
    painter.setBrush(Qt::white);
    painter.drawPath(shape);
}

template <int RED, int GREEN, int BLUE>
void dot(QPainter& painter) {
    const QColor colour(RED, GREEN, BLUE);
    painter.setPen(QPen(colour.darker(130), 1));
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(3.5, 3.5, 9, 9));
}

} // namespace

QIcon stateIcon(int index) {
    switch (index) {
    case 2:
        return iconOf(clock);
    case 3:
    case 4:
        return iconOf(tick);
    case 5:
        return iconOf(toStart);
    default:
        return {};
    }
}

QIcon ImStatus(int index) {
    switch (index) {
    case 0:
        return iconOf(dot<240, 190, 0>);
    case 1:
        return iconOf(dot<214, 48, 40>);
    case 2:
        return iconOf(dot<40, 160, 70>);
    case 3:
        return iconOf(dot<150, 150, 150>);
    default:
        return {};
    }
}

QIcon moduleIcon() {
    return iconOf(molar);
}
