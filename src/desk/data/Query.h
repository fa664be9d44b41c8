#pragma once

#include <QDate>
#include <QDateTime>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <memory>

namespace desk {

class Database;

/// The rows of one statement that has run; before the first one until `next`. On destruction the prepared statement
/// goes back to the database for the next use, so a Query lives as short as it can and never longer than its Database.
class Query {
public:
    Query(Database& database, QString sql, std::unique_ptr<QSqlQuery> statement);
    ~Query();
    Query(Query&&) noexcept = default;
    Query& operator=(Query&&) = delete;

    bool next(); ///< Throws DatabaseError when the rows break off: a part is never taken for the whole.
    QVariant value(int column) const;
    QString text(int column) const;     ///< A null string for a null.
    int number(int column) const;       ///< 0 for a null.
    QDateTime moment(int column) const; ///< Invalid for a null or what is no date.
    QDate date(int column) const;
    int affectedRows() const;
    QSqlQuery& statement() { return *statement_; }

private:
    Database* database_;
    QString sql_;
    std::unique_ptr<QSqlQuery> statement_;
};

/// The stored form of a moment, "yyyy-MM-dd HH:mm:ss", and of a date; a null for an invalid one.
QVariant storedMoment(const QDateTime& moment);
QVariant storedDate(const QDate& date);
/// Reads a stored moment, whichever of its forms the driver gives.
QDateTime momentOf(const QVariant& stored);

} // namespace desk
