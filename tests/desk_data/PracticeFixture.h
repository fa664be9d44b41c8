#pragma once

#include "desk/data/Database.h"
#include "desk/data/PatientDirectory.h"
#include "desk/data/PatientRecord.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

/// A practice of its own in a temporary folder, empty but for what the test puts in.
class PracticeFixture : public testing::Test {
protected:
    PracticeFixture()
        : database_(reopened()) {}

    std::unique_ptr<desk::Database> reopened() const { return desk::Database::open(url()); }
    QString path() const { return folder_.filePath(QStringLiteral("studio.db")); }
    desk::DatabaseUrl url() const { return desk::DatabaseUrl::parse(QStringLiteral("sqlite:") + path()); }

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

    QTemporaryDir folder_;
    const QString sign_ = QStringLiteral("D'Amico Sara");
    std::unique_ptr<desk::Database> database_;
};

/// Names that a careless statement would trip over.
inline QStringList awkwardTexts() {
    return {QStringLiteral("D'Angelo"), QStringLiteral("100%_vero\\"), QStringLiteral("Łukasz 🦷 “Nicolò”"),
            QStringLiteral("x").repeated(500)};
}
