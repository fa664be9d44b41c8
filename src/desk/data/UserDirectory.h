#pragma once

#include "desk/data/UserData.h"
#include "host/contract/Archivio.h"

#include <QList>
#include <optional>

namespace desk {

class Database;

/// Those who work in the practice, doctors first. Borrows the database. Throws DatabaseError.
class UserDirectory : public host::Utenti {
public:
    explicit UserDirectory(Database& database)
        : database_(database) {}

    QList<host::VoceUtente> Lista() override;

    QList<UserData> all();
    std::optional<UserData> byCode(const QString& code); ///< Case ignored.
    /// The user of a run: that of the code, or with an empty code the first doctor. A practice without users gets its
    /// first one. Nothing when no user has the code.
    std::optional<UserData> forSignIn(const QString& code);
    bool insert(UserData& user); ///< Writes the new identity into it.

private:
    Database& database_;
};

} // namespace desk
