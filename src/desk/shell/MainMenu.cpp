#include "desk/shell/MainMenu.h"

#include "desk/shell/CommandAction.h"
#include "desk/shell/CommandList.h"

#include <QMenu>
#include <QMenuBar>

namespace desk {

MainMenu::MainMenu(QMenuBar& bar, CommandList& commands)
    : bar_(bar)
    , commands_(commands) {}

void MainMenu::addMenu(const QString& key, const QString& caption) {
    QMenu* menu = bar_.addMenu(caption);
    menu->setObjectName(key);
    menus_.insert(key, menu);
}

void MainMenu::addCommand(const QString& menuKey, Command& command, QKeyCombination shortcut) {
    QMenu* menu = menus_.value(menuKey);
    if (!menu) return;
    auto* action = new CommandAction(command, menu);
    if (shortcut != QKeyCombination()) action->setShortcut(shortcut);
    menu->addAction(action);
}

void MainMenu::addSeparator(const QString& menuKey) {
    if (QMenu* menu = menus_.value(menuKey)) menu->addSeparator();
}

void MainMenu::addModuleEntry(const QString& key, const QString& caption, const QString& parentKey) {
    if (parentKey.isEmpty()) {
        addMenu(key, caption);
        return;
    }
    if (!menus_.contains(parentKey)) return;
    host::BottoneRibbon description;
    description.id = key.mid(1).toInt();
    description.key = key;
    description.caption = caption;
    addCommand(parentKey, *commands_.add(description));
}

} // namespace desk
