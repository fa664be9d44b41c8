#include "desk/data/Query.h"

#include "desk/data/Database.h"

#include <QSqlError>
#include <optional>

namespace desk {

namespace {

/// The number that stands in some places of a text; nothing when there is anything else.
std::optional<int> numberAt(QStringView text, qsizetype place, qsizetype digits) {
    int number = 0;
    for (const QChar c : text.mid(place, digits)) {
        if (c < u'0' || c > u'9') return std::nullopt;
        number = 10 * number + (c.unicode() - u'0');
    }
    return number;
}

/// "2025-03-01 09:30:00", as this program writes it. Qt's own reading of it took longer than the rest of a patient's
/// row.
std::optional<QDateTime> usualMoment(QStringView text) {
    if (text.size() != 19 || text[4] != u'-' || text[7] != u'-' || text[13] != u':' || text[16] != u':') return {};
    const auto year = numberAt(text, 0, 4), month = numberAt(text, 5, 2), day = numberAt(text, 8, 2);
    const auto hour = numberAt(text, 11, 2), minute = numberAt(text, 14, 2), second = numberAt(text, 17, 2);
    if (!year || !month || !day || !hour || !minute || !second) return {};
    const QDate date(*year, *month, *day);
    const QTime time(*hour, *minute, *second);
    if (!date.isValid() || !time.isValid()) return {};
    return QDateTime(date, time);
}

} // namespace

Query::Query(Database& database, QString sql, std::unique_ptr<QSqlQuery> statement)
    : database_(&database)
    , sql_(std::move(sql))
    , statement_(std::move(statement)) {}

Query::~Query() {
    if (statement_) database_->giveBack(sql_, std::move(statement_));
}

bool Query::next() {
    const HangGuard::Wait wait(database_->guard());
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
    if (const std::optional<QDateTime> usual = usualMoment(text)) return *usual;
    if (text.size() > 10) text[10] = QLatin1Char('T');
    return QDateTime::fromString(text, Qt::ISODate);
}

} // namespace desk
