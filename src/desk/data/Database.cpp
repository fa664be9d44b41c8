#include "desk/data/Database.h"

#include "desk/data/Migrations.h"
#include "desk/data/PatientCache.h"

#include <QLoggingCategory>
#include <QSqlError>

namespace desk {

namespace {

Q_LOGGING_CATEGORY(lcData, "tessara.desk.data")

QString nextConnectionName() {
    static int count = 0;
    return QStringLiteral("tessara-%1").arg(++count);
}

} // namespace

std::unique_ptr<Database> Database::open(const DatabaseUrl& url) {
    std::unique_ptr<Database> database(new Database(url, Dialect::forKind(url.kind)));
    try {
        database->dialect_->open(database->connection_, url, database->schema());
        Migrations(*database).bringUpToDate();
        database->dialect_->settle(database->connection_, database->schema());
    } catch (const DatabaseError& error) {
        throw DatabaseError(
            QStringLiteral("Impossibile aprire l'archivio «%1».\n%2").arg(url.toDisplay(), error.text()));
    }
    database->noticeOthers();
    return database;
}

Database::Database(const DatabaseUrl& url, std::unique_ptr<Dialect> dialect)
    : url_(url)
    , dialect_(std::move(dialect))
    , connectionName_(nextConnectionName())
    , connection_(QSqlDatabase::addDatabase(dialect_->driver(), connectionName_))
    , patients_(std::make_unique<PatientCache>(*this)) {}

Database::~Database() {
    failed_.clear();
    idle_.clear();
    connection_.close();
    connection_ = QSqlDatabase(); // the name can only be taken back when no handle is left
    QSqlDatabase::removeDatabase(connectionName_);
}

QString Database::schema() const {
    return QStringLiteral("tessara");
}

Query Database::run(const QString& sql, const QVariantList& values) {
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
}

// Preparing refuses a second statement in the text on every database system.
Query Database::runText(const QString& sql) {
    auto statement = newStatement();
    if (!statement->prepare(sql)) fail(*statement);
    return executed(QString(), std::move(statement));
}

Query Database::command(const QString& sql) {
    auto statement = newStatement();
    if (!statement->exec(sql)) fail(*statement);
    ++generation_;
    return Query(*this, QString(), std::move(statement));
}

std::unique_ptr<QSqlQuery> Database::newStatement() const {
    auto statement = std::make_unique<QSqlQuery>(connection_);
    statement->setForwardOnly(true);
    return statement;
}

Query Database::executed(const QString& sql, std::unique_ptr<QSqlQuery> statement) {
    if (!statement->exec()) {
        // A server cannot free a statement inside the transaction that it broke, so that it must live on.
        const QSqlQuery& failed = *statement;
        if (transactionDepth_ > 0) failed_.push_back(std::move(statement));
        fail(failed);
    }
    if (!statement->isSelect()) ++generation_;
    return Query(*this, sql, std::move(statement));
}

void Database::fail(const QSqlQuery& statement) const {
    const QSqlError error = statement.lastError();
    qCWarning(lcData).noquote() << error.nativeErrorCode() << error.databaseText().section(QLatin1Char('\n'), 0, 0)
                                << "in" << statement.lastQuery().left(200);
    throw DatabaseError(dialect_->explain(error));
}

// An empty text marks a statement that nobody will ask for again.
void Database::giveBack(const QString& sql, std::unique_ptr<QSqlQuery> statement) {
    statement->finish();
    if (!sql.isEmpty()) idle_.insert_or_assign(sql, std::move(statement));
}

bool Database::isEmpty() {
    Query query = run(QStringLiteral(
        "select (select count(*) from {schema}.tblPazienti) + (select count(*) from {schema}.tblWorkspace)"));
    return !query.next() || query.number(0) == 0;
}

void Database::noticeOthers() {
    const std::optional<qint64> seen = dialect_->foreignWrites(connection_, schema());
    if (!seen || seen != othersSeen_) ++generation_;
    othersSeen_ = seen;
}

} // namespace desk
