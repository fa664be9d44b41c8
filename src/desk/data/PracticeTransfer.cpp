#include "desk/data/PracticeTransfer.h"

#include "desk/data/Database.h"
#include "desk/data/SqliteCopy.h"
#include "desk/data/Transaction.h"

#include <QSqlRecord>
#include <QStringList>
#include <algorithm>

namespace desk {

namespace practice_transfer {

namespace {

/// What others refer to comes first; a table that is not named follows these.
const QStringList& order() {
    static const QStringList tables{QStringLiteral("tblUtenti"), QStringLiteral("tblPazienti"),
                                    QStringLiteral("tblFiles")};
    return tables;
}

QStringList tablesOf(Database& database) {
    QStringList first;
    QStringList others;
    Query names = database.command(database.dialect().tables(database.schema()));
    while (names.next()) {
        const QString name = names.text(0);
        if (name.compare(QLatin1String("tblVersione"), Qt::CaseInsensitive) == 0) continue;
        if (name == QLatin1String(sqlite_copy::FILES_TABLE)) continue; // of a safety copy that is at work now
        (order().contains(name, Qt::CaseInsensitive) ? first : others).append(name);
    }
    const auto place = [](const QString& name) {
        for (qsizetype i = 0; i < order().size(); ++i)
            if (order()[i].compare(name, Qt::CaseInsensitive) == 0) return i;
        return order().size();
    };
    std::sort(first.begin(), first.end(), [&](const QString& a, const QString& b) { return place(a) < place(b); });
    others.sort(Qt::CaseInsensitive);
    return first + others;
}

int countOf(Database& database, const QString& table) {
    Query count = database.run(QStringLiteral("select count(*) from {schema}.") + table);
    return count.next() ? count.number(0) : 0;
}

/// In the form in which this program stores it, whichever the driver gave.
QVariant stored(const QVariant& value) {
    if (value.typeId() == QMetaType::QDateTime) return storedMoment(value.toDateTime());
    if (value.typeId() == QMetaType::QDate) return storedDate(value.toDate());
    return value;
}

int move(Database& source, Database& target, const QString& table) {
    Query rows = source.command(QStringLiteral("select * from %1.%2").arg(source.schema(), table));
    const QSqlRecord record = rows.statement().record();
    QStringList columns;
    for (int i = 0; i < record.count(); ++i)
        columns.append(record.fieldName(i));
    const QString sql =
        QStringLiteral("insert into {schema}.%1 (%2) values (?%3)")
            .arg(table, columns.join(QStringLiteral(", ")), QStringLiteral(", ?").repeated(columns.size() - 1));
    int moved = 0;
    for (; rows.next(); ++moved) {
        QVariantList values;
        for (int i = 0; i < columns.size(); ++i)
            values.append(stored(rows.value(i)));
        try {
            target.run(sql, values);
        } catch (const DatabaseError& error) {
            throw DatabaseError(QStringLiteral("Una riga di %1 (%2) non entra nell'archivio di arrivo: %3")
                                    .arg(table, values.value(0).toString(), error.text()));
        }
    }
    return moved;
}

void mustFit(Database& source, Database& target) {
    if (countOf(source, QStringLiteral("tblUtenti")) == 0)
        throw DatabaseError(QStringLiteral("L'archivio di partenza è vuoto."));
    for (const QString& table : tablesOf(target)) {
        if (countOf(target, table) > 0)
            throw DatabaseError(QStringLiteral("L'archivio di arrivo non è vuoto: crearne uno nuovo."));
    }
}

} // namespace

QList<Moved> run(Database& source, Database& target) {
    const Transaction oneMoment(source, Transaction::Kind::Reading);
    Transaction transaction(target);
    mustFit(source, target);
    QList<Moved> result;
    for (const QString& table : tablesOf(source)) {
        const int rows = move(source, target, table);
        if (countOf(target, table) != rows || countOf(source, table) != rows)
            throw DatabaseError(QStringLiteral("La tabella %1 non è arrivata per intero.").arg(table));
        result.append({table, rows});
    }
    transaction.commit();
    return result;
}

} // namespace practice_transfer

} // namespace desk
