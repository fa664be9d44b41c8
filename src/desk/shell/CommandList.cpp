#include "desk/shell/CommandList.h"

namespace desk {

Command* CommandList::add(const host::BottoneRibbon& description) {
    auto* command = new Command(description, this);
    if (pictures_.contains(description.id)) command->setIcon(pictures_.value(description.id));
    connect(command, &Command::pressed, this, [this, command] { emit pressed(command); });
    commands_.append(command);
    return command;
}

Command* CommandList::addEntry(Command& menu, const host::BottoneRibbon& description) {
    Command* entry = add(description);
    menu.addEntry(entry);
    return entry;
}

Command* CommandList::find(qint32 id) const {
    for (Command* command : commands_)
        if (command->ID() == id) return command;
    return nullptr;
}

Command* CommandList::findByName(const QString& keyOrCaption) const {
    for (Command* command : commands_)
        if (!command->key().isEmpty() && command->key().compare(keyOrCaption, Qt::CaseInsensitive) == 0) return command;
    Command* unusable = nullptr;
    for (Command* command : commands_) {
        if (command->Caption().compare(keyOrCaption, Qt::CaseInsensitive) != 0) continue;
        if (command->isUsable()) return command;
        if (!unusable) unusable = command;
    }
    return unusable;
}

void CommandList::setPicture(qint32 id, const QIcon& icon) {
    pictures_.insert(id, icon);
    if (Command* command = find(id)) command->setIcon(icon);
}

} // namespace desk
