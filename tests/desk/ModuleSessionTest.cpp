#include "DeskFixture.h"

#include <QFile>
#include <QLabel>

class DeskModuleSession : public DeskFixture {};

TEST_F(DeskModuleSession, HearsTheEventsInTheOrderOfADay) {
    attach();
    const QStringList start{QStringLiteral("Init"), QStringLiteral("form.load frmMain"),
                            QStringLiteral("listapannelli"), QStringLiteral("arcpannelli.daiparent Prova: Lista Prova"),
                            QStringLiteral("arcpannelli.daiparent Prova: Senza vista")};
    EXPECT_EQ(run_.events, start);

    const QStringList patient{QStringLiteral("form.load frmAmbulatorio"), QStringLiteral("ambulatorio.ready")};
    run_.events.clear();
    ASSERT_TRUE(desk_->openPatient(rossi_));
    EXPECT_EQ(run_.events, patient);

    run_.events.clear();
    ASSERT_TRUE(desk_->openPatient(rossi_));
    EXPECT_TRUE(run_.events.isEmpty()) << "the open patient was opened again";
    ASSERT_TRUE(desk_->openPatientByTaxCode(QStringLiteral("vrdncl75c10f205x")));
    EXPECT_EQ(run_.events, QStringList{QStringLiteral("chiuditutto")} + patient);
    EXPECT_EQ(desk_->host().paziente()->ID(), verdi_);

    run_.events.clear();
    EXPECT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0302")));
    EXPECT_TRUE(desk_->pressCommand(QStringLiteral("Preventivi")));
    EXPECT_EQ(run_.events, (QStringList{QStringLiteral("execute 70001"), QStringLiteral("execute 70011")}));

    run_.events.clear();
    desk_.reset();
    EXPECT_EQ(run_.events, (QStringList{QStringLiteral("chiuditutto"), QStringLiteral("fine")}));
    EXPECT_FALSE(run_.hadPatientAtEnd);
}

TEST_F(DeskModuleSession, AttachedLateItIsToldOfTheOpenPatient) {
    ASSERT_TRUE(desk_->openPatient(rossi_));
    attach();
    EXPECT_EQ(run_.events.mid(run_.events.size() - 2),
              (QStringList{QStringLiteral("form.load frmAmbulatorio"), QStringLiteral("ambulatorio.ready")}));
    EXPECT_TRUE(desk_->host().Archivio().Pannelli().PannelloCaricato(DeskTestModule::panelName()));
}

TEST_F(DeskModuleSession, WithoutAModuleTheDeskWorksAndSaysWhy) {
    QFile noModule(folder_.filePath(QStringLiteral("finto.so")));
    ASSERT_TRUE(noModule.open(QIODevice::WriteOnly));
    noModule.write("niente");
    noModule.close();
    const struct {
        QString path;
        const char* says;
    } cases[] = {
        {folder_.filePath(QStringLiteral("manca.so")), "manca.so non esiste"},
        {noModule.fileName(), "non è un modulo"},
        {QStringLiteral(OTHER_VERSION_MODULE), "un'altra versione"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.path.toStdString());
        EXPECT_FALSE(desk_->loadModule(each.path));
        EXPECT_FALSE(desk_->hasModule());
        EXPECT_TRUE(desk_->moduleError().contains(QString::fromUtf8(each.says))) << desk_->moduleError().toStdString();
        EXPECT_EQ(control<QLabel>("laAvviso")->text(), desk_->moduleError());
        EXPECT_FALSE(control<QWidget>("barraAvviso")->isHidden());
    }
    EXPECT_TRUE(desk_->openPatient(rossi_));
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("CRVL0302")));
}

TEST_F(DeskModuleSession, AFailedStartIsRefusedWithItsReason) {
    run_.throwOn = QStringLiteral("Init");
    EXPECT_FALSE(desk_->attachModule(std::make_unique<DeskTestModule>(run_)));
    EXPECT_TRUE(desk_->moduleError().contains(QLatin1String("configurazione illeggibile")));
    EXPECT_FALSE(run_.events.contains(QLatin1String("form.load frmMain")));

    run_.throwOn.clear();
    run_.terminate = true;
    EXPECT_FALSE(desk_->attachModule(std::make_unique<DeskTestModule>(run_)));
    EXPECT_TRUE(desk_->moduleError().contains(QLatin1String("Config.xml non trovato")));
    EXPECT_FALSE(run_.events.contains(QLatin1String("form.load frmMain")));

    run_.terminate = false;
    attach();
    EXPECT_TRUE(desk_->moduleError().isEmpty()) << "an old complaint stays";
    EXPECT_TRUE(control<QWidget>("barraAvviso")->isHidden());
}

TEST_F(DeskModuleSession, ASecondModuleIsRefusedAndTheFirstGoesOn) {
    attach();
    DeskModuleRun second;
    EXPECT_FALSE(desk_->attachModule(std::make_unique<DeskTestModule>(second)));
    EXPECT_TRUE(second.events.isEmpty());
    EXPECT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0302")));
    EXPECT_EQ(run_.events.last(), QStringLiteral("execute 70001"));
}

TEST_F(DeskModuleSession, AnEventThatThrowsStopsNothingElse) {
    attach();
    run_.throwOn = QStringLiteral("form.load");
    EXPECT_TRUE(desk_->openPatient(rossi_));
    EXPECT_TRUE(run_.events.contains(QLatin1String("ambulatorio.ready")));
    run_.throwOn = QStringLiteral("execute");
    EXPECT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0302")));
    EXPECT_TRUE(desk_->moduleError().contains(QLatin1String("divisione impossibile")));
    run_.throwOn.clear();
    EXPECT_TRUE(desk_->openPatient(verdi_));
}
