#pragma once

#include "host/contract/Ribbon.h"

#include <QIcon>
#include <QList>
#include <QObject>

namespace desk {

/// One command of the desk or of its module, as the ribbon and the menus show it. Buttons and menu entries follow it
/// through `changed`; a command that opens a menu holds the entries as commands of their own. Owned by CommandList.
class Command : public QObject, public host::RibbonControl {
    Q_OBJECT

public:
    explicit Command(const host::BottoneRibbon& description, QObject* parent = nullptr);

    qint32 ID() const override { return description_.id; }
    QString Caption() const override { return description_.caption; }
    bool Visible() const override { return visible_; }
    void setVisible(bool visible) override;
    bool Enabled() const override { return description_.enabled; }
    void setEnabled(bool enabled) override;
    host::StileBottone Style() const override { return description_.style; }
    void setStyle(host::StileBottone style) override;
    QList<host::RibbonControl*> CommandBarControls() override;
    host::RibbonTab* RibbonGroupGroups() override { return tab_; }

    const QString& key() const { return description_.key; }
    const QString& tooltip() const { return description_.tooltip; }
    bool beginsGroup() const { return description_.begingroup; }
    bool isUsable() const { return visible_ && description_.enabled; }
    const QIcon& icon() const { return icon_; }
    void setIcon(const QIcon& icon);
    void setTab(host::RibbonTab* tab) { tab_ = tab; }

    void addEntry(Command* entry) { entries_.append(entry); }
    const QList<Command*>& entries() const { return entries_; }

    /// As a click on it: nothing happens when it is hidden or disabled.
    void press();

signals:
    void changed();
    void pressed(qint32 id);

private:
    host::BottoneRibbon description_;
    bool visible_ = true;
    QIcon icon_;
    QList<Command*> entries_;
    host::RibbonTab* tab_ = nullptr;
};

} // namespace desk
