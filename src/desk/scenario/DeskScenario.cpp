#include "desk/scenario/DeskScenario.h"

#include "desk/scenario/ScenarioDesk.h"
#include "desk/scenario/ScenarioRunner.h"
#include "desk/shell/Desk.h"
#include "platform/WebAddress.h"

#include <QTimer>
#include <exception>

namespace desk {

int runScenario(const std::function<std::unique_ptr<Desk>()>& open, const QString& file, const QString& outDir) {
    std::unique_ptr<Desk> desk;
    std::exception_ptr failure;
    const ScenarioDesk access{
        .openPatient = [&desk](const QString& taxCode) { return desk && desk->openPatientByTaxCode(taxCode); },
        .pressCommand =
            [&desk](const QString& command, QString* error) {
                if (desk) return desk->pressCommand(command, error);
                if (error) *error = QStringLiteral("nessuno ha ancora fatto l'accesso");
                return false;
            },
        .lastReportVariables = [&desk] { return desk ? desk->lastReportVariables() : QMap<QString, QVariant>(); },
    };
    // A script never starts the user's browser.
    platform::installAddressOpener([](const QString&) { return true; });
    ScenarioRunner runner(access, ScenarioOptions{.file = file, .outDir = outDir});
    QTimer::singleShot(0, &runner, [&] {
        try {
            desk = open();
        } catch (const std::exception& error) {
            failure = std::current_exception();
            runner.giveUp(QString::fromUtf8(error.what()));
        }
    });
    const int code = runner.run();
    if (failure) std::rethrow_exception(failure);
    return code;
}

} // namespace desk
