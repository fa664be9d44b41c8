#include "module/modComandiModulo.h"

#include "config/clsConfig.h"
#include "config/modConfig.h"
#include "host/context.h"
#include "host/frmOggetti.h"
#include "host/modComandi.h"
#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/WebAddress.h"

#include <QDir>

namespace {

void paginaWeb() {
    if (oConfig) platform::openWebAddress(oConfig->WebInformation());
}

QString inBlu(const QString& testo) {
    return QStringLiteral("<Run Foreground='Blue' FontWeight='Bold'>%1</Run>").arg(testo.toHtmlEscaped());
}

void informazioni() {
    if (!oConfig) return;
    const QString aCapo = QStringLiteral("<LineBreak/>");
    QString testo = QStringLiteral("<TextBlock TextWrapping='Wrap'>"
                                   "<Run Foreground='Red'>Tessara 5000 V6. Modulo Odontoiatrico</Run>") +
                    aCapo + aCapo + QStringLiteral("Versione Plugin CORVALA: ") +
                    inBlu(QStringLiteral(CORVALA_VERSION)) + aCapo + QStringLiteral("Percorso configurazione: ") +
                    inBlu(QDir::toNativeSeparators(oConfig->FileName()));
    if (const QString credito = QStringLiteral(CORVALA_CREDIT); !credito.isEmpty())
        testo += aCapo + aCapo + credito.toHtmlEscaped();
    testo += QStringLiteral("</TextBlock>");
    MessaggioTask(testo, platform::MB_INFORMATION, QStringLiteral("Tessara 5000 V6"));
}

} // namespace

// "CRVL.main.userdata" has no action, on purpose: a hook for the practice's own data.
void registraComandiModulo(Comandi& comandi, frmOggetti& oggetti) {
    comandi.add(QStringLiteral("CRVL.main.webinfo"), paginaWeb);
    comandi.add(QStringLiteral("CRVL.main.refresh"), [&oggetti] { oggetti.RefreshDatiPaziente(); });
    comandi.add(QStringLiteral("CRVL.main.setup"), ApriConfigurazione);
    comandi.add(QStringLiteral("CRVL.main.about"), informazioni);
}
