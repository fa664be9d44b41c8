#pragma once

#include "desk/people/DeskSettings.h"

#include <QDialog>
#include <QStringList>

class QCheckBox;
class QComboBox;

namespace host {
class Items;
}

namespace desk {

/// The user's settings of the desk, "frmImpostazioni". Accepted only when they could be stored. Borrows the items.
class SettingsWindow : public QDialog {
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

private:
    void fill(const Desk& desk);
    void save();

    host::Items& items_;
    bool menuPaneBefore_;
    DeskSettings settings_;
    QComboBox* startTab_;
    QComboBox* font_;
    QCheckBox* menuPane_;
    QCheckBox* keepPlace_;
};

} // namespace desk
