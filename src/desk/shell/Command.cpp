#include "desk/shell/Command.h"

namespace desk {

Command::Command(const host::BottoneRibbon& description, QObject* parent)
    : QObject(parent)
    , description_(description) {}

void Command::setVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    emit changed();
}

void Command::setEnabled(bool enabled) {
    if (description_.enabled == enabled) return;
    description_.enabled = enabled;
    emit changed();
}

void Command::setStyle(host::StileBottone style) {
    if (description_.style == style) return;
    description_.style = style;
    emit changed();
}

void Command::setIcon(const QIcon& icon) {
    icon_ = icon;
    emit changed();
}

QList<host::RibbonControl*> Command::CommandBarControls() {
    QList<host::RibbonControl*> controls;
    for (Command* entry : entries_)
        controls.append(entry);
    return controls;
}

void Command::press() {
    if (isUsable()) emit pressed(description_.id);
}

} // namespace desk
