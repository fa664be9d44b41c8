#include "chart/ToothChart.h"

#include "chart/ChartComposition.h"
#include "chart/StatusMark.h"
#include "chart/ToothBox.h"
#include "chart/ToothList.h"
#include "platform/FormLayout.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>
#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

// At scale 1, in pixels.
constexpr int COLUMN = 47;
constexpr int COLUMNS = 16;
constexpr int MIDDLE_GAP = 18;
constexpr int MARGIN = 8;
constexpr int NUMBER_HEIGHT = 15;
constexpr int ROW_GAP = 6;
constexpr int BITE_GAP = 14;
constexpr int LEGEND_MARK = 14;
constexpr double SMALLEST = 0.7;
constexpr double READABLE = 0.8;
constexpr double LARGEST = 1.6;

constexpr int PERMANENT_ROW = 88 + NUMBER_HEIGHT;
constexpr int DECIDUOUS_ROW = 73 + NUMBER_HEIGHT;
constexpr int CHART_WIDTH = COLUMNS * COLUMN + MIDDLE_GAP + 2 * MARGIN;
constexpr int BITE = MARGIN + PERMANENT_ROW + ROW_GAP + DECIDUOUS_ROW + BITE_GAP / 2;
constexpr int CHART_HEIGHT = 2 * BITE;

/// The panel under the teeth: midline, bite line and the sides of the patient.
class ChartPanel : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(246, 249, 252));
        painter.setPen(QPen(QColor(186, 200, 214), 1, Qt::DashLine));
        painter.drawLine(width() / 2, MARGIN, width() / 2, height() - MARGIN);
        painter.drawLine(MARGIN, height() / 2, width() - MARGIN, height() / 2);
        painter.setPen(QColor(104, 122, 140));
        const QRect middle(2 * MARGIN, height() / 2 - 20, width() - 4 * MARGIN, 18);
        painter.drawText(middle, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Destra"));
        painter.drawText(middle, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("Sinistra"));
        drawLegend(painter);
    }

private:
    /// What the marks mean, in the room that the deciduous teeth leave.
    void drawLegend(QPainter& painter) const {
        const int line = std::max(LEGEND_MARK, painter.fontMetrics().height()) + 4;
        QPoint place(2 * MARGIN, height() / 2 + MARGIN);
        for (const ToothState state : {ToothState::ToStart, ToothState::Open, ToothState::Finished}) {
            painter.drawPixmap(place, statusMark(state, QSize(LEGEND_MARK, LEGEND_MARK), devicePixelRatioF()));
            painter.drawText(QRect(place.x() + LEGEND_MARK + 6, place.y(), 140, LEGEND_MARK),
                             Qt::AlignLeft | Qt::AlignVCenter, statusText(state));
            place.ry() += line;
        }
    }
};

bool onRightOfPatient(int index) {
    const int quadrant = toothQuadrant(index);
    return quadrant == 1 || quadrant == 4 || quadrant == 5 || quadrant == 8;
}

int centreX(int index) {
    const int steps = toothPosition(index);
    const int fromMiddle = MIDDLE_GAP / 2 + steps * COLUMN - COLUMN / 2;
    return CHART_WIDTH / 2 + (onRightOfPatient(index) ? -fromMiddle : fromMiddle);
}

/// Distance of the tooth's biting edge from the line between the arches.
int distanceFromBite(int index) {
    return isDeciduous(index) ? BITE_GAP / 2 : BITE_GAP / 2 + DECIDUOUS_ROW + ROW_GAP;
}

QRect boxArea(int index) {
    const QSize size = ToothBox::naturalSize(index);
    const int away = distanceFromBite(index);
    const int top = isUpper(index) ? BITE - away - size.height() : BITE + away;
    return {QPoint(centreX(index) - size.width() / 2, top), size};
}

QRect numberArea(int index) {
    const QRect box = boxArea(index);
    const int top = isUpper(index) ? box.top() - NUMBER_HEIGHT : box.bottom() + 1;
    return {centreX(index) - COLUMN / 2, top, COLUMN, NUMBER_HEIGHT};
}

QRect scaled(const QRect& area, double scale) {
    return {qRound(area.x() * scale), qRound(area.y() * scale), qRound(area.width() * scale),
            qRound(area.height() * scale)};
}

/// As high as there is room; less when that spares the scroll bar without becoming hard to read.
double scaleFor(const QSize& room) {
    const double byHeight = std::clamp(double(room.height()) / CHART_HEIGHT, SMALLEST, LARGEST);
    const double byWidth = double(room.width()) / CHART_WIDTH;
    return byWidth >= byHeight ? byHeight : std::max(byWidth, std::min(byHeight, READABLE));
}

} // namespace

ToothChart::ToothChart(QWidget* parent)
    : QWidget(parent) {
    pbDenti_ = platform::form::named(new ChartPanel(this), QStringLiteral("pbDenti"));
    hsDenti_ = platform::form::named(new QScrollBar(Qt::Horizontal, this), QStringLiteral("hsDenti"));
    connect(hsDenti_, &QScrollBar::valueChanged, this, [this](int value) { pbDenti_->move(-value, pbDenti_->y()); });
    for (int index = 0; index < TOOTH_COUNT; ++index) {
        auto* tooth = new ToothBox(index, pbDenti_);
        boxes_[static_cast<std::size_t>(index)] = tooth;
        // The keyboard goes on from the tooth that the mouse was at.
        connect(tooth, &ToothBox::clicked, this, &ToothChart::setCurrent);
        connect(tooth, &ToothBox::rightClicked, this, &ToothChart::setCurrent);
        connect(tooth, &ToothBox::clicked, this, &ToothChart::toothClicked);
        connect(tooth, &ToothBox::rightClicked, this, &ToothChart::toothRightClicked);
    }
    setAccessibleName(QStringLiteral("Schema dei denti"));
    setFocusPolicy(Qt::StrongFocus);
    layOutTeeth();
}

void ToothChart::setComposition(const ChartComposition& composition) {
    for (int index = 0; index < TOOTH_COUNT; ++index)
        box(index)->setTooth(composition.tooth(index));
    if (hasFocus()) tellCurrent();
}

void ToothChart::setSelection(const QString& selection) {
    const ToothList teeth = ToothList::fromSelection(selection);
    for (int index = 0; index < TOOTH_COUNT; ++index)
        box(index)->setMarked(teeth.contains(DenteDaIndice(index)));
    if (hasFocus()) tellCurrent();
}

bool ToothChart::isMarked(int index) const {
    return box(index)->isMarked();
}

QSize ToothChart::sizeHint() const {
    return {CHART_WIDTH, CHART_HEIGHT};
}

QSize ToothChart::minimumSizeHint() const {
    return {320, qRound(CHART_HEIGHT * SMALLEST) + hsDenti_->sizeHint().height()};
}

void ToothChart::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOutTeeth();
}

void ToothChart::layOutTeeth() {
    QSize room = size();
    if (CHART_WIDTH * scaleFor(room) > width()) room.rheight() -= hsDenti_->sizeHint().height();
    const double scale = scaleFor(room);
    const int panelWidth = std::max(qRound(CHART_WIDTH * scale), width());
    const int spare = (panelWidth - qRound(CHART_WIDTH * scale)) / 2;
    pbDenti_->resize(panelWidth, std::max(qRound(CHART_HEIGHT * scale), room.height()));
    const int drop = (pbDenti_->height() - qRound(CHART_HEIGHT * scale)) / 2;
    QFont font = this->font();
    font.setPointSizeF(std::max(6.5, 8 * scale));
    for (int index = 0; index < TOOTH_COUNT; ++index) {
        box(index)->setGeometry(scaled(boxArea(index), scale).translated(spare, drop));
        box(index)->numberLabel()->setGeometry(scaled(numberArea(index), scale).translated(spare, drop));
        box(index)->numberLabel()->setFont(font);
    }
    updateScrolling();
}

void ToothChart::updateScrolling() {
    const int hidden = pbDenti_->width() - width();
    const int height = hsDenti_->sizeHint().height();
    hsDenti_->setGeometry(0, this->height() - height, width(), height);
    hsDenti_->setRange(0, std::max(hidden, 0));
    hsDenti_->setPageStep(width());
    hsDenti_->setSingleStep(COLUMN);
    hsDenti_->setVisible(hidden > 0);
    pbDenti_->move(-hsDenti_->value(), 0);
}

int ToothChart::neighbour(const QPoint& direction) const {
    const QPoint from = box(current_)->geometry().center();
    int nearest = current_;
    int shortest = std::numeric_limits<int>::max();
    for (int index = 0; index < TOOTH_COUNT; ++index) {
        const QPoint step = box(index)->geometry().center() - from;
        const int along = QPoint::dotProduct(step, direction);
        const int aside = std::abs(direction.x() != 0 ? step.y() : step.x());
        if (along <= 0 || aside > along) continue;
        const int distance = along + 2 * aside;
        if (distance >= shortest) continue;
        shortest = distance;
        nearest = index;
    }
    return nearest;
}

void ToothChart::setCurrent(int index) {
    box(current_)->setCurrent(false);
    current_ = index;
    box(current_)->setCurrent(hasFocus());
    tellCurrent();
    const QRect shown = box(current_)->geometry();
    if (shown.left() < hsDenti_->value()) hsDenti_->setValue(shown.left() - MARGIN);
    if (shown.right() > hsDenti_->value() + width()) hsDenti_->setValue(shown.right() + MARGIN - width());
}

/// The teeth take no focus of their own: what a screen reader says of the chart is the tooth that the keyboard is at.
void ToothChart::tellCurrent() {
    setAccessibleDescription(box(current_)->accessibleName());
    QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

void ToothChart::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Menu || (key == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)) {
        emit toothRightClicked(current_);
        return;
    }
    switch (key) {
    case Qt::Key_Left:
        return setCurrent(neighbour({-1, 0}));
    case Qt::Key_Right:
        return setCurrent(neighbour({1, 0}));
    case Qt::Key_Up:
        return setCurrent(neighbour({0, -1}));
    case Qt::Key_Down:
        return setCurrent(neighbour({0, 1}));
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit toothClicked(current_);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ToothChart::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    setCurrent(current_);
}

void ToothChart::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    box(current_)->setCurrent(false);
}
