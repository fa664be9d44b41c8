#include "store/clsArchivioDati.h"

#include "host/context.h"
#include "host/contract/Host.h"

namespace {

const QString CARTELLA_PRIMA_NOTA = QStringLiteral("Prima Nota Magazzino/");

/// What `domanda` answers on the host's archive; an empty value when there is no host, or when it fails.
template <class Valore, class Domanda>
Valore chiedi(Domanda domanda) {
    if (!oHost) return {};
    try {
        return domanda(oHost->Archivio().Dati());
    } catch (const host::HostError&) {
        return {};
    }
}

} // namespace

std::optional<host::ItemDati> clsArchivioDati::GetITEM(const QString& key) const {
    return chiedi<std::optional<host::ItemDati>>([&](host::Dati& dati) { return dati.Carica(key); });
}

bool clsArchivioDati::DelITEM(const QString& key) {
    return chiedi<bool>([&](host::Dati& dati) { return dati.Elimina(key); });
}

bool clsArchivioDati::SetITEM(VocePrimaNota& item, const QString& file) {
    return chiedi<bool>([&](host::Dati& dati) {
        std::optional<host::ItemDati> voce;
        if (!item.file.isEmpty()) voce = dati.Carica(item.file);
        if (!voce) voce = dati.GetEmptyItem();
        voce->Cartella = CARTELLA_PRIMA_NOTA + item.articolo;
        voce->descrizione = item.descrizione;
        voce->file = file;
        if (!dati.Salva(*voce, true)) return false;
        item.file = voce->ID;
        return true;
    });
}

void clsArchivioDati::Refresh() {
    lista_.reset();
    cartella_.clear();
}

const QList<host::ItemDati>& clsArchivioDati::Lista(const QString& folder) {
    if (lista_ && folder == cartella_) return *lista_;
    cartella_ = folder;
    return lista_.emplace(chiedi<QList<host::ItemDati>>([&](host::Dati& dati) { return dati.Lista(folder, true); }));
}
