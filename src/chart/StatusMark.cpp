#include "chart/StatusMark.h"

#include <QPainter>

namespace {

QColor colourOf(ToothState state) {
    switch (state) {
    case ToothState::Finished:
        return {26, 150, 65};
    case ToothState::Open:
        return {240, 173, 0};
    case ToothState::ToStart:
        return {213, 43, 30};
    case ToothState::None:
        break;
    }
    return Qt::transparent;
}

void drawGlyph(QPainter& painter, ToothState state) {
    painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (state == ToothState::Finished) painter.drawPolyline(QPolygonF({{3.9, 7.3}, {6.2, 9.6}, {10.2, 4.9}}));
    if (state == ToothState::ToStart) painter.drawEllipse(QPointF(7, 7), 2.6, 2.6);
    if (state != ToothState::Open) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawPie(QRectF(3.4, 3.4, 7.2, 7.2), 90 * 16, 180 * 16);
}

} // namespace

QPixmap statusMark(ToothState state, const QSize& size, qreal ratio) {
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    if (state == ToothState::None || size.isEmpty()) return picture;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / 14.0, size.height() / 14.0);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(colourOf(state));
    painter.drawEllipse(QPointF(7, 7), 6.2, 6.2);
    drawGlyph(painter, state);
    return picture;
}

QString statusText(ToothState state) {
    switch (state) {
    case ToothState::Finished:
        return QStringLiteral("terminato");
    case ToothState::Open:
        return QStringLiteral("in corso");
    case ToothState::ToStart:
        return QStringLiteral("da iniziare");
    case ToothState::None:
        break;
    }
    return {};
}
