#pragma once

namespace desk {

class Database;

/// All or nothing: what was written since is rolled back unless `commit` was called. One inside another belongs to the
/// outer one. Beginning and committing throw DatabaseError.
class Transaction {
public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

private:
    void commitOutermost();

    Database& database_;
    bool open_ = true;
};

} // namespace desk
