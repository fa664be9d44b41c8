#include "chart/StatusMark.h"

#include <QPainter>

namespace {

QColor colourOf(StatoDente stato) {
    switch (stato) {
    case StatoDente::Finito:
        return {26, 150, 65};
    case StatoDente::Aperto:
        return {240, 173, 0};
    case StatoDente::DaIniziare:
        return {213, 43, 30};
    case StatoDente::Nessuno:
        break;
    }
    return Qt::transparent;
}

void drawGlyph(QPainter& painter, StatoDente stato) {
    painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (stato == StatoDente::Finito) painter.drawPolyline(QPolygonF({{3.9, 7.3}, {6.2, 9.6}, {10.2, 4.9}}));
    if (stato == StatoDente::DaIniziare) painter.drawEllipse(QPointF(7, 7), 2.6, 2.6);
    if (stato != StatoDente::Aperto) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawPie(QRectF(3.4, 3.4, 7.2, 7.2), 90 * 16, 180 * 16);
}

} // namespace

QPixmap statusMark(StatoDente stato, const QSize& size, qreal ratio) {
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    if (stato == StatoDente::Nessuno || size.isEmpty()) return picture;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / 14.0, size.height() / 14.0);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(colourOf(stato));
    painter.drawEllipse(QPointF(7, 7), 6.2, 6.2);
    drawGlyph(painter, stato);
    return picture;
}

QString statusText(StatoDente stato) {
    switch (stato) {
    case StatoDente::Finito:
        return QStringLiteral("terminato");
    case StatoDente::Aperto:
        return QStringLiteral("in corso");
    case StatoDente::DaIniziare:
        return QStringLiteral("da iniziare");
    case StatoDente::Nessuno:
        break;
    }
    return {};
}
