#pragma once

#include "desk/data/UserData.h"
#include "desk/data/UserSettings.h"

namespace desk {

/// The user of this run, with settings and folders. Borrows the database.
class SignedInUser : public host::Utente {
public:
    SignedInUser(Database& database, UserData user);

    QString ID() const override { return user_.ID; }
    int tipo() const override { return user_.tipo; }
    QString codiceAttivita() const override { return user_.codiceAttivita; }
    QString idschema() const override;
    QString LogDir() const override;
    QString TempDir() const override;
    host::Items& Items() override { return settings_; }

    const UserData& data() const { return user_; }
    QString sign() const; ///< The signature in the columns `ModificatoDa`: surname and name.

private:
    Database& database_;
    UserData user_;
    UserSettings settings_;
};

} // namespace desk
