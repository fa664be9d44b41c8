#pragma once

#include "desk/data/DatabaseError.h"
#include "desk/data/DatabaseUrl.h"
#include "desk/data/Dialect.h"
#include "desk/data/Query.h"

#include <QSqlDatabase>
#include <QString>
#include <QVariantList>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace desk {

class PatientCache;

/// The practice's database, open and of the present version. One connection, for the interface thread. Owned by the
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

private:
    friend class Query;
    friend class Transaction;
    Database(const DatabaseUrl& url, std::unique_ptr<Dialect> dialect);
    void giveBack(const QString& sql, std::unique_ptr<QSqlQuery> statement);
    std::unique_ptr<QSqlQuery> newStatement() const;
    Query executed(const QString& sql, std::unique_ptr<QSqlQuery> statement);
    [[noreturn]] void fail(const QSqlQuery& statement) const;

    DatabaseUrl url_;
    std::unique_ptr<Dialect> dialect_;
    QString connectionName_;
    QSqlDatabase connection_;
    std::unordered_map<QString, std::unique_ptr<QSqlQuery>> idle_; ///< Prepared, not in use.
    std::vector<std::unique_ptr<QSqlQuery>> failed_; ///< Until the transaction in which they failed is over.
    std::unique_ptr<PatientCache> patients_;
    std::optional<qint64> othersSeen_;
    quint64 generation_ = 1;
    int transactionDepth_ = 0;
    bool transactionDoomed_ = false; ///< An inner one was not committed, so the outer one must not be.
};

} // namespace desk
