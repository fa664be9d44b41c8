#pragma once

#include "host/contract/Archivio.h"

#include <QStringList>
#include <QVariantList>

namespace desk {

class Database;

/// The archive of free data, in `tblDati`. Folder names ignore case. Borrows the database; reading throws
/// DatabaseError, writing answers false.
class FreeData : public host::Dati {
public:
    FreeData(Database& database, QString sign)
        : database_(database)
        , sign_(std::move(sign)) {}

    host::ItemDati GetEmptyItem() const override { return {}; }
    QList<host::ItemDati> Lista(const QString& cartella, bool sottocartelle) override;
    std::optional<host::ItemDati> Carica(const QString& id) override;
    bool Salva(host::ItemDati& item, bool sovrascrivi) override;
    bool Elimina(const QString& id) override;

    /// Whether a text can be a folder: levels divided by "/", none of them empty.
    static bool isFolderName(const QString& folder);
    QStringList folders(); ///< Those that hold an item, sorted.
    /// All that is in a folder and below it, moved or deleted in one step; false when there is nothing.
    bool moveFolder(const QString& from, const QString& to);
    bool removeFolder(const QString& folder);

private:
    bool changeFolder(const QString& statement, const QVariantList& values, const QString& folder);

    Database& database_;
    QString sign_;
};

} // namespace desk
