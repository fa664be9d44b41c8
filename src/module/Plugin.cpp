#include "module/Plugin.h"

#include "chart/clsGraphical.h"
#include "config/clsConfig.h"
#include "host/Passo.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/frmOggetti.h"
#include "module/CartellaModulo.h"
#include "module/Contesto.h"
#include "module/modComandiModulo.h"
#include "module/modPannelli.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"

#include <optional>

Plugin::Plugin() {
    bTerminato = false;
    if (sAppPath.isEmpty()) sAppPath = CartellaModulo();
    oggetti_ = std::make_unique<frmOggetti>(frmOggetti::Servizi{
        [] { return oConfig ? std::optional<int>(oConfig->MinuteRefresh()) : std::nullopt; }, AggiornaDatiPaziente});
}

Plugin::~Plugin() = default;

bool Plugin::terminated() const {
    return ended_;
}

void Plugin::Init(host::Host* host, const QVariant&) {
    if (!host || ended_ || contesto_) return;
    try {
        avvia(*host);
    } catch (const std::exception& errore) {
        fallito(QString::fromUtf8(errore.what()));
    } catch (...) {
        fallito(QStringLiteral("errore sconosciuto"));
    }
}

void Plugin::avvia(host::Host& host) {
    contesto_ = std::make_unique<Contesto>(host);
    registraComandiModulo(contesto_->comandi(), *oggetti_);
    passo([] {
        if (oHost->Utente().Items().GetITEM(QStringLiteral("plgCORVALA.Debug")) != QLatin1String("1")) return;
        // Only the name is settled: support tools look for it, and nothing is written yet.
        sLogFile = oHost->Utente().LogDir() + QStringLiteral("/plgCORVALA_") +
                   platform::today().toString(QStringLiteral("yyyyMMdd")) + QStringLiteral(".log");
    });
    if (!oConfig->Init()) {
        fallito(oConfig->LastError());
        return;
    }
    for (const QString& avviso : oConfig->Avvisi())
        passo([&] { platform::dialogs().message(avviso, platform::MB_WARNING, oConfig->ProductName()); });
    oggetti_->setTimerAttivo(oConfig->MinuteRefresh() >= 1);
    if (!oGraphical->Init(sAppPath + QStringLiteral("/Graphical.xml"))) fallito(oGraphical->LastError());
}

void Plugin::fallito(const QString& motivo) {
    motivo_ = motivo;
    const QString titolo = contesto_ ? oConfig->ProductName() : QString::fromUtf16(TITOLO_CORVALA);
    passo([&] { platform::dialogs().message(motivo, platform::MB_CRITICAL, titolo); });
    Termina();
}

void Plugin::Termina() {
    ended_ = true;
    oggetti_->setTimerAttivo(false);
    if (!contesto_ || contesto_->isCurrent()) bTerminato = true;
    if (contesto_) contesto_->termina();
}
