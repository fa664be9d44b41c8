#pragma once

#include "host/contract/Utente.h"

#include <QHash>

namespace desk {

class Database;

/// Text settings of one user, in `tblImpostazioni`. Borrows the database. A setting that cannot be written throws
/// HostError.
class UserSettings : public host::Items {
public:
    UserSettings(Database& database, QString userId)
        : database_(database)
        , userId_(std::move(userId)) {}

    QString GetITEM(const QString& name) const override;
    void SetITEM(const QString& name, const QString& value) override;

private:
    Database& database_;
    QString userId_;
};

} // namespace desk
