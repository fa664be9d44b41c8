#pragma once

#include "desk/people/PasswordHash.h"

#include <QString>
#include <QVariantList>
#include <functional>
#include <optional>

namespace desk {

class Database;

/// Checks the passwords of users, and slows down whoever guesses: after five wrong ones in a row each further try has
/// to wait, longer every time. The tries are kept in the database, so that a new start does not forget them and several
/// workstations have no more of them than one; the wait runs by a clock that nobody can turn, whatever the time of day
/// says. Borrows the database; throws DatabaseError, and then nobody gets in.
class SignIn {
public:
    enum class Outcome { Accepted, Wrong, Wait };
    using Verify = std::function<bool(const QString& hash, const QString& password)>;
    static constexpr int freeTries = 5;
    static constexpr int firstWait = 30; ///< Seconds.
    static constexpr int longestWait = 900;

    explicit SignIn(Database& database, Verify verify = verifyPassword)
        : database_(database)
        , verify_(std::move(verify)) {}

    /// One try. A user without a password is accepted with any; while there is a wait, nothing is even compared. For a
    /// code that nobody has, or nobody active, the answer is Wrong and takes as long as any.
    Outcome attempt(const QString& code, const QString& password);
    /// 0 when a try may be made now. A wait that another clock measured, the computer having been started anew since,
    /// begins again.
    int secondsToWait(const QString& code);

private:
    struct Account {
        QString id;
        QString hash;
    };
    std::optional<Account> find(const QString& code);
    /// A clock that nobody can turn, and which one it is.
    struct Moment {
        QString clock;
        qint64 seconds = 0;
    };
    Moment now();
    bool takeTry(const Account& account); ///< Counts it; false when it may not be made yet.
    void beginWaitAnew(const Account& account, const Moment& now);
    void forgetTries(const Account& account);
    void write(const QString& sql, const QVariantList& values);
    static int waitAfter(int tries);

    Database& database_;
    Verify verify_;
};

} // namespace desk
