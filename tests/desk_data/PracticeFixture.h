#pragma once

#include "desk/data/Database.h"
#include "desk/data/PatientDirectory.h"
#include "desk/data/PatientRecord.h"
#include "support/PracticeDatabase.h"

#include <QDir>
#include <gtest/gtest.h>

/// A practice of its own, empty but for what the test puts in, on the database system that the run is for.
class PracticeFixture : public testing::Test {
protected:
    explicit PracticeFixture(PracticeDatabase::System system = PracticeDatabase::System::Chosen)
        : place_(system)
        , database_(reopened()) {}

    std::unique_ptr<desk::Database> reopened() const { return desk::Database::open(url()); }
    QString path() const { return place_.path(); }
    bool onServer() const { return place_.onServer(); }
    desk::DatabaseUrl url() const { return desk::DatabaseUrl::parse(place_.url()); }

    QString addPatient(const QString& surname, const QString& name, const QString& taxCode = {}) {
        desk::PatientData patient;
        patient.Cognome = surname;
        patient.Nome = name;
        patient.codicefiscale = taxCode;
        EXPECT_TRUE(desk::PatientDirectory(*database_, sign_).insert(patient));
        return patient.ID;
    }

    std::unique_ptr<desk::PatientRecord> bound(const QString& id) {
        auto patient = std::make_unique<desk::PatientRecord>(*database_, sign_);
        EXPECT_TRUE(patient->Init(id));
        return patient;
    }

    PracticeDatabase place_;
    const QString sign_ = QStringLiteral("D'Amico Sara");
    std::unique_ptr<desk::Database> database_;
};

/// Names that a careless statement would trip over.
inline QStringList awkwardTexts() {
    return {QStringLiteral("D'Angelo"), QStringLiteral("100%_vero\\"), QStringLiteral("Łukasz 🦷 “Nicolò”"),
            QStringLiteral("x").repeated(500)};
}
