#include "desk/data/SignedInUser.h"

#include "desk/data/Database.h"
#include "desk/data/WorkFolders.h"

namespace desk {

SignedInUser::SignedInUser(Database& database, UserData user)
    : database_(database)
    , user_(std::move(user))
    , settings_(database, user_.ID) {}

QString SignedInUser::idschema() const {
    return database_.schema();
}

QString SignedInUser::LogDir() const {
    return workFolders::log();
}

QString SignedInUser::TempDir() const {
    return workFolders::temporary();
}

QString SignedInUser::sign() const {
    return user_.fullName();
}

} // namespace desk
