#pragma once

#include <QPointer>
#include <QString>
#include <QTimer>

class Balloon;
class QWidget;

/// A balloon that points at a control: title, text and icon, gone by itself after the delay, at a click or when the
/// control goes. Owned by whoever shows it; several may be up at once.
class clsBalloonToolTip {
public:
    clsBalloonToolTip();
    ~clsBalloonToolTip();
    clsBalloonToolTip(const clsBalloonToolTip&) = delete;
    clsBalloonToolTip& operator=(const clsBalloonToolTip&) = delete;

    const QString& title() const { return title_; }
    void setTitle(const QString& title) { title_ = title; }
    const QString& text() const { return text_; }
    void setText(const QString& text) { text_ = text; }
    int icon() const { return icon_; }
    void setIcon(int icon) { icon_ = icon; } ///< As in message boxes: 16, 48, 64; 0 none.
    int delay() const { return delay_; }
    void setDelay(int milliseconds) { delay_ = milliseconds; } ///< How long it stays; 0 until it is removed.
    QWidget* control() const { return control_; }
    void setControl(QWidget* control) { control_ = control; }

    /// Builds the balloon from the properties, in place of the one before. False without a control or a text.
    bool create();
    /// Shows it at the control, which must be on the screen; builds it when it is not there.
    bool show();
    void remove();
    bool isVisible() const;

private:
    QString title_;
    QString text_;
    int icon_ = 0;
    int delay_ = 8000;
    QPointer<QWidget> control_;
    QPointer<Balloon> balloon_;
    QTimer delayTimer_;
};
