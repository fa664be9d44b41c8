#include "desk/data/Database.h"

#include "desk/data/Migrations.h"
#include "desk/data/PatientCache.h"
#include "desk/data/Transaction.h"

#include <QLoggingCategory>
#include <QSqlError>
#include <QThread>
#include <utility>

namespace desk {

namespace {

Q_LOGGING_CATEGORY(lcData, "tessara.desk.data")

QString nextConnectionName() {
    static int count = 0;
    return QStringLiteral("tessara-%1").arg(++count);
}

constexpr int longWait = 1000; // milliseconds that a refusal takes on a network that is down
constexpr int silence = 3000;  // milliseconds for which such a server is not asked again: the windows would stand still

class ConnectionLost : public DatabaseError {
public:
    using DatabaseError::DatabaseError;
};

QString refusalOf(const DatabaseUrl& url, const DatabaseError& error) {
    return QStringLiteral("Impossibile aprire l'archivio «%1».\n%2").arg(url.toDisplay(), error.text());
}

bool onlyReads(const QString& sql) {
    return sql.trimmed().startsWith(QLatin1String("select"), Qt::CaseInsensitive);
}

} // namespace

std::unique_ptr<Database> Database::open(const DatabaseUrl& url) {
    std::unique_ptr<Database> database(new Database(url, Dialect::forKind(url.kind)));
    try {
        database->connect();
    } catch (const DamagedArchive& damage) {
        throw DamagedArchive(refusalOf(url, damage));
    } catch (const DatabaseError& error) {
        throw DatabaseError(refusalOf(url, error));
    }
    database->noticeOthers();
    return database;
}

Database::Database(const DatabaseUrl& url, std::unique_ptr<Dialect> dialect)
    : url_(url)
    , dialect_(std::move(dialect))
    , connectionName_(nextConnectionName())
    , patients_(std::make_unique<PatientCache>(*this)) {}

Database::~Database() {
    disconnect();
}

QString Database::schema() const {
    return QStringLiteral("tessara");
}

// --------------------------------------------------------------------------------------------------------- connection

void Database::connect() {
    const QScopedValueRollback<bool> connecting(connecting_, true);
    connection_ = QSqlDatabase::addDatabase(dialect_->driver(), connectionName_);
    lost_ = false;
    dialect_->open(connection_, url_, schema());
    guardConnection();
    {
        const HangGuard::Wait wait(guard());
        dialect_->enter(connection_, schema());
    }
    Migrations(*this).bringUpToDate();
    const HangGuard::Wait wait(guard());
    dialect_->settle(connection_, schema());
}

void Database::guardConnection() {
    guard_.reset();
    if (const std::optional<int> socket = dialect_->socketOf(connection_))
        guard_ = std::make_unique<HangGuard>(*socket, patience_);
}

void Database::setPatience(int milliseconds) {
    patience_ = milliseconds;
    if (guard_) guardConnection();
}

void Database::disconnect() {
    // Statements of a lost connection must outlive it: they would try to tell the server that they are done.
    if (!isLost()) {
        const HangGuard::Wait wait(guard());
        failed_.clear();
        idle_.clear();
        connection_.close();
    }
    guard_.reset();
    connection_ = QSqlDatabase(); // the name can only be taken back when no handle is left
    if (QSqlDatabase::contains(connectionName_)) QSqlDatabase::removeDatabase(connectionName_);
    failed_.clear();
    idle_.clear();
}

// Not within a transaction: what it wrote is gone, and the rest of it must fail too.
void Database::ensureConnected() {
    if (connecting_ || transactionDepth_ > 0 || !isLost()) return;
    const ConnectionLost noAnswer(dialect_->lossText());
    if (sinceSilence_.isValid() && !sinceSilence_.hasExpired(silence)) throw noAnswer;
    sinceSilence_.invalidate();
    QElapsedTimer patience;
    patience.start();
    try {
        disconnect();
        connect();
    } catch (const DatabaseError&) {
        lost_ = true;
        if (patience.hasExpired(longWait)) sinceSilence_.start();
        throw;
    }
    ++generation_;
    if (std::exchange(lossTold_, false) && listener_.recovered) listener_.recovered();
}

bool Database::reopen(bool alone) {
    dialect_->setAlone(alone);
    try {
        disconnect();
        connect();
    } catch (const DatabaseError&) {
        lost_ = true;
        return false;
    }
    ++generation_;
    return true;
}

void Database::replaceContent(const std::function<void()>& work) {
    Transaction transaction(*this);
    work();
    Migrations(*this).bringUpToDate();
    transaction.commit();
}

// --------------------------------------------------------------------------------------------------------- statements

Query Database::run(const QString& sql, const QVariantList& values) {
    return attempt(onlyReads(sql), [&] {
        const HangGuard::Wait wait(guard());
        std::unique_ptr<QSqlQuery> statement;
        if (auto idle = idle_.extract(sql)) {
            statement = std::move(idle.mapped());
        } else {
            statement = newStatement();
            if (!statement->prepare(dialect_->expand(sql, schema()))) fail(*statement);
        }
        for (int i = 0; i < values.size(); ++i)
            statement->bindValue(i, values[i]);
        return executed(sql, std::move(statement));
    });
}

// Preparing refuses a second statement in the text on every database system.
Query Database::runText(const QString& sql) {
    return attempt(onlyReads(sql), [&] {
        const HangGuard::Wait wait(guard());
        auto statement = newStatement();
        if (!statement->prepare(sql)) fail(*statement);
        return executed(QString(), std::move(statement));
    });
}

Query Database::command(const QString& sql) {
    const bool begins = transactionDepth_ == 0 && sql.startsWith(QLatin1String("begin"));
    return attempt(begins, [&] {
        const HangGuard::Wait wait(guard());
        auto statement = newStatement();
        if (!statement->exec(sql)) fail(*statement);
        ++generation_;
        return Query(*this, QString(), std::move(statement));
    });
}

Query Database::attempt(bool mayRepeat, const std::function<Query()>& step) {
    try {
        if (transactionDepth_ > 0 && !transactionFault_.isEmpty()) throw DatabaseError(transactionFault_);
        ensureConnected();
        try {
            return step();
        } catch (const ConnectionLost&) {
            if (!mayRepeat || transactionDepth_ > 0) throw;
        }
        ensureConnected();
        return step();
    } catch (const DatabaseError& error) {
        tell(error);
        throw;
    }
}

std::unique_ptr<QSqlQuery> Database::newStatement() const {
    auto statement = std::make_unique<QSqlQuery>(connection_);
    statement->setForwardOnly(true);
    return statement;
}

Query Database::executed(const QString& sql, std::unique_ptr<QSqlQuery> statement) {
    if (!statement->exec()) {
        // A server cannot free a statement inside the transaction that it broke, nor on a connection that it ended: it
        // must live on.
        failed_.push_back(std::move(statement));
        fail(*failed_.back());
    }
    if (!statement->isSelect()) ++generation_;
    return Query(*this, sql, std::move(statement));
}

void Database::fail(const QSqlQuery& statement) {
    const QSqlError error = statement.lastError();
    qCWarning(lcData).noquote() << error.nativeErrorCode() << error.databaseText().section(QLatin1Char('\n'), 0, 0)
                                << "in" << statement.lastQuery().left(200);
    lost_ = lost_ || dialect_->endsConnection(error);
    if (isLost()) throw ConnectionLost(dialect_->lossText());
    if (transactionDepth_ == 0) failed_.clear();
    const QString text = dialect_->explain(error);
    if (transactionDepth_ > 0 && dialect_->endsTransaction(error)) transactionFault_ = text;
    if (dialect_->tellsDamage(error)) throw DamagedArchive(text);
    throw DatabaseError(text);
}

void Database::failedWhileReading(const QSqlQuery& statement) {
    try {
        fail(statement);
    } catch (const DatabaseError& error) {
        tell(error);
        throw;
    }
}

void Database::tell(const DatabaseError& error) {
    if (connecting_) return; // whoever connects tells
    failure_ = error.text();
    if (quiet_) return;
    lossTold_ = lossTold_ || isLost();
    if (listener_.failed) listener_.failed(error.text(), isLost());
}

QString Database::transactionName() {
    if (dialect_->transactionName().isEmpty()) return {};
    Query name = run(dialect_->transactionName());
    return name.next() ? name.text(0) : QString();
}

bool Database::wasCommitted(const QString& transaction) {
    if (transaction.isEmpty()) return false;
    try {
        for (int look = 0; look < 20; ++look) {
            Query fate = run(dialect_->transactionFate(), {transaction});
            const QString answer = fate.next() ? fate.text(0) : QString();
            if (answer != QLatin1String("in progress")) return answer == QLatin1String("committed");
            QThread::msleep(100); // the server has not noticed yet that its client is gone
        }
    } catch (const DatabaseError&) {
        // Still away.
    }
    return false;
}

// An empty text marks a statement that nobody will ask for again.
void Database::giveBack(const QString& sql, std::unique_ptr<QSqlQuery> statement) {
    if (isLost() || statement->driver() != connection_.driver()) {
        if (isLost()) failed_.push_back(std::move(statement));
        return;
    }
    const HangGuard::Wait wait(guard());
    statement->finish();
    if (!sql.isEmpty()) idle_.insert_or_assign(sql, std::move(statement));
}

bool Database::isEmpty() {
    Query query = run(QStringLiteral(
        "select (select count(*) from {schema}.tblPazienti) + (select count(*) from {schema}.tblWorkspace)"));
    return !query.next() || query.number(0) == 0;
}

std::optional<qint64> Database::foreignWrites() {
    const QString question = dialect_->foreignWrites();
    if (question.isEmpty()) return std::nullopt;
    try {
        Query number = run(question);
        if (number.next()) return number.value(0).toLongLong();
    } catch (const DatabaseError&) {
        // Whoever asks for rows next is told of it.
    }
    return std::nullopt;
}

void Database::noticeOthers() {
    const std::optional<qint64> seen = foreignWrites();
    if (!seen || seen != othersSeen_) ++generation_;
    othersSeen_ = seen;
}

} // namespace desk
