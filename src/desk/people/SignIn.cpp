#include "desk/people/SignIn.h"

#include "desk/data/Database.h"
#include "desk/data/Transaction.h"
#include "desk/data/UserDirectory.h"
#include "platform/Clock.h"

#include <algorithm>

namespace desk {

SignIn::Outcome SignIn::attempt(const QString& code, const QString& password) {
    const std::optional<Account> account = find(code);
    if (account && account->hash.isEmpty()) return Outcome::Accepted;
    if (account && waitOf(*account) > 0) {
        // A clock that was wrong for a moment must not shut somebody out until that moment has come.
        if (account->last > platform::now()) {
            Transaction transaction(database_);
            database_.run(QStringLiteral("update {schema}.tblUtenti set ultimotentativo = ? where ID = ?"),
                          {storedMoment(platform::now()), account->id});
            transaction.commit();
        }
        return Outcome::Wait;
    }
    // Counted before it is judged: who stops the program in between gains no try.
    if (account) countTry(*account);
    const bool fits = verify_(account ? account->hash : nobodysHash(), password);
    if (!account || !fits) return Outcome::Wrong;
    forgetTries(*account);
    return Outcome::Accepted;
}

int SignIn::secondsToWait(const QString& code) {
    const std::optional<Account> account = find(code);
    return account && !account->hash.isEmpty() ? waitOf(*account) : 0;
}

std::optional<SignIn::Account> SignIn::find(const QString& code) {
    const std::optional<UserData> user = UserDirectory(database_).byCode(code);
    if (!user || !user->attivo) return std::nullopt;
    Query query = database_.run(
        QStringLiteral("select ID, improntapassword, tentativi, ultimotentativo from {schema}.tblUtenti where ID = ?"),
        {user->ID});
    if (!query.next()) return std::nullopt;
    return Account{query.text(0), query.text(1), query.number(2), query.moment(3)};
}

int SignIn::waitOf(const Account& account) {
    if (account.tries < freeTries || !account.last.isValid()) return 0;
    const int doublings = std::min(account.tries - freeTries, 10);
    const qint64 wait = std::min(firstWait << doublings, longestWait);
    const qint64 elapsed = std::max<qint64>(0, account.last.secsTo(platform::now()));
    return static_cast<int>(std::max<qint64>(0, wait - elapsed));
}

void SignIn::countTry(const Account& account) {
    Transaction transaction(database_);
    database_.run(
        QStringLiteral("update {schema}.tblUtenti set tentativi = tentativi + 1, ultimotentativo = ? where ID = ?"),
        {storedMoment(platform::now()), account.id});
    transaction.commit();
}

void SignIn::forgetTries(const Account& account) {
    Transaction transaction(database_);
    database_.run(QStringLiteral("update {schema}.tblUtenti set tentativi = 0, ultimotentativo = null where ID = ?"),
                  {account.id});
    transaction.commit();
}

} // namespace desk
