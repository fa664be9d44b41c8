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
    EXPECT_TRUE(area->subWindowList().isEmpty());
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
