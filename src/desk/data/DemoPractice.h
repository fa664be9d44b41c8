#pragma once

namespace desk {

class Database;

/// A believable practice to try the program with: users, patients, notes, visits, diary, due dates and treatment plans,
/// all dated before 2026.
class DemoPractice {
public:
    /// Fills a database without patients and records, in one transaction. False, with nothing written, for any other.
    /// Throws DatabaseError.
    static bool fill(Database& database);
};

} // namespace desk
