#include "desk/shell/Practice.h"

#include "desk/data/DemoPractice.h"
#include "desk/shell/Options.h"

namespace desk {

Practice::Practice(std::unique_ptr<Database> database, const UserData& user)
    : database_(std::move(database))
    , users_(*database_)
    , user_(*database_, user)
    , sql_(*database_, user_.sign())
    , freeData_(*database_, user_.sign())
    , patients_(*database_, user_.sign()) {}

std::unique_ptr<Practice> Practice::open(const Options& options) {
    auto database = Database::open(DatabaseUrl::parse(options.databaseUrl));
    if (options.demo) DemoPractice::fill(*database);
    const std::optional<UserData> user = UserDirectory(*database).forSignIn(options.userCode);
    if (!user) throw OptionError(QStringLiteral("Nessun utente ha il codice \u201c%1\u201d.").arg(options.userCode));
    return std::unique_ptr<Practice>(new Practice(std::move(database), *user));
}

std::unique_ptr<PatientRecord> Practice::newPatient() {
    return std::make_unique<PatientRecord>(*database_, user_.sign(), hooks_);
}

} // namespace desk
