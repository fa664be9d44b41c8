#include "store/modAvvisi.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Dialogs.h"
#include "store/frmAvvisi.h"

#include <QApplication>

namespace {

QList<host::Appunto> importantNotes(host::Paziente& patient) {
    const host::Framework& framework = oHost->Framework();
    const bool isOwnDoctor = oHost->Utente().ID() == patient.IDMedico();
    QList<host::Appunto> important;
    for (const host::Appunto& note : patient.Appunti().Lista()) {
        const bool isPrivate = framework.ValoreBool(note.b1);
        if (framework.ValoreBool(note.b2) && (!isPrivate || isOwnDoctor)) important << note;
    }
    return important;
}

} // namespace

void MostraAppuntiImportanti() {
    host::Paziente* patient = currentPatient();
    if (!patient || !oConfig || !oConfig->AppuntiPazienteModali()) return;
    QList<host::Appunto> important;
    try {
        important = importantNotes(*patient);
    } catch (const host::HostError& error) {
        platform::dialogs().message(QStringLiteral("Attenzione! Appunti del paziente non letti!\r\nErrore: ") +
                                        error.text(),
                                    platform::MB_WARNING, QString::fromUtf16(CORVALA_TITLE));
        return;
    }
    if (important.isEmpty()) return;

    frmAvvisi window(QApplication::activeWindow());
    window.setPatient(patient->Cognome() + QLatin1Char(' ') + patient->Nome());
    for (const host::Appunto& note : important)
        window.add(note);
    window.exec();
}
