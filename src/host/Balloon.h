#pragma once

#include <QString>
#include <QWidget>

/// The window of a balloon: a rounded box whose tip touches the control it speaks of. Goes at a click.
class Balloon : public QWidget {
    Q_OBJECT

public:
    Balloon(const QString& title, const QString& text, int icon, QWidget* control);

    /// Places the tip at the control: below it, or above where there is no room.
    void pointAt(const QWidget& control);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool above_ = false; ///< Whether it stands above the control.
    int tip_ = 0;        ///< Of the tip, from the left.
};
