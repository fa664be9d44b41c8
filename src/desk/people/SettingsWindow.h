#pragma once

#include "desk/people/DeskSettings.h"
#include "platform/RecordForm.h"

#include <QStringList>

namespace host {
class Items;
}

namespace desk {

/// The user's settings of the desk, "frmImpostazioni". Accepted only when they could be stored. Borrows the items.
class SettingsWindow : public platform::RecordForm {
    Q_OBJECT

public:
    /// What the window has to know of the desk as it is now.
    struct Desk {
        QStringList tabs; ///< Captions of the ribbon.
        bool menuPane;    ///< Whether it is shown.
        QString userName;
    };
    SettingsWindow(host::Items& items, const Desk& desk, QWidget* parent = nullptr);

    const DeskSettings& settings() const { return settings_; }

protected:
    QString store(QString& id) override;

private:
    host::Items& items_;
    bool menuPaneBefore_;
    DeskSettings settings_;
};

} // namespace desk
