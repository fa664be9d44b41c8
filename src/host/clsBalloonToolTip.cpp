#include "host/clsBalloonToolTip.h"

#include "host/Balloon.h"

clsBalloonToolTip::clsBalloonToolTip() {
    delayTimer_.setSingleShot(true);
    QObject::connect(&delayTimer_, &QTimer::timeout, &delayTimer_, [this] { remove(); });
}

clsBalloonToolTip::~clsBalloonToolTip() {
    remove();
}

bool clsBalloonToolTip::create() {
    remove();
    if (!control_ || (text_.isEmpty() && title_.isEmpty())) return false;
    balloon_ = new Balloon(title_, text_, icon_, control_);
    return true;
}

bool clsBalloonToolTip::show() {
    const QWidget* control = control_.data();
    if (!control || !control->isVisible()) return false;
    if (!balloon_ && !create()) return false;
    balloon_->pointAt(*control);
    balloon_->show();
    if (delay_ > 0) delayTimer_.start(delay_);
    return true;
}

void clsBalloonToolTip::remove() {
    delayTimer_.stop();
    delete balloon_.data();
}

bool clsBalloonToolTip::isVisible() const {
    const QWidget* balloon = balloon_.data();
    return balloon && balloon->isVisible();
}
