#pragma once

#include "platform/ReportCellPainter.h"

#include <QHeaderView>

class QLabel;

namespace platform {

/// Column heads of a report grid. A head that is dragged out of the row of heads follows the mouse and may be dropped
/// elsewhere; a click is left to sorting.
class ReportHeader : public QHeaderView {
    Q_OBJECT

public:
    ReportHeader(const ReportColours& colours, QWidget* parent);

signals:
    void headClicked(int column);
    void headDragged(int column, const QPoint& globalPosition);
    void headDropped(int column, const QPoint& globalPosition);
    void menuRequested(int column);
    void widthDragged(int column, int width); ///< The user has changed the width of a column.

protected:
    void paintSection(QPainter* painter, const QRect& rect, int column) const override;
    QSize sectionSizeFromContents(int column) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    bool onEdge(const QPoint& position) const;
    void showDrag(const QPoint& globalPosition);

    const ReportColours& colours_;
    QLabel* ghost_ = nullptr; ///< The head that follows the mouse.
    int pressed_ = -1;
    bool resizing_ = false;
    bool dragging_ = false;
};

} // namespace platform
