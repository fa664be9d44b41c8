#include "desk/data/DatabaseService.h"

#include "desk/data/Database.h"
#include "desk/data/MemoryRecordset.h"
#include "desk/data/Transaction.h"
#include "host/contract/HostError.h"

#include <QSqlRecord>

namespace desk {

namespace {

/// The lists of the practice ask for whole records, years of them at once: the same columns, the memo in the form in
/// which it is read fastest.
QString withFastMemo(const QString& sql, Database& database) {
    const QString records = QStringLiteral("select * from %1.tblWorkspace where ").arg(database.schema());
    if (!sql.startsWith(records, Qt::CaseInsensitive)) return sql;
    Query none = database.runText(records + QStringLiteral("1 = 0"));
    const QSqlRecord fields = none.statement().record();
    QStringList columns;
    for (int i = 0; i < fields.count(); ++i) {
        const QString name = fields.fieldName(i);
        const bool isMemo = name.compare(QLatin1String("m1"), Qt::CaseInsensitive) == 0;
        columns << (isMemo ? database.dialect().longText(name) + QStringLiteral(" as ") + name : name);
    }
    return QStringLiteral("select ") + columns.join(QStringLiteral(", ")) + sql.mid(QLatin1String("select *").size());
}

} // namespace

std::unique_ptr<host::Recordset> DatabaseService::OpenRecordset(const QString& sql) {
    database_.noticeOthers();
    Query query = database_.runText(withFastMemo(sql, database_));
    if (!query.statement().isSelect()) return nullptr;
    return std::make_unique<MemoryRecordset>(query);
}

void DatabaseService::Execute(const QString& sql) {
    try {
        Transaction transaction(database_);
        database_.runText(sql);
        transaction.commit();
    } catch (const DatabaseError& error) {
        throw host::HostError(error.text());
    }
}

} // namespace desk
