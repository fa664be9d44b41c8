#include "desk/data/Transaction.h"

#include "desk/data/Database.h"

namespace desk {

Transaction::Transaction(Database& database, Kind kind)
    : database_(database) {
    if (database_.transactionDepth_ == 0) {
        database_.transactionDoomed_ = false;
        database_.transactionFault_.clear();
        const Dialect& dialect = database_.dialect();
        for (const QString& step :
             kind == Kind::Reading ? dialect.beginReading() : QStringList{dialect.beginWriting()})
            database_.command(step);
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
    rollBack();
    database_.failed_.clear();
}

// After some failures, a full disk for one, the database has rolled back by itself: that there is nothing to roll back
// any more is nobody's concern, least of all the user's, who is about to read what failed before.
void Transaction::rollBack() {
    const QString failure = database_.failure_;
    try {
        const Database::Quiet quiet(database_);
        database_.command(QStringLiteral("rollback"));
    } catch (const DatabaseError&) {
    }
    database_.failure_ = failure;
}

void Transaction::commit() {
    if (database_.transactionDepth_ == 1) {
        if (database_.transactionDoomed_) throw DatabaseError(QStringLiteral("Registrazione annullata."));
        commitOutermost();
    }
    if (!open_) return;
    --database_.transactionDepth_;
    open_ = false;
}

// When the connection breaks before the answer, the server is asked what became of it: a record that was stored must
// not be taken for a failed one and stored again.
void Transaction::commitOutermost() {
    const QString name = database_.transactionName();
    try {
        const Database::Quiet quiet(database_);
        database_.command(QStringLiteral("commit"));
    } catch (const DatabaseError& error) {
        if (database_.isLost()) {
            --database_.transactionDepth_;
            open_ = false;
            const Database::Quiet quiet(database_);
            if (database_.wasCommitted(name)) return;
        }
        database_.tell(error);
        throw;
    }
}

} // namespace desk
