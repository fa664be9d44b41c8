#include "platform/ReportHeader.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygon>

namespace platform {

ReportHeader::ReportHeader(const ReportColours& colours, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
    , colours_(colours) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setStretchLastSection(false);
    setMinimumSectionSize(12);
    setSectionResizeMode(QHeaderView::Interactive);
    connect(this, &QHeaderView::sectionClicked, this, [this](int column) {
        if (!dragging_) emit headClicked(column);
    });
    connect(this, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (resizing_) emit widthDragged(column, width);
    });
}

void ReportHeader::paintSection(QPainter* painter, const QRect& rect, int column) const {
    painter->save();
    const bool held = column == pressed_ && !dragging_ && !resizing_;
    painter->fillRect(rect, held ? colours_.head.darker(108) : colours_.head);
    painter->setPen(colours_.head.darker(125));
    painter->drawLine(rect.topRight(), rect.bottomRight());
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    QRect place = rect.adjusted(4, 0, -4, 0);
    if (isSortIndicatorShown() && sortIndicatorSection() == column && rect.width() > 24) {
        const QPoint tip(place.right() - 4, place.center().y());
        const int up = sortIndicatorOrder() == Qt::AscendingOrder ? 1 : -1;
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setBrush(QColor(70, 80, 92));
        painter->setPen(Qt::NoPen);
        painter->drawPolygon(QPolygon({tip + QPoint(-4, 2 * up), tip + QPoint(4, 2 * up), tip + QPoint(0, -3 * up)}));
        place.setRight(place.right() - 12);
    }
    painter->setPen(palette().color(QPalette::ButtonText));
    const QString caption = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const int alignment = model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    painter->drawText(place, (alignment & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter | Qt::TextSingleLine,
                      fontMetrics().elidedText(caption, Qt::ElideRight, place.width()));
    painter->restore();
}

QSize ReportHeader::sectionSizeFromContents(int) const {
    return {minimumSectionSize(), fontMetrics().height() + 10};
}

bool ReportHeader::onEdge(const QPoint& position) const {
    const int column = logicalIndexAt(position);
    if (column < 0) return true;
    const int left = sectionViewportPosition(column);
    return position.x() - left < 4 || left + sectionSize(column) - position.x() < 5;
}

void ReportHeader::mousePressEvent(QMouseEvent* event) {
    dragging_ = false;
    const QPoint position = event->position().toPoint();
    resizing_ = event->button() == Qt::LeftButton && onEdge(position);
    pressed_ = event->button() == Qt::LeftButton && !resizing_ ? logicalIndexAt(position) : -1;
    QHeaderView::mousePressEvent(event);
}

void ReportHeader::mouseMoveEvent(QMouseEvent* event) {
    const QPoint position = event->position().toPoint();
    // Only leaving the row of heads starts a drag, so that a careless click still sorts.
    if (pressed_ >= 0 && !dragging_ && (position.y() < -4 || position.y() > height() + 4)) dragging_ = true;
    if (!dragging_) {
        QHeaderView::mouseMoveEvent(event);
        return;
    }
    showDrag(event->globalPosition().toPoint());
    emit headDragged(pressed_, event->globalPosition().toPoint());
}

void ReportHeader::mouseReleaseEvent(QMouseEvent* event) {
    QHeaderView::mouseReleaseEvent(event);
    const int column = std::exchange(pressed_, -1);
    resizing_ = false;
    viewport()->update();
    if (ghost_) ghost_->hide();
    if (std::exchange(dragging_, false)) emit headDropped(column, event->globalPosition().toPoint());
}

void ReportHeader::showDrag(const QPoint& globalPosition) {
    if (!ghost_) {
        ghost_ = new QLabel(window());
        ghost_->setAttribute(Qt::WA_TransparentForMouseEvents);
        ghost_->setFrameShape(QFrame::Box);
        ghost_->setMargin(4);
        ghost_->setAutoFillBackground(true);
        connect(this, &QObject::destroyed, ghost_, &QObject::deleteLater);
    }
    ghost_->setText(model()->headerData(pressed_, Qt::Horizontal, Qt::DisplayRole).toString());
    ghost_->adjustSize();
    ghost_->move(window()->mapFromGlobal(globalPosition) - QPoint(ghost_->width() / 2, ghost_->height() / 2));
    ghost_->show();
    ghost_->raise();
}

void ReportHeader::contextMenuEvent(QContextMenuEvent* event) {
    const int column = logicalIndexAt(event->pos());
    if (column >= 0) emit menuRequested(column);
    event->accept();
}

} // namespace platform
