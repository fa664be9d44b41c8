#include "desk/shell/Desk.h"

#include "desk/data/WorkFolders.h"
#include "desk/shell/DeskParts.h"
#include "desk/shell/Options.h"
#include "host/contract/PluginInterface.h"
#include "platform/Guarded.h"

#include <QFileInfo>

namespace desk {

Desk::Desk(std::unique_ptr<Parts> parts)
    : parts_(std::move(parts)) {}

Desk::~Desk() = default;

std::unique_ptr<Desk> Desk::open(const Options& options) {
    options.useConfigFolder();
    workFolders::tidy();
    auto parts = std::make_unique<Parts>(Practice::open(options));
    // A script finds its windows in the same size on every run.
    if (options.scenarioFile.isEmpty()) parts->restorePlace();
    return std::unique_ptr<Desk>(new Desk(std::move(parts)));
}

host::Host& Desk::host() {
    return parts_->host;
}

QMainWindow* Desk::window() {
    return &parts_->window;
}

bool Desk::loadModule(const QString& libraryPath) {
    try {
        return parts_->attach(loadModuleLibrary(QFileInfo(libraryPath).absoluteFilePath()));
    } catch (const std::exception& error) {
        return parts_->refuseModule(QString::fromUtf8(error.what()));
    }
}

bool Desk::attachModule(std::unique_ptr<host::PluginInterface> module) {
    return parts_->attach(std::move(module));
}

bool Desk::hasModule() const {
    return parts_->module != nullptr;
}

QString Desk::moduleError() const {
    return parts_->moduleError;
}

bool Desk::openPatient(const QString& id) {
    return parts_->openPatient(id);
}

bool Desk::openPatientByTaxCode(const QString& taxCode) {
    QString id;
    const QString why = platform::guarded([&] { id = parts_->practice->patients().idByTaxCode(taxCode); });
    if (!why.isEmpty()) parts_->tell(why);
    return !id.isEmpty() && parts_->openPatient(id);
}

void Desk::closePatient() {
    parts_->closePatient();
}

bool Desk::pressCommand(const QString& keyOrCaption, QString* error) {
    const auto refuse = [error](const QString& why) {
        if (error) *error = why;
        return false;
    };
    Command* command = parts_->commands.findByName(keyOrCaption);
    if (!command) return refuse(QStringLiteral("Nessun comando si chiama \u201c%1\u201d.").arg(keyOrCaption));
    if (!command->Visible())
        return refuse(QStringLiteral("Il comando \u201c%1\u201d \u00e8 nascosto.").arg(keyOrCaption));
    if (!command->Enabled())
        return refuse(QStringLiteral("Il comando \u201c%1\u201d \u00e8 disabilitato.").arg(keyOrCaption));
    if (!command->entries().isEmpty())
        return refuse(QStringLiteral("Il comando \u201c%1\u201d apre solo un menu.").arg(keyOrCaption));
    command->press();
    return true;
}

QMap<QString, QVariant> Desk::lastReportVariables() const {
    return parts_->framework.lastReportVariables();
}

QString Desk::lastReportID() const {
    return parts_->framework.lastReportID();
}

} // namespace desk
