#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

/// One tooth to look at and to click: the picture of a file or, without one, the sound tooth that the module carries in
/// itself, so that a mouth is never without teeth.
class ToothPicture : public QWidget {
    Q_OBJECT

public:
    explicit ToothPicture(int index, QWidget* parent = nullptr);

    void setPicture(const QString& path); ///< Empty, or no picture: the sound tooth.
    void setMarked(bool marked);          ///< Lays a tint behind the tooth.
    QSize sizeHint() const override;

signals:
    void clicked();
    void rightClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int index_;
    QString path_;
    QPixmap pixmap_;
    QSize loadedFor_; ///< In device pixels.
    bool marked_ = false;
};
