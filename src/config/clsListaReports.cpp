#include "config/clsListaReports.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "host/contract/Archivio.h"

void clsListaReports::Carica(host::Dati& dati) {
    if (InMemoria()) return;
    for (const host::ItemDati& item : dati.Lista(QStringLiteral("Certificati"), true)) {
        if (item.Cartella.toLower().contains(QLatin1String("odontoiatria"))) lista_.append({item.ID, item.descrizione});
    }
}

QString clsListaReports::Utilizzo(const QString& id) {
    if (!oConfig || id.isEmpty()) return {};
    QStringList usi;
    if (id == oConfig->PreventReportID()) usi << QStringLiteral("Preventivo");
    if (id == oConfig->FatturaReportID()) usi << QStringLiteral("Fattura");
    return usi.join(QStringLiteral(", "));
}
