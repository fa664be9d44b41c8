#pragma once

#include <QHash>
#include <QString>
#include <Qt>

class QMenu;
class QMenuBar;

namespace desk {

class Command;
class CommandList;

/// The menu bar. Menus are named by a key; each entry presses a command. Borrows bar and commands.
class MainMenu {
public:
    MainMenu(QMenuBar& bar, CommandList& commands);

    void addMenu(const QString& key, const QString& caption);
    void addCommand(const QString& menuKey, Command& command, QKeyCombination shortcut = {});
    void addSeparator(const QString& menuKey);
    /// An entry of the module, whose command id stands in the key after its first letter. An unknown parent is passed
    /// over.
    void addModuleEntry(const QString& key, const QString& caption, const QString& parentKey);

private:
    QMenuBar& bar_;
    CommandList& commands_;
    QHash<QString, QMenu*> menus_;
};

} // namespace desk
