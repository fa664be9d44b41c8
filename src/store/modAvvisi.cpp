#include "store/modAvvisi.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Dialogs.h"
#include "store/frmAvvisi.h"

#include <QApplication>

namespace {

QList<host::Appunto> appuntiImportanti(host::Paziente& paziente) {
    const host::Framework& framework = oHost->Framework();
    const bool suoMedico = oHost->Utente().ID() == paziente.IDMedico();
    QList<host::Appunto> importanti;
    for (const host::Appunto& appunto : paziente.Appunti().Lista()) {
        const bool privato = framework.ValoreBool(appunto.b1);
        if (framework.ValoreBool(appunto.b2) && (!privato || suoMedico)) importanti << appunto;
    }
    return importanti;
}

} // namespace

void MostraAppuntiImportanti() {
    host::Paziente* paziente = PazienteAperto();
    if (!paziente || !oConfig || !oConfig->AppuntiPazienteModali()) return;
    QList<host::Appunto> importanti;
    try {
        importanti = appuntiImportanti(*paziente);
    } catch (const host::HostError& error) {
        platform::dialogs().message(QStringLiteral("Attenzione! Appunti del paziente non letti!\r\nErrore: ") +
                                        error.text(),
                                    platform::MB_WARNING, QString::fromUtf16(TITOLO_CORVALA));
        return;
    }
    if (importanti.isEmpty()) return;

    frmAvvisi avvisi(QApplication::activeWindow());
    avvisi.setPaziente(paziente->Cognome() + QLatin1Char(' ') + paziente->Nome());
    for (const host::Appunto& appunto : importanti)
        avvisi.aggiungi(appunto);
    avvisi.exec();
}
