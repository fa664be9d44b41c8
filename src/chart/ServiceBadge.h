#pragma once

#include "chart/PictureLabel.h"

/// A small picture or text that stands for a service of the plan, its code in the property "tag". To be clicked, or
/// reached with Tab and pressed with Space or Enter. Shows a frame while it has the keyboard.
class ServiceBadge : public PictureLabel {
    Q_OBJECT

public:
    explicit ServiceBadge(QWidget* parent = nullptr);

    void setService(const QString& service, const QString& description, const QString& state);
    void free(); ///< Empty and hidden.
    QString service() const { return property("tag").toString(); }

signals:
    void clicked(const QString& service);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
