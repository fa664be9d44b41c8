#include "chart/ServiceBadge.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

ServiceBadge::ServiceBadge(QWidget* parent)
    : PictureLabel(parent) {
    setCursor(Qt::PointingHandCursor);
    hide();
}

void ServiceBadge::setService(const QString& service, const QString& description, const QString& state) {
    setProperty("tag", service);
    setToolTip(description);
    const QString name = description.isEmpty() ? service : description;
    setAccessibleName(state.isEmpty() ? name : name + QStringLiteral(", ") + state);
    show();
}

void ServiceBadge::free() {
    setProperty("tag", QString());
    setToolTip(QString());
    setAccessibleName(QString());
    clearDrawing();
    hide();
}

void ServiceBadge::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !service().isEmpty()) emit clicked(service());
}

void ServiceBadge::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter)
        return PictureLabel::keyPressEvent(event);
    if (!service().isEmpty()) emit clicked(service());
}

void ServiceBadge::paintEvent(QPaintEvent* event) {
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    if (shown == text()) PictureLabel::paintEvent(event);
    QPainter painter(this);
    // A text for which there is no room ends in dots on the screen; what the label holds stays whole.
    if (shown != text())
        style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), shown,
                              foregroundRole());
    if (!hasFocus()) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
}
