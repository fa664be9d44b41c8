#pragma once

#include "platform/CellFont.h"

#include <QColor>
#include <QRect>

class QPainter;
class QStyle;
class QWidget;

namespace platform {

class ReportCell;
struct ReportCellStyle;

/// Colours of a report grid.
struct ReportColours {
    QColor shaded{224, 233, 248};
    QColor plain{255, 255, 255};
    QColor head{212, 208, 200};
    QColor line{208, 215, 224};
    QColor accent{32, 110, 140}; ///< Of the selection and the focus.
};

/// State in which a cell is painted.
struct ReportCellState {
    bool shaded = false; ///< Every second row.
    bool selected = false;
    bool focused = false; ///< The one cell with the focus.
    bool active = false;  ///< Whether the grid has the keyboard.
    bool enabled = true;
    int indent = 0; ///< Room at the left for the depth of the row.
    Qt::Alignment alignment;
};

/// Where the parts of a cell lie. A part that the cell does not have is empty.
struct ReportCellParts {
    ReportCellParts(const ReportCell& cell, const QRect& area, int indent, bool list);
    QRect check;
    QRect icon;
    QRect text;
    QRect button;
    QRect list; ///< Arrow of the in-cell list.
};

/// Paints the cells and group heads of a report grid. The selection tints a cell and frames its row, so that the
/// colours that tell the state of the work stay readable in it. Serves as long as the widget keeps its font.
class ReportCellPainter {
public:
    ReportCellPainter(const ReportColours& colours, const QWidget& widget);

    const QFont& font() const { return plain_.font(); }
    void cell(QPainter& painter, const QRect& area, const ReportCell& cell, const ReportCellState& state) const;
    void groupHead(QPainter& painter, const QRect& area, const QString& text, int indent, bool open,
                   bool selected) const;
    void expander(QPainter& painter, const QRect& area, bool open) const;
    void rest(QPainter& painter, const QRect& area, const ReportCellState& state) const; ///< Right of the last column.

private:
    QColor ground(const ReportCellStyle& style, const ReportCellState& state) const;
    void text(QPainter& painter, const QRect& area, const ReportCell& cell, const ReportCellState& state) const;
    void button(QPainter& painter, const QRect& area) const;
    void frame(QPainter& painter, const QRect& area, const ReportCellState& state) const;

    const ReportColours& colours_;
    const QWidget& widget_;
    CellFont plain_;
    CellFont bold_;
};

} // namespace platform
