#include "DeskFixture.h"

#include "platform/Clock.h"

#include <QDialog>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <QTabWidget>
#include <QTreeView>

class DeskPatientPanel : public DeskFixture {
protected:
    void SetUp() override {
        attach();
        desk_->window()->show();
        ASSERT_TRUE(desk_->openPatient(rossi_));
        addRecord(QStringLiteral("Primo"));
        second_ = addRecord(QStringLiteral("Secondo"));
        desk_->host().paziente()->GeneraEvento(desk_->host().paziente()->corvala());
        QApplication::processEvents();
        grid_ = control<platform::ReportGrid>("pannello(Prova: Lista Prova)");
        ASSERT_EQ(grid_->rowCount(), 2) << "a change that was told does not show";
        row_ = grid_->rowRecord(0)->tag == second_ ? 0 : 1;
    }

    QPoint place(int row) const { return grid_->view()->visualRect(grid_->view()->model()->index(row, 0)).center(); }
    void doubleClick(int row) const {
        QTest::mouseClick(grid_->view()->viewport(), Qt::LeftButton, {}, place(row));
        QTest::mouseDClick(grid_->view()->viewport(), Qt::LeftButton, {}, place(row));
    }

    platform::ReportGrid* grid_ = nullptr;
    QString second_;
    int row_ = 0;
};

TEST_F(DeskPatientPanel, TheViewAdaptsTheMenuAndGetsTheChosenCommand) {
    dialogs_.choice = QStringLiteral("Duplica");
    emit grid_->rowRightClicked(grid_->rowRecord(row_), 0);
    EXPECT_EQ(dialogs_.menu,
              (QStringList{QStringLiteral("Nuovo"), QStringLiteral("Elimina"), QStringLiteral("Duplica")}));
    dialogs_.choice = QStringLiteral("Elimina");
    emit grid_->rowRightClicked(nullptr, 0);
    dialogs_.choice.clear();
    emit grid_->rowRightClicked(grid_->rowRecord(row_), 0);
    EXPECT_EQ(run_.view.log, (QStringList{QStringLiteral("10081:Secondo"), QStringLiteral("79:Secondo")}))
        << "a dismissed menu does something, or the command goes to another row";
}

TEST_F(DeskPatientPanel, ADoubleClickEditsAndRefreshesOnlyAfterAConfirm) {
    whenModal("frmEditProva", [](QWidget& editor) { static_cast<QDialog&>(editor).reject(); });
    const int before = run_.view.refreshes;
    doubleClick(row_);
    EXPECT_EQ(run_.view.refreshes, before);

    whenModal("frmEditProva", [](QWidget& editor) { static_cast<QDialog&>(editor).accept(); });
    doubleClick(row_);
    EXPECT_EQ(run_.view.refreshes, before + 1);
    ASSERT_NE(grid_->focusedRecord(), nullptr);
    EXPECT_EQ(grid_->focusedRecord()->tag, second_);
    EXPECT_EQ(grid_->focusedRecord()->cell(0).value, QStringLiteral("Modificato"));
}

TEST_F(DeskPatientPanel, IsLoadedExactlyWhileThePatientIsOpen) {
    const host::Pannelli& panels = desk_->host().Archivio().Pannelli();
    EXPECT_TRUE(panels.PannelloCaricato(DeskTestModule::panelName()));
    EXPECT_FALSE(panels.PannelloCaricato(QStringLiteral("Prova: Senza vista")));
    desk_->closePatient();
    EXPECT_FALSE(panels.PannelloCaricato(DeskTestModule::panelName()));
    ASSERT_TRUE(desk_->openPatient(verdi_));
    EXPECT_TRUE(panels.PannelloCaricato(DeskTestModule::panelName()));
}

TEST_F(DeskPatientPanel, ClosingTheTabClosesThePatient) {
    auto* area = control<QMdiArea>("area");
    area->activeSubWindow()->close();
    QApplication::processEvents();
    EXPECT_EQ(desk_->host().paziente(), nullptr);
    EXPECT_EQ(run_.events.last(), QStringLiteral("chiuditutto"));
    EXPECT_FALSE(control<QWidget>("frmAmbulatorio")->isVisible());
}

// One desk serves all patients: what the former one had must not be seen with the next, whatever fails.
TEST_F(DeskPatientPanel, NothingOfTheFormerPatientIsLeft) {
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Appunti")));
    auto* notes = control<platform::ReportGrid>("rcAppunti");
    notes->addRecord()->cell(1).value = QStringLiteral("allergico al lattice");
    ASSERT_EQ(notes->rowCount(), 1);
    grid_->setFocusedRecord(grid_->rowRecord(0));

    desk_->closePatient();
    EXPECT_EQ(grid_->rowCount(), 0);
    EXPECT_EQ(notes->rowCount(), 0);
    QStringList texts;
    for (const QLabel* label : control<QWidget>("frmAmbulatorio")->findChildren<QLabel*>())
        texts.append(label->text());
    EXPECT_FALSE(texts.join(u' ').contains(QLatin1String("RSSMRA80A01H501U"))) << texts.join(u' ').toStdString();

    run_.view.failOnRefresh = true;
    ASSERT_TRUE(desk_->openPatient(verdi_));
    EXPECT_EQ(grid_->rowCount(), 0);
    EXPECT_EQ(control<platform::ReportGrid>("pannello(Prova: Lista Prova)"), grid_) << "the panel was built anew";
    EXPECT_EQ(notes->rowCount(), 0);
    EXPECT_TRUE(notes->isVisible()) << "the room in front is another one";
}

TEST_F(DeskPatientPanel, WhatWasBegunForAPatientIsDroppedWithThePatient) {
    whenModal("frmEditProva", [this](QWidget& editor) {
        ASSERT_TRUE(desk_->openPatient(verdi_));
        run_.view.confirmEdit = false;
        framework().setDialogCancel(false);
        static_cast<QDialog&>(editor).accept();
    });
    const int before = run_.view.refreshes;
    doubleClick(row_);
    EXPECT_EQ(run_.view.refreshes, before + 1) << "the former patient's record is looked for in the next one's list";

    ASSERT_TRUE(desk_->openPatient(rossi_));
    dialogs_.choice = QStringLiteral("Elimina");
    dialogs_.whileMenuIsOpen = [this] { ASSERT_TRUE(desk_->openPatient(verdi_)); };
    emit grid_->rowRightClicked(grid_->rowRecord(row_), 0);
    EXPECT_TRUE(run_.view.log.isEmpty()) << "the command of one patient's menu reached another";

    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Appunti")));
    whenModal("frmEditAppunto", [this](QWidget& editor) {
        ASSERT_TRUE(desk_->openPatient(rossi_));
        EXPECT_FALSE(editor.isVisible());
    });
    QTest::mouseClick(control<QWidget>("cbNuovoAppunto"), Qt::LeftButton);
    EXPECT_EQ(desk_->host().paziente()->ID(), rossi_);
}

TEST_F(DeskPatientPanel, AViewThatFailsIsToldAndLeavesTheDesk) {
    run_.view.failOnRefresh = true;
    ASSERT_TRUE(desk_->openPatient(verdi_));
    EXPECT_TRUE(desk_->window()->statusBar()->currentMessage().contains(QLatin1String("archivio non raggiungibile")));
    EXPECT_EQ(control<QTabWidget>("schede(0)")->tabText(0), QStringLiteral("Lista Prova"));
}

TEST_F(DeskPatientPanel, TheLayoutPlacesPanelsAndMistakesInItChangeNothing) {
    framework().setLayoutPredefinito(QStringLiteral("<Layout><Panel caption='Altro'/>"
                                                    "<Panel caption='Prova: Lista Prova' visible='0'/></Layout>"));
    framework().setLayoutPredefinito(QStringLiteral("<Layout><Panel"));
    ASSERT_TRUE(desk_->openPatient(verdi_));
    EXPECT_FALSE(desk_->host().Archivio().Pannelli().PannelloCaricato(DeskTestModule::panelName()));
    framework().setLayoutPredefinito(
        QStringLiteral("<Layout><Panel caption='Prova: Lista Prova' side='right'/></Layout>"));
    ASSERT_TRUE(desk_->openPatient(rossi_));
    EXPECT_TRUE(desk_->host().Archivio().Pannelli().PannelloCaricato(DeskTestModule::panelName()));
}

TEST_F(DeskPatientPanel, TheHeaderTellsWhoIsOpen) {
    platform::setClock(QDateTime(QDate(2025, 12, 31), QTime(9, 0)));
    ASSERT_TRUE(desk_->openPatient(verdi_));
    EXPECT_EQ(control<QLabel>("laNome")->text(), QStringLiteral("Verdi Nicolò"));
    EXPECT_EQ(control<QLabel>("laNascita")->text(), QStringLiteral("45 anni, nato il 01/01/1980"));
    EXPECT_EQ(control<QLabel>("laMedico")->text(), QStringLiteral("Medico: nessuno"));
    EXPECT_EQ(control<QLabel>("laPaziente")->text(), QStringLiteral("Paziente: Verdi Nicolò"));
    platform::releaseClock();
}
