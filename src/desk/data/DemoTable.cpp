#include "desk/data/DemoTable.h"

#include "desk/data/DatabaseError.h"

#include <QFile>

namespace desk {

DemoTable::DemoTable(const QString& name) {
    QFile file(QStringLiteral(":/desk/data/demo/%1.tsv").arg(name));
    if (!file.open(QIODevice::ReadOnly)) throw DatabaseError(QStringLiteral("Mancano i dati di prova «%1».").arg(name));
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QStringList head = lines.takeFirst().split(QLatin1Char('\t'));
    for (int i = 0; i < head.size(); ++i)
        columns_.insert(head[i], i);
    for (const QString& line : lines)
        rows_ << line.split(QLatin1Char('\t'));
}

QString DemoTable::text(int row, const char* column) const {
    return rows_[row].value(columns_.value(QLatin1String(column), -1));
}

} // namespace desk
