#pragma once

namespace desk {

class Database;

/// All or nothing: what was written since is rolled back unless `commit` was called. One inside another belongs to the
/// outer one. After a failure with which the database may have rolled back by itself, such as a full disk, every
/// further step fails with the same words. Beginning and committing throw DatabaseError.
class Transaction {
public:
    enum class Kind { Writing, Reading }; ///< Reading shows all tables as they stood at one moment.

    explicit Transaction(Database& database, Kind kind = Kind::Writing);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

private:
    void commitOutermost();
    void rollBack();

    Database& database_;
    bool open_ = true;
};

} // namespace desk
