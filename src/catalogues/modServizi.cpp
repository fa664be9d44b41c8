#include "catalogues/modServizi.h"

#include "catalogues/clsServizi.h"
#include "host/context.h"

namespace {

const clsItemServizio* service(const QString& id) {
    return id.isEmpty() || oServizi == nullptr ? nullptr : oServizi->Carica(id);
}

} // namespace

QString serviceCode(const QString& id) {
    const clsItemServizio* item = service(id.trimmed());
    return item == nullptr ? QString() : item->ID;
}

bool ServizioInEvidenza(const QString& id, QString& shortText) {
    const clsItemServizio* item = service(id);
    shortText = item == nullptr ? QString() : item->breve;
    return item != nullptr && item->inEvidenza;
}

Amount PrezzoServizio(const QString& id) {
    const clsItemServizio* item = service(id);
    return item == nullptr ? Amount() : item->prezzo;
}

QString StatusLavoriServizio(const QString& id) {
    const clsItemServizio* item = service(id);
    return item == nullptr ? QString() : item->statusLavori.trimmed();
}

QString RaggruppamentoServizio(const QString& id) {
    const clsItemServizio* item = service(id);
    return item == nullptr ? QString() : item->raggruppamento.trimmed();
}
