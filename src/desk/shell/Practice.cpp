#include "desk/shell/Practice.h"

#include "desk/data/DemoPractice.h"
#include "desk/people/SignInWindow.h"
#include "desk/shell/Options.h"
#include "desk/shell/RestoreWindow.h"

namespace desk {

namespace {

UserData whoSignsIn(Database& database, const Options& options) {
    UserDirectory users(database);
    const std::optional<UserData> proposed = users.forSignIn(options.userCode);
    if (!proposed && !options.userCode.isEmpty())
        throw OptionError(QStringLiteral("Nessun utente attivo ha il codice \u201c%1\u201d.").arg(options.userCode));
    if (!proposed) throw OptionError(QStringLiteral("Nessun utente dello studio pu\u00f2 accedere."));
    QList<UserData> candidates = users.active();
    const bool asked = options.asksWhoSignsIn || proposed->asksPassword;
    if (!options.userCode.isEmpty() || !asked || candidates.size() < 2) candidates = {*proposed};
    if (candidates.size() == 1 && !proposed->asksPassword) return *proposed;
    SignIn signIn(database);
    SignInWindow window(signIn, candidates);
    if (window.exec() != QDialog::Accepted) throw SignInCancelled();
    return window.user();
}

// A damaged archive is offered a copy where somebody can choose one.
std::unique_ptr<Database> openDatabase(const Options& options) {
    const DatabaseUrl url = DatabaseUrl::parse(options.databaseUrl);
    QString damage;
    try {
        return Database::open(url);
    } catch (const DamagedArchive& error) {
        if (!options.asksWhoSignsIn) throw;
        damage = error.text();
    }
    RestoreWindow window(url, damage);
    if (window.exec() != QDialog::Accepted) throw SignInCancelled();
    return Database::open(url);
}

// Whoever can name the archive and its password holds all that is in it: nothing is given away here.
void takePasswordAway(Database& database, const QString& code) {
    UserDirectory users(database);
    std::optional<UserData> user = users.byCode(code);
    if (!user || !users.save(*user, QString()))
        throw OptionError(QStringLiteral("Nessun utente ha il codice \u201c%1\u201d.").arg(code));
}

} // namespace

Practice::Practice(std::unique_ptr<Database> database, const UserData& user)
    : database_(std::move(database))
    , users_(*database_)
    , signIn_(*database_)
    , user_(*database_, user)
    , sql_(*database_, user_.sign())
    , freeData_(*database_, user_.sign())
    , patients_(*database_, user_.sign()) {}

std::unique_ptr<Practice> Practice::open(const Options& options) {
    auto database = openDatabase(options);
    if (options.demo) DemoPractice::fill(*database);
    if (!options.forgottenCode.isEmpty()) takePasswordAway(*database, options.forgottenCode);
    const UserData user = whoSignsIn(*database, options);
    return std::unique_ptr<Practice>(new Practice(std::move(database), user));
}

std::unique_ptr<PatientRecord> Practice::newPatient() {
    return std::make_unique<PatientRecord>(*database_, user_.sign(), hooks_);
}

} // namespace desk
