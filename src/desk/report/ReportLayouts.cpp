#include "desk/report/ReportLayouts.h"

#include "host/contract/Archivio.h"
#include "platform/Files.h"

#include <QFile>

/// Outside every namespace, as Qt wants it for resources in a static library.
static void embedLayouts() {
    Q_INIT_RESOURCE(desk_report);
}

namespace desk {

namespace {

ShippedReport shippedAs(const char* id, const char* title, const char* prefix, const char* file) {
    QFile resource(QStringLiteral(":/desk/report/layouts/") + QLatin1String(file));
    const bool isOpen = resource.open(QIODevice::ReadOnly);
    Q_ASSERT(isOpen);
    return {QLatin1String(id), QLatin1String(title), QLatin1String(prefix),
            isOpen ? QString::fromUtf8(resource.readAll()) : QString()};
}

} // namespace

const QList<ShippedReport>& ReportLayouts::shipped() {
    embedLayouts();
    // The module asks for the first two by these identifiers, and for the third by its name in small letters.
    static const QList<ShippedReport> all{
        shippedAs("{54D96C47-35BA-45AE-AE9B-245B0B7D02E3}", "Fattura", "Fattura.", "fattura.xml"),
        shippedAs("{1E08C7B7-CF03-45D5-8238-C62562526EA3}", "Preventivo", "Preventivo.", "preventivo.xml"),
        shippedAs("{8B7A4D52-6F0E-4C39-9A1D-3E5C20F7B864}", "Riepilogo fatture emesse", "RiepilogoFattureEmesse.",
                  "riepilogo.xml")};
    return all;
}

void ReportLayouts::provide() {
    if (provided_) return;
    for (const ShippedReport& one : shipped()) {
        if (archive_.Carica(one.id)) continue;
        host::ItemDati item = archive_.GetEmptyItem();
        item.ID = one.id;
        item.Cartella = QString::fromUtf16(REPORT_FOLDER);
        item.descrizione = one.title;
        item.file = one.xml;
        // Another workstation may be doing the same: then its item stays.
        archive_.Salva(item, false);
    }
    provided_ = true;
}

std::optional<ReportLayouts::Found> ReportLayouts::find(const QString& id) {
    provide();
    const std::optional<host::ItemDati> item = archive_.Carica(id);
    if (!item) return std::nullopt;
    return Found{item->descrizione, item->file};
}

const ShippedReport* ReportLayouts::fallback(const QString& id, const QMap<QString, QVariant>& variables) {
    for (const ShippedReport& one : shipped())
        if (one.id == id) return &one;
    for (const ShippedReport& one : shipped()) {
        const auto first = variables.lowerBound(one.prefix);
        if (first != variables.constEnd() && first.key().startsWith(one.prefix)) return &one;
    }
    return nullptr;
}

} // namespace desk
