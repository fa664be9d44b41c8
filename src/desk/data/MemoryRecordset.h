#pragma once

#include "host/contract/Database.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <cstddef>
#include <vector>

namespace desk {

class Query;

/// A result read whole into memory, so that no statement stays open behind it.
class MemoryRecordset : public host::Recordset {
public:
    explicit MemoryRecordset(Query& query); ///< Reads the rows that are left in the query.

    int RecordCount() const override { return rows_; }
    bool isEOF() const override { return current_ >= rows_; }
    void MoveNext() override;
    QVariant value(const QString& column) const override;
    QString text(const QString& column) const override;

private:
    QHash<QString, int> columns_; ///< By lower-case name.
    std::vector<QVariant> cells_;
    std::size_t width_ = 0;
    int rows_ = 0;
    int current_ = 0;
};

} // namespace desk
