#pragma once

#include "host/contract/Archivio.h"

namespace desk {

class Database;

/// The archive of free data, in `tblDati`. Folder names ignore case. Borrows the database; failures answer false or
/// nothing.
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

private:
    Database& database_;
    QString sign_;
};

} // namespace desk
