#include "desk/shell/CommandAction.h"

#include "desk/shell/Command.h"

namespace desk {

CommandAction::CommandAction(Command& command, QObject* parent)
    : QAction(parent)
    , command_(command) {
    setObjectName(QStringLiteral("miComando(%1)").arg(command.ID()));
    follow();
    connect(&command, &Command::changed, this, &CommandAction::follow);
    connect(this, &QAction::triggered, &command, &Command::press);
}

void CommandAction::follow() {
    setText(QString(command_.Caption()).replace(QLatin1Char('&'), QStringLiteral("&&")));
    setIcon(command_.icon());
    setVisible(command_.Visible());
    setEnabled(command_.Enabled());
}

} // namespace desk
