#include "desk/data/MemoryRecordset.h"

#include "desk/data/Query.h"

#include <QByteArray>
#include <QDateTime>
#include <QMetaType>
#include <QSqlRecord>

namespace desk {

namespace {

constexpr qsizetype LONG_TEXT = 256;

/// A long text at half its size: a list of the whole practice holds the memos of years at once.
QVariant packed(const QVariant& value) {
    if (value.typeId() != QMetaType::QString) return value;
    const auto* text = static_cast<const QString*>(value.constData());
    if (text->size() < LONG_TEXT) return value;
    QByteArray utf8 = text->toUtf8();
    utf8.squeeze(); // The conversion leaves room for three bytes a character.
    return utf8;
}

} // namespace

MemoryRecordset::MemoryRecordset(Query& query) {
    const QSqlRecord record = query.statement().record();
    for (int i = 0; i < record.count(); ++i) {
        const QString name = record.fieldName(i).toLower();
        if (!columns_.contains(name)) columns_.insert(name, i);
    }
    width_ = static_cast<std::size_t>(record.count());
    for (; query.next(); ++rows_) {
        for (int i = 0; i < record.count(); ++i)
            cells_.push_back(packed(query.value(i)));
    }
}

void MemoryRecordset::MoveNext() {
    if (!isEOF()) ++current_;
}

QVariant MemoryRecordset::value(const QString& column) const {
    const auto found = columns_.constFind(column.toLower());
    if (isEOF() || found == columns_.cend()) return {};
    return cells_[static_cast<std::size_t>(current_) * width_ + static_cast<std::size_t>(*found)];
}

QString MemoryRecordset::text(const QString& column) const {
    const QVariant cell = value(column);
    if (cell.typeId() == QMetaType::QDateTime || cell.typeId() == QMetaType::QDate)
        return storedMoment(cell.toDateTime()).toString();
    return cell.toString();
}

} // namespace desk
