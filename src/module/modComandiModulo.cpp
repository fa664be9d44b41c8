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

void webPage() {
    if (oConfig) platform::openWebAddress(oConfig->WebInformation());
}

QString inBlue(const QString& text) {
    return QStringLiteral("<Run Foreground='Blue' FontWeight='Bold'>%1</Run>").arg(text.toHtmlEscaped());
}

void about() {
    if (!oConfig) return;
    const QString lineBreak = QStringLiteral("<LineBreak/>");
    QString text = QStringLiteral("<TextBlock TextWrapping='Wrap'>"
                                  "<Run Foreground='Red'>Tessara 5000 V6. Modulo Odontoiatrico</Run>") +
                   lineBreak + lineBreak + QStringLiteral("Versione Plugin CORVALA: ") +
                   inBlue(QStringLiteral(CORVALA_VERSION)) + lineBreak + QStringLiteral("Percorso configurazione: ") +
                   inBlue(QDir::toNativeSeparators(oConfig->FileName()));
    if (const QString credit = QStringLiteral(CORVALA_CREDIT); !credit.isEmpty())
        text += lineBreak + lineBreak + credit.toHtmlEscaped();
    text += QStringLiteral("</TextBlock>");
    MessaggioTask(text, platform::MB_INFORMATION, QStringLiteral("Tessara 5000 V6"));
}

} // namespace

// "CRVL.main.userdata" has no action, on purpose: a hook for the practice's own data.
void registerModuleCommands(Commands& commands, frmOggetti& objects) {
    commands.add(QStringLiteral("CRVL.main.webinfo"), webPage);
    commands.add(QStringLiteral("CRVL.main.refresh"), [&objects] { objects.RefreshDatiPaziente(); });
    commands.add(QStringLiteral("CRVL.main.setup"), openConfiguration);
    commands.add(QStringLiteral("CRVL.main.about"), about);
}
