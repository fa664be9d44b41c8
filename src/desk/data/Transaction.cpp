#include "desk/data/Transaction.h"

#include "desk/data/Database.h"

namespace desk {

Transaction::Transaction(Database& database)
    : database_(database) {
    if (database_.transactionDepth_ == 0) {
        database_.transactionDoomed_ = false;
        database_.command(database_.dialect().beginWriting());
    }
    ++database_.transactionDepth_;
}

Transaction::~Transaction() {
    if (!open_) return;
    --database_.transactionDepth_;
    if (database_.transactionDepth_ > 0) {
        database_.transactionDoomed_ = true;
        return;
    }
    ++database_.generation_;        // what was read in between never came to be
    if (database_.isLost()) return; // the server rolls back what nobody can commit any more
    try {
        database_.command(QStringLiteral("rollback"));
    } catch (const DatabaseError&) {
        // After some failures, a full disk for one, the database has rolled back by itself.
    }
    database_.failed_.clear();
}

void Transaction::commit() {
    if (database_.transactionDepth_ == 1) {
        if (database_.transactionDoomed_) throw DatabaseError(QStringLiteral("Registrazione annullata."));
        database_.command(QStringLiteral("commit"));
    }
    --database_.transactionDepth_;
    open_ = false;
}

} // namespace desk
