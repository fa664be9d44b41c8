#pragma once

#include "desk/data/Database.h"
#include "desk/data/PatientDirectory.h"
#include "desk/data/PatientRecord.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <stdexcept>

/// A practice of its own, empty but for what the test puts in: a file in a temporary folder, or the schema of a server
/// when CORVALA_TEST_POSTGRES holds the address of a database with "test" in its name (then one test at a time).
class PracticeFixture : public testing::Test {
protected:
    explicit PracticeFixture(const QString& server = qEnvironmentVariable("CORVALA_TEST_POSTGRES"))
        : server_(server) {
        if (onServer()) clearServer();
        database_ = reopened();
    }

    void clearServer() const {
        if (!url().database.contains(QLatin1String("test")))
            throw std::runtime_error("this may be a real practice: not touched");
        desk::Database::open(url())->command(QStringLiteral("drop schema tessara cascade"));
    }
    std::unique_ptr<desk::Database> reopened() const { return desk::Database::open(url()); }
    QString path() const { return folder_.filePath(QStringLiteral("studio.db")); }
    bool onServer() const { return !server_.isEmpty(); }
    desk::DatabaseUrl url() const {
        return desk::DatabaseUrl::parse(onServer() ? server_ : QStringLiteral("sqlite:") + path());
    }

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

    QString server_;
    QTemporaryDir folder_;
    const QString sign_ = QStringLiteral("D'Amico Sara");
    std::unique_ptr<desk::Database> database_;
};

/// Names that a careless statement would trip over.
inline QStringList awkwardTexts() {
    return {QStringLiteral("D'Angelo"), QStringLiteral("100%_vero\\"), QStringLiteral("Łukasz 🦷 “Nicolò”"),
            QStringLiteral("x").repeated(500)};
}
