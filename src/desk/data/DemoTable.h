#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace desk {

/// One table of the demo practice: tab-separated text, its first line the names of the columns.
class DemoTable {
public:
    explicit DemoTable(const QString& name); ///< Throws DatabaseError when the program was built without it.

    int size() const { return static_cast<int>(rows_.size()); }
    QString text(int row, const char* column) const;
    int number(int row, const char* column) const { return text(row, column).toInt(); }

private:
    QHash<QString, int> columns_;
    QList<QStringList> rows_;
};

} // namespace desk
