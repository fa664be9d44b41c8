#include "module/Plugin.h"

#include "chart/clsGraphical.h"
#include "config/clsConfig.h"
#include "host/Step.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/frmOggetti.h"
#include "module/Context.h"
#include "module/ModuleFolder.h"
#include "module/modComandiModulo.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"

#include <optional>

Plugin::Plugin() {
    bTerminato = false;
    if (sAppPath.isEmpty()) sAppPath = moduleFolder();
    objects_ = std::make_unique<frmOggetti>(
        frmOggetti::Services{[] { return oConfig ? std::optional<int>(oConfig->MinuteRefresh()) : std::nullopt; },
                             [this] {
                                 if (context_ && context_->isCurrent()) context_->refreshPatientData();
                             }});
}

Plugin::~Plugin() = default;

bool Plugin::terminated() const {
    return ended_;
}

void Plugin::Init(host::Host* host, const QVariant&) {
    if (!host || ended_ || context_) return;
    try {
        start(*host);
    } catch (const std::exception& error) {
        failed(QString::fromUtf8(error.what()));
    } catch (...) {
        failed(QStringLiteral("errore sconosciuto"));
    }
}

void Plugin::start(host::Host& host) {
    context_ = std::make_unique<Context>(host);
    registerModuleCommands(context_->commands(), *objects_);
    step([] {
        if (oHost->Utente().Items().GetITEM(QStringLiteral("plgCORVALA.Debug")) != QLatin1String("1")) return;
        // Only the name is settled: support tools look for it, and nothing is written yet.
        sLogFile = oHost->Utente().LogDir() + QStringLiteral("/plgCORVALA_") +
                   platform::today().toString(QStringLiteral("yyyyMMdd")) + QStringLiteral(".log");
    });
    if (!oConfig->Init()) {
        failed(oConfig->LastError());
        return;
    }
    for (const QString& notice : oConfig->Notices())
        step([&] { platform::dialogs().message(notice, platform::MB_WARNING, oConfig->ProductName()); });
    objects_->setTimerActive(oConfig->MinuteRefresh() >= 1);
    if (!oGraphical->Init(sAppPath + QStringLiteral("/Graphical.xml"))) failed(oGraphical->LastError());
}

void Plugin::failed(const QString& reason) {
    reason_ = reason;
    const QString title = context_ ? oConfig->ProductName() : QString::fromUtf16(CORVALA_TITLE);
    step([&] { platform::dialogs().message(reason, platform::MB_CRITICAL, title); });
    Termina();
}

void Plugin::Termina() {
    ended_ = true;
    objects_->setTimerActive(false);
    if (!context_ || context_->isCurrent()) bTerminato = true;
    if (context_) context_->terminate();
}
