#include "config/ReportList.h"

#include "config/clsConfig.h"
#include "host/context.h"
#include "host/contract/Archivio.h"

void ReportList::load(host::Dati& data) {
    if (isLoaded()) return;
    for (const host::ItemDati& item : data.Lista(QStringLiteral("Certificati"), true)) {
        if (item.Cartella.toLower().contains(QLatin1String("odontoiatria"))) list_.append({item.ID, item.descrizione});
    }
}

QString ReportList::useOf(const QString& id) {
    if (!oConfig || id.isEmpty()) return {};
    QStringList uses;
    if (id == oConfig->PreventReportID()) uses << QStringLiteral("Preventivo");
    if (id == oConfig->FatturaReportID()) uses << QStringLiteral("Fattura");
    return uses.join(QStringLiteral(", "));
}
