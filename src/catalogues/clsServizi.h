#pragma once

#include "catalogues/clsItemServizio.h"
#include "platform/Collection.h"

#include <QHash>
#include <QString>
#include <functional>
#include <optional>

namespace platform {
class XmlDocument;
} // namespace platform

class clsServizi;
extern clsServizi* oServizi; ///< From the start of the module to the end of its Plugin.

/// The practice-wide catalogue of services and products: one XML file, read once and kept in memory until `Refresh`,
/// written whole by each change. One object for the whole module, owned by its assembly. Nothing here shows a message:
/// a failure is told by the result, and a file that cannot be read stays as it is. Workstations that share the file
/// overwrite each other: the last save wins.
class clsServizi {
public:
    using FileProvider = std::function<QString()>;

    clsServizi(); ///< On "tabellaServizi.xml" in the data folder of the configuration.
    explicit clsServizi(FileProvider file);

    bool Aggiorna(const clsItemServizio& item); ///< Inserts or updates by the exact code; true when the file was saved.
    /// The entry with that code, in any case, or null. Borrowed until the next `Refresh`; the same for the one below.
    const clsItemServizio* Carica(const QString& id);
    const clsItemServizio* CaricaDaDescrizione(const QString& description);
    bool Elimina(const QString& id); ///< True when the code was not there; see the definition for the other case.
    void Refresh();
    /// In file order. Reading ends without a word at an entry that is incomplete or has the key of one before it.
    const platform::Collection<clsItemServizio>& Lista();

private:
    bool replace(const platform::XmlDocument& document, const clsItemServizio& item) const;
    void append(const platform::XmlDocument& document, const clsItemServizio& item) const;
    void read();
    bool save(const platform::XmlDocument& document);

    FileProvider file_;
    std::optional<platform::Collection<clsItemServizio>> list_;
    QHash<QString, std::size_t> exact_; ///< Position by the code as the file spells it.
};
