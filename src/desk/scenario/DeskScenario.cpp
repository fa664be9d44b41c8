#include "desk/scenario/DeskScenario.h"

#include "desk/scenario/ScenarioDesk.h"
#include "desk/scenario/ScenarioRunner.h"
#include "desk/shell/Desk.h"
#include "platform/WebAddress.h"

namespace desk {

int runScenario(Desk& desk, const QString& file, const QString& outDir) {
    const ScenarioDesk access{
        .openPatient = [&desk](const QString& taxCode) { return desk.openPatientByTaxCode(taxCode); },
        .pressCommand = [&desk](const QString& command, QString* error) { return desk.pressCommand(command, error); },
        .lastReportVariables = [&desk] { return desk.lastReportVariables(); },
    };
    // A script never starts the user's browser.
    platform::installAddressOpener([](const QString&) { return true; });
    ScenarioRunner runner(access, ScenarioOptions{.file = file, .outDir = outDir});
    return runner.run();
}

} // namespace desk
