#include "treatments/ApriTrattamento.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "host/modComandi.h"
#include "platform/Dialogs.h"
#include "store/modPazienti.h"
#include "treatments/clsTrattamenti.h"
#include "treatments/frmEditTrattamento.h"
#include "treatments/frmMDITrattamenti.h"
#include "treatments/modTrattamenti.h"

#include <QApplication>
#include <exception>

QString sIDTrattamento;

namespace {

void message(const QString& text, const std::exception& error) {
    platform::dialogs().message(text + QStringLiteral("\r\nErrore: ") + QString::fromUtf8(error.what()),
                                platform::MB_WARNING, QString::fromUtf16(CORVALA_TITLE));
}

// CRVL0301
void openList() {
    openWindow(QStringLiteral(": Elenco TRATTAMENTI"), [] { return new frmMDITrattamenti; });
}

// CRVL0302
void newTreatment() {
    if (!currentPatient() && !SelezionaPaziente(QString(), QString())) return;
    if (currentPatient()) ApriTrattamento(QString());
}

// CRVL0303: with the single sheet the patient's first plan, or a new one; otherwise the last with work going on.
void openPatientPlan() {
    if (!currentPatient() || !oConfig) return;
    const bool single = oConfig->UnicaSchedaTrattamento();
    QString id;
    try {
        rereadPlans(); // a plan that another workstation has begun meanwhile must not get a second one beside it
        id = single ? PrimoTrattamento() : UltimoTrattamentoAperto();
    } catch (const host::HostError& error) {
        message(QStringLiteral("Attenzione! Elenco dei trattamenti non letto!"), error);
        return;
    }
    if (single || !id.isEmpty()) ApriTrattamento(id);
}

} // namespace

EditorResult ApriTrattamento(const QString& id, const QString& row) {
    sIDTrattamento = id;
    return frmEditTrattamento(id, row, QApplication::activeWindow()).run();
}

bool deleteTreatment(host::Paziente& patient, const QString& id) {
    try {
        return oTrattamenti->Elimina(patient, id);
    } catch (const std::exception& error) {
        message(QStringLiteral("Attenzione! Riscontrati errori in lettura dati trattamento!"), error);
    }
    return false;
}

void addTreatmentCommands(Commands& commands) {
    const auto hasPlans = [] {
        return (oConfig && oConfig->UnicaSchedaTrattamento()) || !oTrattamenti->Lista().empty();
    };
    const auto hasOpenPlans = [] { return ContaTrattamentiAperti() > 0; };
    commands.add(QStringLiteral("CRVL0301"), openList);
    commands.add(QStringLiteral("CRVL0302"), newTreatment);
    commands.add(QStringLiteral("CRVL0303"), openPatientPlan, {hasPlans, hasOpenPlans});
}
