#pragma once

#include <QAction>

namespace desk {

class Command;

/// A menu entry that shows a command and presses it. The command is borrowed.
class CommandAction : public QAction {
    Q_OBJECT

public:
    CommandAction(Command& command, QObject* parent);

private:
    void follow();

    Command& command_;
};

} // namespace desk
