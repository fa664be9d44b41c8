#pragma once

#include "desk/data/PatientData.h"

#include <QList>
#include <QString>
#include <optional>

namespace desk {

class Database;

/// The practice's patients: search, and the writing of their personal data. Borrows the database. Reading throws
/// DatabaseError; writing answers false and leaves what was there.
class PatientDirectory {
public:
    enum class Column { NameAndSurname, TaxCode };
    static constexpr int searchLimit = 200;

    PatientDirectory(Database& database, QString sign)
        : database_(database)
        , sign_(std::move(sign)) {}

    /// Patients in whose column every word of the text occurs, case and accents ignored, by surname and name; at most
    /// `searchLimit`. An empty text gives the first ones of all.
    QList<PatientSummary> search(const QString& text, Column column = Column::NameAndSurname);
    int countMatches(const QString& text, Column column = Column::NameAndSurname); ///< Those of `search` without limit.
    static Column columnFromName(const QString& name); ///< "Codice Fiscale", or else "Cognome e Nome".

    QString idByTaxCode(const QString& taxCode); ///< Empty when there is none; case ignored.
    /// Another patient of the same name, as `search` compares names, born on the same day; empty when there is none.
    QString idByNameAndBirth(const PatientData& patient);
    std::optional<PatientData> load(const QString& id);
    bool insert(PatientData& patient);       ///< Writes the new identity into it.
    bool update(const PatientData& patient); ///< False too when the patient is not there any more.
    enum class Outcome { Saved, ChangedMeanwhile, Failed };
    /// The same for a card that was read as `before`. What another workstation has written since is not overwritten.
    Outcome updateFrom(const PatientData& before, const PatientData& patient);
    int count();

private:
    void giveKeys();

    Database& database_;
    QString sign_;
};

} // namespace desk
