#pragma once

#include <QToolButton>

namespace desk {

class Command;

/// Shows one command in a ribbon group: a large icon above the caption, or a small one beside it. The command is
/// borrowed.
class RibbonButton : public QToolButton {
    Q_OBJECT

public:
    RibbonButton(Command& command, QWidget* parent);
    bool isLarge() const;
    Command& command() const { return command_; }
    /// Takes over caption, style, picture and state from the command.
    void follow();

private:
    void attachMenu();

    Command& command_;
};

} // namespace desk
