#include "config/modListaReports.h"

#include "config/clsListaReports.h"
#include "config/frmListaReports.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Dialogs.h"

#include <QApplication>

void ImpostaReport(clsListaReports& lista) {
    if (!oHost) return;
    const QString titolo = QString::fromUtf16(TITOLO_CORVALA);
    if (lista.InMemoria()) {
        platform::dialogs().message(QStringLiteral("Lista in memoria"), platform::MB_INFORMATION, titolo);
    }
    try {
        lista.Carica(oHost->Archivio().Dati());
    } catch (const host::HostError& error) {
        platform::dialogs().message(
            QStringLiteral("Attenzione! Archivio dei modelli di stampa non letto!\r\nErrore: ") + error.text(),
            platform::MB_WARNING, titolo);
        return;
    }
    if (!lista.InMemoria()) {
        platform::dialogs().message(QStringLiteral("Non recuperata alcuna informazione utile!\r\n"
                                                   "Controllare che esista una cartella certificati 'Odontoiatria'"),
                                    platform::MB_WARNING, titolo);
        return;
    }
    frmListaReports finestra(lista, QApplication::activeWindow());
    finestra.exec();
}
