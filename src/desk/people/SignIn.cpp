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
    // Counted before it is judged: who stops the program in between gains no try.
    if (account && !takeTry(*account)) return Outcome::Wait;
    const bool fits = verify_(account ? account->hash : nobodysHash(), password);
    if (!account || !fits) return Outcome::Wrong;
    forgetTries(*account);
    return Outcome::Accepted;
}

int SignIn::secondsToWait(const QString& code) {
    const std::optional<Account> account = find(code);
    if (!account || account->hash.isEmpty()) return 0;
    const Moment moment = now();
    beginWaitAnew(*account, moment);
    Query query = database_.run(QStringLiteral("select tentativi, istante from {schema}.tblUtenti where ID = ?"), {account->id});
    if (!query.next()) return 0;
    const qint64 elapsed = moment.seconds - query.value(1).toLongLong();
    return static_cast<int>(std::max<qint64>(0, waitAfter(query.number(0)) - elapsed));
}

SignIn::Moment SignIn::now() {
    const QString question = database_.dialect().serverSeconds();
    if (question.isEmpty()) return {platform::nameOfStart(), platform::secondsSinceStart()};
    Query seconds = database_.run(question);
    return {QStringLiteral("server"), seconds.next() ? seconds.value(0).toLongLong() : 0};
}

std::optional<SignIn::Account> SignIn::find(const QString& code) {
    const std::optional<UserData> user = UserDirectory(database_).byCode(code);
    if (!user || !user->attivo) return std::nullopt;
    Query query = database_.run(QStringLiteral("select ID, improntapassword from {schema}.tblUtenti where ID = ?"), {user->ID});
    if (!query.next()) return std::nullopt;
    return Account{query.text(0), query.text(1)};
}

int SignIn::waitAfter(int tries) {
    const int doublings = std::clamp(tries - freeTries, 0, 10);
    return tries < freeTries ? 0 : std::min(firstWait << doublings, longestWait);
}

// One statement decides and counts, so that of many who try at once no more get through than of one.
bool SignIn::takeTry(const Account& account) {
    const Moment moment = now();
    beginWaitAnew(account, moment);
    QString wait = QStringLiteral("case tentativi");
    for (int tries = freeTries; waitAfter(tries) < longestWait; ++tries)
        wait += QStringLiteral(" when %1 then %2").arg(tries).arg(waitAfter(tries));
    wait += QStringLiteral(" else %1 end").arg(longestWait);
    Transaction transaction(database_);
    const int counted =
        database_
            .run(QStringLiteral("update {schema}.tblUtenti set tentativi = tentativi + 1, istante = ?, orologio = ? "
                                "where ID = ? and (tentativi < %1 or (orologio = ? and ? - istante >= %2))")
                     .arg(freeTries)
                     .arg(wait),
                 {moment.seconds, moment.clock, account.id, moment.clock, moment.seconds})
            .affectedRows();
    transaction.commit();
    return counted == 1;
}

// A clock that began anew, with the computer, cannot tell how long ago the last try was.
void SignIn::beginWaitAnew(const Account& account, const Moment& now) {
    const QString another = QStringLiteral("ID = ? and tentativi >= %1 and (istante is null or orologio is null or "
                                           "orologio <> ? or istante > ?)")
                                .arg(freeTries);
    const QVariantList values{account.id, now.clock, now.seconds + 1};
    if (!database_.run(QStringLiteral("select 1 from {schema}.tblUtenti where ") + another, values).next()) return;
    write(QStringLiteral("update {schema}.tblUtenti set istante = ?, orologio = ? where ") + another,
          QVariantList{now.seconds, now.clock} + values);
}

void SignIn::forgetTries(const Account& account) {
    write(QStringLiteral("update {schema}.tblUtenti set tentativi = 0, istante = null where ID = ?"), {account.id});
}

void SignIn::write(const QString& sql, const QVariantList& values) {
    Transaction transaction(database_);
    database_.run(sql, values);
    transaction.commit();
}

} // namespace desk
