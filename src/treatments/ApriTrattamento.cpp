#include "treatments/ApriTrattamento.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/frmOggetti.h"
#include "host/modComandi.h"
#include "platform/Dialogs.h"
#include "platform/FormRegistry.h"
#include "store/modPazienti.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/frmEditTrattamento.h"
#include "treatments/frmMDITrattamenti.h"
#include "treatments/modTrattamenti.h"

#include <QApplication>
#include <exception>

namespace {

void messaggio(const QString& testo, const std::exception& errore) {
    platform::dialogs().message(testo + QStringLiteral("\r\nErrore: ") + QString::fromUtf8(errore.what()),
                                platform::MB_WARNING, QString::fromUtf16(TITOLO_CORVALA));
}

// CRVL0301
void apriElenco() {
    ApriFinestra(QStringLiteral(": Elenco TRATTAMENTI"), [] { return new frmMDITrattamenti; });
}

// CRVL0302
void nuovoTrattamento() {
    if (!PazienteAperto() && !SelezionaPaziente(QString(), QString())) return;
    if (PazienteAperto()) ApriTrattamento(QString());
}

// CRVL0303: with the single sheet the patient's first plan, or a new one; otherwise the last with work going on.
void apriSchedaPaziente() {
    if (!PazienteAperto() || !oConfig) return;
    const bool unica = oConfig->UnicaSchedaTrattamento();
    QString id;
    try {
        rereadPlans(); // a plan that another workstation has begun meanwhile must not get a second one beside it
        id = unica ? PrimoTrattamento() : UltimoTrattamentoAperto();
    } catch (const host::HostError& errore) {
        messaggio(QStringLiteral("Attenzione! Elenco dei trattamenti non letto!"), errore);
        return;
    }
    if (unica || !id.isEmpty()) ApriTrattamento(id);
}

} // namespace

void ApriTrattamento(const QString& id) {
    sIDTrattamento = id;
    {
        frmEditTrattamento editor(QApplication::activeWindow());
        editor.exec();
    }
    // The module may have ended under the open window.
    if (!oHost || oHost->Framework().DialogCancel()) return;
    if (oConfig) oConfig->RefreshGUITrattamento();
    if (auto* oggetti = qobject_cast<frmOggetti*>(platform::FormRegistry::find(QStringLiteral("frmOggetti"))))
        oggetti->RefreshDatiPaziente();
}

bool EliminaTrattamento(host::Paziente& paziente, const QString& id) {
    try {
        return oTrattamenti->Elimina(paziente, id);
    } catch (const std::exception& errore) {
        messaggio(QStringLiteral("Attenzione! Riscontrati errori in lettura dati trattamento!"), errore);
    }
    return false;
}

void registraTrattamenti(Comandi& comandi) {
    comandi.add(QStringLiteral("CRVL0301"), apriElenco);
    comandi.add(QStringLiteral("CRVL0302"), nuovoTrattamento);
    comandi.add(QStringLiteral("CRVL0303"), apriSchedaPaziente);
}
