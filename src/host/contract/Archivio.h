#pragma once

#include "host/contract/Paziente.h"

#include <QList>
#include <QString>
#include <memory>
#include <optional>

namespace host {

/// The panels loaded in the archive.
class Pannelli {
public:
    virtual ~Pannelli() = default;
    virtual bool PannelloCaricato(const QString& name) const = 0;
};

/// One item of the archive of free data.
struct ItemDati {
    QString ID;
    QString Cartella; ///< Folder, levels divided by "/".
    QString descrizione;
    QString file; ///< The content, as text.
};

/// The host's archive of free data: items kept in folders, of no patient. Reading throws HostError when the host cannot
/// tell what there is.
class Dati {
public:
    virtual ~Dati() = default;
    virtual ItemDati GetEmptyItem() const = 0;
    /// Items of a folder; with `sottocartelle` those of the folders below it too.
    virtual QList<ItemDati> Lista(const QString& cartella, bool sottocartelle) = 0;
    virtual std::optional<ItemDati> Carica(const QString& id) = 0;
    /// Inserts when `ID` is empty and writes the new identity into it. `sovrascrivi` false refuses an existing item.
    virtual bool Salva(ItemDati& item, bool sovrascrivi) = 0;
    virtual bool Elimina(const QString& id) = 0;
};

struct VoceUtente {
    QString ID;
    QString codicefiscale;
    QString Cognome;
    QString Nome;
    int tipo = 0;       ///< 0 a doctor, 3 an assistant.
    bool attivo = true; ///< Whether still in the practice: who left is listed for the sake of the records.
};

class Utenti {
public:
    virtual ~Utenti() = default;
    virtual QList<VoceUtente> Lista() = 0; ///< All that records may name; HostError when unread.
};

/// The patient search window.
class Pazienti {
public:
    virtual ~Pazienti() = default;
    /// Opens the search on `column` ("Cognome e Nome" or "Codice Fiscale") with `value`; the chosen patient, or
    /// nothing.
    virtual std::unique_ptr<Paziente> Show(const QString& value, const QString& column) = 0;
};

class Archivio {
public:
    virtual ~Archivio() = default;
    virtual host::Pannelli& Pannelli() = 0;
    virtual host::Dati& Dati() = 0;
    virtual host::Utenti& Utenti() = 0;
    virtual host::Pazienti& Pazienti() = 0;
};

} // namespace host
