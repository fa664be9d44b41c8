#include "store/clsArchivioDati.h"

#include "host/context.h"
#include "host/contract/Host.h"

namespace {

const QString CARTELLA_PRIMA_NOTA = QStringLiteral("Prima Nota Magazzino/");

/// What writing on the host's archive answers; false too when there is no host, or when it fails.
template <class Write>
bool written(Write write) {
    if (!oHost) return false;
    try {
        return write(oHost->Archivio().Dati());
    } catch (const host::HostError&) {
        return false;
    }
}

} // namespace

std::optional<host::ItemDati> clsArchivioDati::GetITEM(const QString& key) const {
    return oHost ? oHost->Archivio().Dati().Carica(key) : std::nullopt;
}

bool clsArchivioDati::DelITEM(const QString& key) {
    return written([&](host::Dati& dati) { return dati.Elimina(key); });
}

bool clsArchivioDati::SetITEM(VocePrimaNota& item, const QString& file) {
    return written([&](host::Dati& dati) {
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
    Refresh(); // should the reading fail, nothing is kept
    if (!oHost) {
        static const QList<host::ItemDati> none;
        return none;
    }
    lista_ = oHost->Archivio().Dati().Lista(folder, true);
    cartella_ = folder;
    return *lista_;
}
