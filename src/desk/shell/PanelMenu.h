#pragma once

#include "host/contract/View.h"

#include <QList>
#include <QString>

namespace desk {

/// The context menu of a panel's grid. It starts with the host's own entries and is then adapted by the view.
class PanelMenu : public host::PopupBar {
public:
    static constexpr int NEW = 77;
    static constexpr int EDIT = 78;
    static constexpr int REMOVE = 79;
    static constexpr int PRINT = 80;

    PanelMenu();
    void RemoveItem(int command) override;
    void AddItem(int command, const QString& caption) override;

    /// Shows it at the cursor; the chosen command, or 0.
    int choose() const;

private:
    struct Item {
        int command;
        QString caption;
    };
    QList<Item> items_;
};

} // namespace desk
