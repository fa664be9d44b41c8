#include "desk/data/DatabaseService.h"

#include "desk/data/Database.h"
#include "desk/data/MemoryRecordset.h"
#include "desk/data/Transaction.h"
#include "host/contract/HostError.h"

namespace desk {

namespace {

/// The lists of the practice ask for whole records, years of them at once: the same columns, the memo in the form in
/// which it is read fastest.
QString withFastMemo(const QString& sql, const Database& database) {
    const QString asked = QStringLiteral("select * from %1.tblWorkspace where").arg(database.schema());
    if (!sql.startsWith(asked, Qt::CaseInsensitive)) return sql;
    const QString memo = QStringLiteral("m1");
    return QStringLiteral("select ID, tiporecord, t1, idrif1, idpaziente, Data, descrizione, %1 as %2, ModificatoDa, "
                          "DataModifica, LastUpdate")
               .arg(database.dialect().longText(memo), memo) +
           sql.mid(QLatin1String("select *").size());
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
