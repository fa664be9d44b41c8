#include "desk/data/DatabaseService.h"

#include "desk/data/Database.h"
#include "desk/data/MemoryRecordset.h"
#include "desk/data/Transaction.h"
#include "host/contract/HostError.h"

namespace desk {

std::unique_ptr<host::Recordset> DatabaseService::OpenRecordset(const QString& sql) {
    database_.noticeOthers();
    Query query = database_.runText(sql);
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
