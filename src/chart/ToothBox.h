#pragma once

#include "chart/ChartComposition.h"

#include <QFrame>
#include <array>

class PictureLabel;
class QLabel;
class ToothPicture;

/// One tooth of the chart with all that lies over it. Its number stands beside it, on the chart's panel.
class ToothBox : public QFrame {
    Q_OBJECT

public:
    ToothBox(int index, QWidget* panel);

    void setTooth(const ComposedTooth& tooth);
    void setMarked(bool marked); ///< Red frame of width 2, or grey of width 1.
    bool isMarked() const { return marked_; }
    void setCurrent(bool current); ///< Shows where the keyboard is.
    QLabel* numberLabel() const { return laDente_; }

    static QSize naturalSize(int index); ///< At scale 1, frame included.

signals:
    void clicked(int index);
    void rightClicked(int index);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void placeLayers();
    void placeMark();
    void describe();

    int index_;
    bool marked_ = false;
    bool current_ = false;
    bool shown_ = false;
    ComposedTooth tooth_;
    ToothPicture* imTooth_ = nullptr;
    std::array<PictureLabel*, ComposedTooth::LAYERS> imTrt_{};
    PictureLabel* imStatusLavori_ = nullptr;
    QLabel* laDente_ = nullptr;
};
