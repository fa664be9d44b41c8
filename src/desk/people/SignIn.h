#pragma once

#include "desk/people/PasswordHash.h"

#include <QDateTime>
#include <QString>
#include <functional>
#include <optional>

namespace desk {

class Database;

/// Checks the passwords of users, and slows down whoever guesses: after five wrong ones in a row each further try has
/// to wait, longer every time. The tries are kept in the database, so that a new start does not forget them. Borrows
/// the database; throws DatabaseError, and then nobody gets in.
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
    int secondsToWait(const QString& code); ///< 0 when a try may be made now.

private:
    struct Account {
        QString id;
        QString hash;
        int tries = 0;
        QDateTime last;
    };
    std::optional<Account> find(const QString& code);
    static int waitOf(const Account& account);
    void countTry(const Account& account);
    void forgetTries(const Account& account);

    Database& database_;
    Verify verify_;
};

} // namespace desk
