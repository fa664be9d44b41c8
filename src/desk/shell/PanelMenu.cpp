#include "desk/shell/PanelMenu.h"

#include "platform/Dialogs.h"

namespace desk {

PanelMenu::PanelMenu()
    : items_{{NEW, QStringLiteral("Nuovo")},
             {EDIT, QStringLiteral("Modifica")},
             {REMOVE, QStringLiteral("Elimina")},
             {PRINT, QStringLiteral("Stampa")}} {}

void PanelMenu::RemoveItem(int command) {
    items_.removeIf([command](const Item& item) { return item.command == command; });
}

void PanelMenu::AddItem(int command, const QString& caption) {
    items_.append({command, caption});
}

int PanelMenu::choose() const {
    if (items_.isEmpty()) return 0;
    QList<platform::MenuEntry> entries;
    for (const Item& item : items_)
        entries.append({item.caption, true});
    const int chosen = platform::dialogs().popup(entries);
    return chosen >= 0 && chosen < items_.size() ? items_.at(chosen).command : 0;
}

} // namespace desk
