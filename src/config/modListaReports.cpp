#include "config/modListaReports.h"

#include "config/ReportList.h"
#include "config/frmListaReports.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Dialogs.h"

#include <QApplication>

void assignReports(ReportList& list) {
    if (!oHost) return;
    const QString title = QString::fromUtf16(CORVALA_TITLE);
    if (list.isLoaded()) {
        platform::dialogs().message(QStringLiteral("Lista in memoria"), platform::MB_INFORMATION, title);
    }
    try {
        list.load(oHost->Archivio().Dati());
    } catch (const host::HostError& error) {
        platform::dialogs().message(
            QStringLiteral("Attenzione! Archivio dei modelli di stampa non letto!\r\nErrore: ") + error.text(),
            platform::MB_WARNING, title);
        return;
    }
    if (!list.isLoaded()) {
        platform::dialogs().message(QStringLiteral("Non recuperata alcuna informazione utile!\r\n"
                                                   "Controllare che esista una cartella certificati 'Odontoiatria'"),
                                    platform::MB_WARNING, title);
        return;
    }
    frmListaReports window(list, QApplication::activeWindow());
    window.exec();
}
