#pragma once

#include "desk/shell/Desk.h"

#include <Qt>
#include <span>

namespace desk {

class CommandList;

/// One command of the desk: where it stands, how it looks and what it does.
struct DeskCommand {
    enum Flag { LARGE = 1, IN_PANE = 2, SEPARATED = 4, NEEDS_PATIENT = 8, IS_MENU = 16 };

    qint32 id; ///< Part of the contract: modules look some of them up.
    const char16_t* caption;
    const char16_t* tooltip;
    const char* icon;    ///< Null for none.
    const char16_t* tab; ///< Of the ribbon; null for an entry of the menu command before it.
    const char16_t* group;
    int flags;
    const char16_t* menu; ///< Of the menu bar, where it may be separated from the entry before; null for none.
    QKeyCombination shortcut;
    void (*run)(Desk::Parts& desk); ///< Null for a menu, and for what nothing is built for.

    bool is(Flag flag) const { return (flags & flag) != 0; }
};

/// In the order in which ribbon, menus and pane show them.
std::span<const DeskCommand> deskCommands();
std::span<const char16_t* const> deskMenus(); ///< Of the menu bar, with their access keys.
const DeskCommand* deskCommand(qint32 id);    ///< Null for a command of the module.

/// The commands with their pictures. Off are those that need a patient and those that nothing is built for.
void addDeskCommands(CommandList& commands);

} // namespace desk
