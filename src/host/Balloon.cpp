#include "host/Balloon.h"

#include "platform/MessageIcon.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

namespace {

constexpr int TIP = 10;    // height of the tip
constexpr int INDENT = 24; // of the tip, from the left edge
constexpr int MARGIN = 12;
constexpr int WIDTH = 320;

QLabel* makeLabel(const char* name, const QString& text, bool bold, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(label->fontMetrics().horizontalAdvance(text) > WIDTH);
    if (label->wordWrap()) label->setFixedWidth(WIDTH);
    QFont font = label->font();
    font.setBold(bold);
    label->setFont(font);
    label->setVisible(!text.isEmpty());
    return label;
}

} // namespace

Balloon::Balloon(const QString& title, const QString& text, int icon, QWidget* control)
    : QWidget(control->window(), Qt::ToolTip | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("fumetto"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAccessibleName(title.isEmpty() ? text : title + QStringLiteral(". ") + text);
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, colours.color(QPalette::ToolTipText));
    setPalette(colours);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(MARGIN, MARGIN + TIP, MARGIN, MARGIN + TIP);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(4);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    if (const QPixmap figure = platform::messageIcon(icon, 24, devicePixelRatioF()); !figure.isNull()) {
        auto* mark = new QLabel(this);
        mark->setObjectName(QStringLiteral("icona"));
        mark->setPixmap(figure);
        grid->addWidget(mark, 0, 0, 2, 1, Qt::AlignTop);
    }
    grid->addWidget(makeLabel("titolo", title, true, this), 0, 1);
    grid->addWidget(makeLabel("testo", text, false, this), 1, 1);
    // What moves or hides the control takes the balloon away, which would point at nothing.
    control->installEventFilter(this);
    control->window()->installEventFilter(this);
}

void Balloon::pointAt(const QWidget& control) {
    adjustSize();
    const QRect target(control.mapToGlobal(QPoint(0, 0)), control.size());
    const QRect screen = control.screen()->availableGeometry();
    above_ = target.bottom() + height() > screen.bottom() && target.top() - height() >= screen.top();
    const int touch = target.left() + qMin(target.width() / 2, INDENT);
    const int rightmost = qMax(screen.left(), screen.right() + 1 - width());
    const int left = qBound(screen.left(), touch - INDENT, rightmost);
    tip_ = qBound(TIP * 2, touch - left, qMax(TIP * 2, width() - TIP * 2));
    move(left, above_ ? target.top() - height() : target.bottom() + 1);
    // Room for the tip on its side only.
    layout()->setContentsMargins(MARGIN, MARGIN + (above_ ? 0 : TIP), MARGIN, MARGIN + (above_ ? TIP : 0));
    adjustSize();
    if (above_) move(left, target.top() - height());
}

void Balloon::paintEvent(QPaintEvent*) {
    const QRectF body = QRectF(rect()).adjusted(0.5, (above_ ? 0 : TIP) + 0.5, -0.5, (above_ ? -TIP : 0) - 0.5);
    QPainterPath box;
    box.addRoundedRect(body, 5, 5);
    const qreal base = above_ ? body.bottom() : body.top();
    const qreal apex = above_ ? height() - 0.5 : 0.5;
    const QPolygonF arrow{{QPointF(tip_ - TIP * 0.8, base), QPointF(tip_, apex), QPointF(tip_ + TIP * 0.8, base)}};
    QPainterPath triangle;
    triangle.addPolygon(arrow);
    triangle.closeSubpath();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::ToolTipBase));
    painter.drawPath(box.united(triangle));
}

void Balloon::mousePressEvent(QMouseEvent*) {
    hide();
}

bool Balloon::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
        hide();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
