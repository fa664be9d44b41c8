#include "desk/data/Query.h"

#include "desk/data/Database.h"

#include <QSqlError>

namespace desk {

Query::Query(Database& database, QString sql, std::unique_ptr<QSqlQuery> statement)
    : database_(&database)
    , sql_(std::move(sql))
    , statement_(std::move(statement)) {}

Query::~Query() {
    if (statement_) database_->giveBack(sql_, std::move(statement_));
}

bool Query::next() {
    if (statement_->next()) return true;
    if (statement_->lastError().isValid()) database_->failedWhileReading(*statement_);
    return false;
}

QVariant Query::value(int column) const {
    return statement_->isNull(column) ? QVariant() : statement_->value(column);
}

QString Query::text(int column) const {
    return value(column).toString();
}

int Query::number(int column) const {
    return value(column).toInt();
}

QDateTime Query::moment(int column) const {
    return momentOf(value(column));
}

QDate Query::date(int column) const {
    return momentOf(value(column)).date();
}

int Query::affectedRows() const {
    return statement_->numRowsAffected();
}

QVariant storedMoment(const QDateTime& moment) {
    if (!moment.isValid()) return {};
    return moment.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QVariant storedDate(const QDate& date) {
    if (!date.isValid()) return {};
    return date.toString(QStringLiteral("yyyy-MM-dd"));
}

QDateTime momentOf(const QVariant& stored) {
    if (stored.typeId() != QMetaType::QString) return stored.toDateTime();
    QString text = stored.toString();
    if (text.size() > 10) text[10] = QLatin1Char('T');
    return QDateTime::fromString(text, Qt::ISODate);
}

} // namespace desk
