#pragma once

#include "desk/data/CorvalaRecords.h"
#include "desk/data/PatientCache.h"
#include "desk/data/PatientDueDates.h"
#include "desk/data/PatientEvents.h"
#include "desk/data/PatientFiles.h"
#include "desk/data/PatientHooks.h"
#include "desk/data/PatientNotes.h"
#include "desk/data/PatientVisits.h"

#include <memory>

namespace desk {

/// A patient with the collections below it, read from the database. Unbound, with all texts empty, until `Init`.
/// Borrows database and hooks. The collections live as long as the patient.
class PatientRecord : public host::Paziente {
public:
    PatientRecord(Database& database, QString sign);
    PatientRecord(Database& database, QString sign, const PatientHooks& hooks);
    ~PatientRecord() override;
    PatientRecord(const PatientRecord&) = delete;
    PatientRecord& operator=(const PatientRecord&) = delete;

    bool Init(const QString& id) override;
    QString ID() const override { return data_.ID; }
    QString Cognome() const override { return data_.Cognome; }
    QString Nome() const override { return data_.Nome; }
    QString codicefiscale() const override { return data_.codicefiscale; }
    QString idschema() const override;
    QString IDMedico() const override { return data_.IDMedico; }
    host::Medico medico() const override { return data_.medico; }
    CorvalaRecords& corvala() override;
    PatientFiles& Files() override;
    PatientEvents& Eventi() override;
    PatientNotes& Appunti() override;
    PatientVisits& VisiteAmbDom() override;
    PatientDueDates& scadenze() override;
    void GeneraEvento(host::Raccolta& source) override;

private:
    struct Collections;
    Collections& collections();

    Database& database_;
    QString sign_;
    const PatientHooks& hooks_;
    PatientCache::Entry data_;
    std::unique_ptr<Collections>
        collections_; ///< Made on first use: lists bind thousands of patients for their names alone.
};

} // namespace desk
