#pragma once

#include "desk/data/DatabaseError.h"
#include "desk/data/DatabaseUrl.h"
#include "desk/data/Dialect.h"
#include "desk/data/HangGuard.h"
#include "desk/data/Query.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>
#include <QSqlDatabase>
#include <QString>
#include <QVariantList>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace desk {

class PatientCache;

/// The practice's database, open and of the present version. One connection, for the interface thread; one that was
/// lost is made anew by the next call, and a call that had not written anything by then is simply done. Owned by the
/// program's assembly; everything else in this folder borrows it and must die before it.
class Database {
public:
    /// Opens the database, creating it where there is nothing yet and bringing an older version up to date. Throws
    /// DatabaseError, and leaves what it found as it was, when that cannot be done.
    static std::unique_ptr<Database> open(const DatabaseUrl& url);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    QString schema() const; ///< Prefix of table names in SQL text.
    const Dialect& dialect() const { return *dialect_; }
    const DatabaseUrl& url() const { return url_; }

    /// Hears of failures and of the first success after one; it may not use the database while it is told.
    struct Listener {
        std::function<void(const QString& text, bool connectionLost)> failed;
        std::function<void()> recovered;
    };
    void setListener(Listener listener) { listener_ = std::move(listener); }
    /// While it lives the listener hears nothing: whoever works tells the user what failed.
    class Quiet {
    public:
        explicit Quiet(Database& database)
            : quiet_(database.quiet_, true) {}

    private:
        QScopedValueRollback<bool> quiet_;
    };
    /// What failed last since it was last asked; empty for nothing. For windows over collections that answer only
    /// false or an empty list.
    QString takeFailure() { return std::exchange(failure_, QString()); }

    /// Runs one statement with bound values; "{schema}." stands before table names. Prepared once and used again.
    /// Throws DatabaseError.
    Query run(const QString& sql, const QVariantList& values = {});
    /// Runs the text of a caller as it stands, one statement that reads or changes rows; throws DatabaseError.
    Query runText(const QString& sql);
    /// Runs a command that is about tables or transactions; throws DatabaseError.
    Query command(const QString& sql);

    bool isEmpty(); ///< No patient and no record in it.
    /// Rises with every write through this object and with those of others that `noticeOthers` found.
    quint64 generation() const { return generation_; }
    void noticeOthers(); ///< Asks whether another workstation has written since; cheap.
    PatientCache& patients() { return *patients_; }

    /// Puts other data in the place of all there are, in one transaction: what `work` leaves is brought up to date, and
    /// nothing has happened when it throws. Throws DatabaseError.
    void replaceContent(const std::function<void()>& work);
    /// Connects anew, so that nothing is kept from before: alone, where the system can do that, or as every day. False
    /// when it could not; the next call then tries again.
    bool reopen(bool alone);

    /// How long a server may keep silent before it counts as lost.
    void setPatience(int milliseconds);
    /// While it lives nothing does: some work on tables takes a server very long.
    class Unhurried {
    public:
        explicit Unhurried(Database& database)
            : unhurried_(database.unhurried_, true) {}

    private:
        QScopedValueRollback<bool> unhurried_;
    };

private:
    friend class Query;
    friend class Transaction;
    Database(const DatabaseUrl& url, std::unique_ptr<Dialect> dialect);
    void giveBack(const QString& sql, std::unique_ptr<QSqlQuery> statement);
    std::unique_ptr<QSqlQuery> newStatement() const;
    Query executed(const QString& sql, std::unique_ptr<QSqlQuery> statement);
    /// Runs the step on a connection that stands. One that turns out to be gone is made anew; then the step is done
    /// again if it `mayRepeat`, since it can have left nothing behind. Tells the listener what failed in the end.
    Query attempt(bool mayRepeat, const std::function<Query()>& step);
    [[noreturn]] void fail(const QSqlQuery& statement);
    [[noreturn]] void failedWhileReading(const QSqlQuery& statement);
    void tell(const DatabaseError& error);
    std::optional<qint64> foreignWrites();
    QString transactionName();                     ///< Empty when it wrote nothing.
    bool wasCommitted(const QString& transaction); ///< Asked after the connection broke; false when nobody can tell.

    void connect();
    void disconnect();
    void ensureConnected();
    void guardConnection();
    HangGuard* guard() const { return unhurried_ ? nullptr : guard_.get(); }
    bool isLost() const { return lost_ || !connection_.isOpen(); }

    DatabaseUrl url_;
    std::unique_ptr<Dialect> dialect_;
    QString connectionName_;
    QSqlDatabase connection_;
    std::unique_ptr<HangGuard> guard_; ///< None where nothing can keep silent.
    int patience_ = 20000;
    std::unordered_map<QString, std::unique_ptr<QSqlQuery>> idle_; ///< Prepared, not in use.
    std::vector<std::unique_ptr<QSqlQuery>> failed_; ///< Until the transaction in which they failed is over.
    std::unique_ptr<PatientCache> patients_;
    std::optional<qint64> othersSeen_;
    quint64 generation_ = 1;
    int transactionDepth_ = 0;
    bool lost_ = false; ///< The connection ended, whatever the driver still thinks of it.
    bool connecting_ = false;
    bool lossTold_ = false;
    bool quiet_ = false;
    bool unhurried_ = false;
    QString failure_;
    QElapsedTimer sinceSilence_; ///< Runs since a server that kept the user waiting gave no answer.
    Listener listener_;
    bool transactionDoomed_ = false; ///< An inner one was not committed, so the outer one must not be.
    QString transactionFault_; ///< Why the system may have rolled back by itself: nothing more is done until the end.
};

} // namespace desk
