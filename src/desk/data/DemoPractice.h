#pragma once

#include "desk/data/UserData.h"

#include <QHash>
#include <QString>

namespace desk {

class Database;
class DemoTable;
class PatientRecord;

/// A believable practice to try the program with: users, patients, notes, visits, diary, due dates and treatment plans,
/// all dated before 2026. One patient has no record at all.
class DemoPractice {
public:
    /// Fills a database without patients and records, in one transaction. False, with nothing written, for any other.
    /// Throws DatabaseError.
    static bool fill(Database& database);

private:
    explicit DemoPractice(Database& database)
        : database_(database) {}
    void addUsers();
    void addPatients();
    void addPatientRows();
    void addPlans();
    template <class AddRow>
    void eachRow(const QString& table, AddRow addRow);

    Database& database_;
    QHash<QString, UserData> users_;     ///< By their code.
    QHash<QString, QString> patientIds_; ///< By tax code.
};

} // namespace desk
