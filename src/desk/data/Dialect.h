#pragma once

#include "desk/data/DatabaseUrl.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

class QSqlDatabase;
class QSqlError;

namespace desk {

/// Everything in which one database system differs from another; no other class asks which one it is. Statements are
/// written with "{schema}." before each table name, and `expand` makes them fit.
class Dialect {
public:
    virtual ~Dialect() = default;
    static std::unique_ptr<Dialect> forKind(DatabaseUrl::Kind kind);

    virtual QString driver() const = 0; ///< Qt's name of the driver.
    /// Opens the connection so that `schema` is there to be filled or read, waiting briefly for others; throws
    /// DatabaseError.
    virtual void open(QSqlDatabase& connection, const DatabaseUrl& url, const QString& schema) const = 0;
    /// Whether the next connections have the database to themselves, and fail where they cannot; only where that is
    /// done by the connection.
    virtual void setAlone(bool) {}
    /// The first steps on a connection that stands, such as waiting until another workstation has brought the tables up
    /// to date; throws DatabaseError.
    virtual void enter(QSqlDatabase& connection, const QString& schema) const;
    /// Takes up the settings of every day, after the version was found to be good; throws DatabaseError.
    virtual void settle(QSqlDatabase& connection, const QString& schema) const = 0;

    /// The handle over which the connection waits for answers; nothing where no other side can keep silent.
    virtual std::optional<int> socketOf(const QSqlDatabase& connection) const;

    /// A statement that begins with "{sqlite}" is for that system alone; for another one nothing is left of it.
    virtual QString expand(const QString& sql, const QString& schema) const = 0;
    virtual QString beginWriting() const = 0; ///< Statement that starts a transaction which is going to write.
    /// Statements that start one which reads all tables as they stood at a single moment, however long it takes.
    virtual QStringList beginReading() const = 0;
    /// A question that makes every other transaction wait which asks it with the same bound text, until this one is
    /// over; empty where a transaction that writes is alone anyway.
    virtual QString claim() const { return {}; }
    virtual QString tables(const QString& schema) const = 0;   ///< A query for the names of all tables.
    virtual QString contains(const QString& column) const = 0; ///< That the bound text occurs in it, letter by letter.
    virtual QString longText(const QString& column) const = 0; ///< The column as a long text is read fastest.
    /// A question for a number that changes when another connection has written; empty when the system cannot tell.
    virtual QString foreignWrites() const { return {}; }
    /// What went wrong in words for the user.
    virtual QString explain(const QSqlError& error) const = 0;
    virtual bool endsConnection(const QSqlError& error) const = 0; ///< After it, no statement can succeed any more.
    virtual bool tellsDamage(const QSqlError& error) const;        ///< That the file is no whole archive any more.
    /// After it the system may have rolled back by itself: what followed would be stored alone.
    virtual bool endsTransaction(const QSqlError& error) const = 0;
    /// Questions for the name of the transaction at work, and whether the one of the bound name is "committed" or still
    /// "in progress"; empty where the end of a commit cannot get lost.
    virtual QString transactionName() const { return {}; }
    virtual QString transactionFate() const { return {}; }
    /// A question for the seconds of the server's own clock, which no workstation can turn; empty without a server.
    virtual QString serverSeconds() const { return {}; }
    virtual QString lossText() const = 0; ///< What the user reads while the connection is gone.
};

} // namespace desk
