#pragma once

#include "config/clsConfig.h"
#include "desk/data/DatabaseError.h"
#include "desk/shell/Options.h"
#include "desk/shell/Practice.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Collection.h"
#include "platform/Files.h"
#include "platform/SpecialFolders.h"

#include "config/clsItemIva.h"
#include "config/clsItemRaggMerc.h"
#include "config/clsItemSituazioneDente.h"

#include "support/PracticeDatabase.h"

#include <QTemporaryDir>
#include <QUuid>
#include <gtest/gtest.h>
#include <memory>

/// The desk's data without its windows, which records never need.
class RecordHost : public host::Host, private host::API {
public:
    explicit RecordHost(desk::Practice& practice)
        : practice_(practice) {}

    host::Utente& Utente() override { return practice_.user(); }
    host::Paziente* paziente() override { return patient.get(); }
    host::Framework& Framework() override { throw host::HostError(QStringLiteral("nessuna finestra")); }
    host::Archivio& Archivio() override { throw host::HostError(QStringLiteral("nessun archivio")); }
    host::DB& DB() override { return practice_.sql(); }
    host::API& API() override { return *this; }

    std::unique_ptr<host::Paziente> patient;

private:
    QString GetGUID() override { return QUuid::createUuid().toString(); }

    desk::Practice& practice_;
};

/// A practice with one patient open, settings and a folder for locks, all in a temporary folder.
class RecordFixture : public testing::Test {
protected:
    RecordFixture() {
        desk::Options options;
        options.databaseUrl = place_.url();
        practice_ = desk::Practice::open(options);
        host_ = std::make_unique<RecordHost>(*practice_);
        oHost = host_.get();
        openPatient(addPatient("Rossi"));
        startConfig();
    }
    ~RecordFixture() override {
        platform::setApplicationDataFolder(QString());
        oConfig = nullptr;
        oHost = nullptr;
        colIva = nullptr;
        colRaggMerc = nullptr;
        colSituazioniDenti = nullptr;
        sAppPath.clear();
    }

    QString path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }

    QString addPatient(const char* surname) {
        desk::PatientData patient;
        patient.Cognome = QString::fromUtf8(surname);
        patient.Nome = QStringLiteral("Maria");
        EXPECT_TRUE(practice_->patients().insert(patient));
        return patient.ID;
    }
    void openPatient(const QString& id) {
        host_->patient = practice_->newPatient();
        EXPECT_TRUE(host_->patient->Init(id));
    }

    QTemporaryDir folder_;
    PracticeDatabase place_; // before the practice, which must be closed when its place goes
    std::unique_ptr<desk::Practice> practice_;
    std::unique_ptr<RecordHost> host_;
    clsConfig config_;

private:
    void startConfig() {
        sAppPath = folder_.path();
        platform::setApplicationDataFolder(path("profilo"));
        platform::files::createFolder(path("DB"));
        platform::files::writeAtomically(path("Config.xml"), "<corvala><parameters><generici>"
                                                             "<parameter name='dbPath'>[app.path]\\DB\\</parameter>"
                                                             "</generici></parameters></corvala>");
        colIva = &iva_;
        colRaggMerc = &goods_;
        colSituazioniDenti = &situations_;
        EXPECT_TRUE(config_.Init());
        oConfig = &config_;
    }

    platform::Collection<clsItemIva> iva_;
    platform::Collection<clsItemRaggMerc> goods_;
    platform::Collection<clsItemSituazioneDente> situations_;
};
