#pragma once

#include "desk/data/Database.h"
#include "desk/data/DatabaseService.h"
#include "desk/data/FreeData.h"
#include "desk/data/PatientDirectory.h"
#include "desk/data/PatientHooks.h"
#include "desk/data/PatientRecord.h"
#include "desk/data/SignedInUser.h"
#include "desk/data/UserDirectory.h"
#include "desk/people/SignIn.h"

#include <memory>

namespace desk {

struct Options;

/// The data side of the desk: the open database, the user who signed in and what they give access to.
class Practice {
public:
    /// Asks who signs in where that is not clear, or where there is a password, and for a copy to restore where the
    /// archive is damaged. Throws DatabaseError, OptionError when
    /// nobody may sign in under the user code, and SignInCancelled.
    static std::unique_ptr<Practice> open(const Options& options);

    Database& database() { return *database_; }
    UserDirectory& users() { return users_; }
    SignIn& signIn() { return signIn_; }
    SignedInUser& user() { return user_; }
    DatabaseService& sql() { return sql_; }
    FreeData& freeData() { return freeData_; }
    PatientDirectory& patients() { return patients_; }
    PatientHooks& hooks() { return hooks_; }
    std::unique_ptr<PatientRecord> newPatient();

private:
    Practice(std::unique_ptr<Database> database, const UserData& user);

    std::unique_ptr<Database> database_;
    UserDirectory users_;
    SignIn signIn_;
    SignedInUser user_;
    DatabaseService sql_;
    FreeData freeData_;
    PatientDirectory patients_;
    PatientHooks hooks_;
};

} // namespace desk
