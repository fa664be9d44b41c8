#include "desk/scenario/ScenarioCommand.h"

#include <algorithm>

namespace desk {

const QList<ScenarioCommand>& scenarioCommands() {
    static const QList<ScenarioCommand> all = windowCommands() + controlCommands() + gridCommands();
    return all;
}

const ScenarioCommand* findScenarioCommand(const QString& name) {
    const QList<ScenarioCommand>& all = scenarioCommands();
    const auto found =
        std::find_if(all.cbegin(), all.cend(), [&](const auto& command) { return command.name == name; });
    return found == all.cend() ? nullptr : &*found;
}

} // namespace desk
