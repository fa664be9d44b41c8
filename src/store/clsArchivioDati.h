#pragma once

#include "host/contract/Archivio.h"

#include <QList>
#include <QString>
#include <optional>

/// What the archive of free data must know of a movement of the stock journal; the movement itself converts to it.
struct JournalEntry {
    QString file; ///< Its key in the archive; empty for a new one.
    QString article;
    QString description;
};

/// The host's archive of free data, and the list of the folder asked for last. Nothing here tells the user:
/// reading throws HostError when the host could not read, writing answers false; without a host there is nothing.
class clsArchivioDati {
public:
    std::optional<host::ItemDati> GetITEM(const QString& key) const;
    bool DelITEM(const QString& key);
    /// Writes a movement with the content `file`, over the one with its key when that is there. The key of what was
    /// written goes into the item.
    bool SetITEM(JournalEntry& item, const QString& file);
    /// Forgets the list; without it a folder is asked of the host once, whatever is written meanwhile.
    void Refresh();
    /// The items of a folder and of those below it.
    const QList<host::ItemDati>& Lista(const QString& folder);

private:
    std::optional<QList<host::ItemDati>> list_;
    QString folder_;
};
