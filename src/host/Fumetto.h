#pragma once

#include <QString>
#include <QWidget>

/// The window of a balloon: a rounded box whose tip touches the control it speaks of. Goes at a click.
class Fumetto : public QWidget {
    Q_OBJECT

public:
    Fumetto(const QString& titolo, const QString& testo, int icona, QWidget* controllo);

    /// Places the tip at the control: below it, or above where there is no room.
    void punta(const QWidget& controllo);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool sopra_ = false; ///< Whether it stands above the control.
    int punta_ = 0;      ///< Of the tip, from the left.
};
