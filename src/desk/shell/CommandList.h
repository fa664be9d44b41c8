#pragma once

#include "desk/shell/Command.h"

#include <QHash>
#include <QIcon>
#include <QObject>

namespace desk {

/// All commands of the run, with their pictures. Finds them by id, by the module's key or by caption, and hands out new
/// ids.
class CommandList : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    Command* add(const host::BottoneRibbon& description);
    /// An entry in the menu behind a command.
    Command* addEntry(Command& menu, const host::BottoneRibbon& description);
    Command* find(qint32 id) const;
    /// By key, then by caption, case ignored. Among several of one caption the first that can be pressed wins.
    Command* findByName(const QString& keyOrCaption) const;

    qint32 newID() { return nextID_++; }
    /// The picture of a command, also of one that is added later.
    void setPicture(qint32 id, const QIcon& icon);
    QIcon picture(qint32 id) const { return pictures_.value(id); }

signals:
    void pressed(desk::Command* command);

private:
    QList<Command*> commands_;
    QHash<qint32, QIcon> pictures_;
    qint32 nextID_ = 50000; ///< Above the desk's own commands and those of its context menus.
};

} // namespace desk
