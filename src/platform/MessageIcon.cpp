#include "platform/MessageIcon.h"

#include "platform/Dialogs.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>

namespace platform {

namespace {

constexpr int iconMask = 0xF0;

void glyph(QPainter& painter, int size, const QString& text, const QColor& colour) {
    QFont font;
    font.setBold(true);
    font.setPixelSize(size * 5 / 8);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(QRect(0, 0, size, size), Qt::AlignCenter, text);
}

void disc(QPainter& painter, int size, const QColor& colour) {
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(1, 1, size - 2, size - 2));
}

void cross(QPainter& painter, int size) {
    painter.setPen(QPen(Qt::white, size / 9.0, Qt::SolidLine, Qt::RoundCap));
    const qreal near = size * 0.33;
    const qreal far = size - near;
    painter.drawLine(QPointF(near, near), QPointF(far, far));
    painter.drawLine(QPointF(near, far), QPointF(far, near));
}

void warningSign(QPainter& painter, int size) {
    QPainterPath triangle;
    triangle.moveTo(size / 2.0, 3);
    triangle.lineTo(size - 3, size - 4);
    triangle.lineTo(3, size - 4);
    triangle.closeSubpath();
    painter.setPen(QPen(QColor(240, 173, 40), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(240, 173, 40));
    painter.drawPath(triangle);
    painter.translate(0, size * 0.1);
    glyph(painter, size, QStringLiteral("!"), QColor(70, 45, 0));
}

} // namespace

QPixmap messageIcon(int value, int size, qreal ratio) {
    const int icon = value & iconMask;
    if (icon == 0) return {};
    QPixmap picture(QSize(size, size) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    switch (icon) {
    case MB_CRITICAL:
        disc(painter, size, QColor(200, 55, 55));
        cross(painter, size);
        break;
    case MB_WARNING:
        warningSign(painter, size);
        break;
    case MB_QUESTION& iconMask:
        disc(painter, size, QColor(26, 111, 140));
        glyph(painter, size, QStringLiteral("?"), Qt::white);
        break;
    default:
        disc(painter, size, QColor(45, 125, 190));
        glyph(painter, size, QStringLiteral("i"), Qt::white);
        break;
    }
    return picture;
}

} // namespace platform
