#include "store/clsArchivioDati.h"

#include "host/context.h"
#include "host/contract/Host.h"

namespace {

const QString JOURNAL_FOLDER = QStringLiteral("Prima Nota Magazzino/");

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
    return written([&](host::Dati& data) { return data.Elimina(key); });
}

bool clsArchivioDati::SetITEM(JournalEntry& item, const QString& file) {
    return written([&](host::Dati& data) {
        std::optional<host::ItemDati> entry;
        if (!item.file.isEmpty()) entry = data.Carica(item.file);
        if (!entry) entry = data.GetEmptyItem();
        entry->Cartella = JOURNAL_FOLDER + item.article;
        entry->descrizione = item.description;
        entry->file = file;
        if (!data.Salva(*entry, true)) return false;
        item.file = entry->ID;
        return true;
    });
}

void clsArchivioDati::Refresh() {
    list_.reset();
    folder_.clear();
}

const QList<host::ItemDati>& clsArchivioDati::Lista(const QString& folder) {
    if (list_ && folder == folder_) return *list_;
    Refresh(); // should the reading fail, nothing is kept
    if (!oHost) {
        static const QList<host::ItemDati> none;
        return none;
    }
    list_ = oHost->Archivio().Dati().Lista(folder, true);
    folder_ = folder;
    return *list_;
}
