#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace desk {

class ScenarioStage;

/// A command of the scripts: its name, its arguments as the user reads them and what it does. In the usage a word in
/// capitals is a free text ("ROW", "COL" and "N" are whole numbers), "on|off" a choice, "dd/mm/yyyy" and
/// "yyyy-mm-ddThh:mm:ss" a date and a moment; what stands in brackets is given whole or not at all. `perform` throws
/// ScenarioFault.
struct ScenarioCommand {
    QString name;
    QString usage;
    void (*perform)(ScenarioStage& stage, const QStringList& arguments);
    int patience = 1; ///< How many times as long as others it waits for what is not there yet.
};

QList<ScenarioCommand> windowCommands();  ///< Windows, the desk and its questions.
QList<ScenarioCommand> controlCommands(); ///< Single controls.
QList<ScenarioCommand> gridCommands();    ///< Report grids.

const QList<ScenarioCommand>& scenarioCommands();
const ScenarioCommand* findScenarioCommand(const QString& name); ///< Null for an unknown name.

} // namespace desk
