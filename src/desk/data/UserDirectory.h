#pragma once

#include "desk/data/UserData.h"
#include "host/contract/Archivio.h"

#include <QList>
#include <optional>

namespace desk {

class Database;

/// Those who work or worked in the practice: the active ones first, doctors before assistants. Borrows the database.
/// Throws DatabaseError.
class UserDirectory : public host::Utenti {
public:
    explicit UserDirectory(Database& database)
        : database_(database) {}

    QList<host::VoceUtente> Lista() override;

    QList<UserData> all();
    QList<UserData> active();                            ///< Those who may sign in.
    std::optional<UserData> byCode(const QString& code); ///< Case ignored.
    /// The user of a run: that of the code, or with an empty code the first doctor. A practice without users gets its
    /// first one. Nothing when no active user has the code.
    std::optional<UserData> forSignIn(const QString& code);
    bool insert(UserData& user); ///< Writes the new identity into it; false instead of throwing.
    /// Adds the user, or changes the known one, and with it the stored form of the password where one is given; an
    /// empty one takes the password away. All or nothing. False when the user is not there any more.
    bool save(UserData& user, const std::optional<QString>& passwordHash = std::nullopt);
    /// Whether patients, rows or plans refer to the user, who then can only be made inactive.
    bool hasRecords(const UserData& user);
    bool remove(const QString& id); ///< With the user's settings. False when there are records, or no such user.

private:
    void add(UserData& user);
    bool change(const UserData& user);

    Database& database_;
};

} // namespace desk
