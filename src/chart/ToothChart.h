#pragma once

#include "chart/modDenti.h"

#include <QWidget>
#include <array>

class ChartComposition;
class QScrollBar;
class ToothBox;

/// The 52 teeth as four rows, from the upper right to the lower left of the patient: shape or picture, number, service
/// pictures, status mark, red frame when marked. Each tooth has the named parts pbTooh(i), imTooth(i), imTrt01(i) to
/// imTrt03(i), imStatusLavori(i) and laDente(i); the panel is pbDenti, moved sideways by hsDenti when there is no room.
/// With the keyboard, the arrows walk from tooth to tooth, Space and Enter click, the menu key and Shift+F10
/// right-click.
class ToothChart : public QWidget {
    Q_OBJECT

public:
    explicit ToothChart(QWidget* parent = nullptr);

    void setComposition(const ChartComposition& composition);
    /// Marks the teeth of a selection ("1.1" or "+1.1;1.2") and no others; empty clears all marks.
    void setSelection(const QString& teeth);
    bool isMarked(int index) const;
    ToothBox* box(int index) const { return boxes_[static_cast<std::size_t>(index)]; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void toothClicked(int index);
    void toothRightClicked(int index);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void layOutTeeth();
    void updateScrolling();
    void setCurrent(int index);
    void tellCurrent();
    int neighbour(const QPoint& direction) const;

    QWidget* pbDenti_ = nullptr;
    QScrollBar* hsDenti_ = nullptr;
    std::array<ToothBox*, TOOTH_COUNT> boxes_{};
    int current_ = 0;
};
