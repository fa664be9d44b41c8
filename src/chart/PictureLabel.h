#pragma once

#include <QLabel>
#include <functional>

/// A label with a picture that is drawn for the screen it is on: anew when its window comes to a screen of another
/// density, and at no other time.
class PictureLabel : public QLabel {
    Q_OBJECT

public:
    /// Draws a picture for a size in logical pixels and a density; may answer a null one.
    using Drawing = std::function<QPixmap(const QSize& size, qreal ratio)>;

    explicit PictureLabel(QWidget* parent = nullptr);

    /// False, and nothing to see, when the drawing has no picture.
    bool setDrawing(const QSize& size, Drawing drawing);
    void clearDrawing();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool draw();

    Drawing drawing_;
    QSize size_;
    qreal drawnFor_ = 0;
};
