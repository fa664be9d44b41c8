#include "ModalWindow.h"
#include "TreatmentFixture.h"
#include "host/contract/View.h"
#include "platform/ReportGrid.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/TreatmentColumns.h"
#include "treatments/frmMDITrattamenti.h"

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>

using platform::ReportGrid;
using namespace treatmentcolumns;

namespace {

/// The menu of a panel, with the entries that the host puts in every one.
class PanelPopup : public host::PopupBar {
public:
    void RemoveItem(int command) override { entries.removeAll(command); }
    void AddItem(int command, const QString& caption) override {
        entries << command;
        texts << caption;
    }
    QList<int> entries{80, 77, 78, 79, 5};
    QStringList texts;
};

/// In the editor of the plan with that number: presses the button.
std::function<void(QWidget&)> pressing(const char* button, const char* number) {
    return [=](QWidget& editor) {
        EXPECT_EQ(editor.findChild<QLineEdit*>(QStringLiteral("tbDati(1)"))->text(), QLatin1String(number));
        QTest::mouseClick(editor.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
    };
}

class TreatmentLists : public TreatmentFixture {
protected:
    static ReportGrid* gridOf(QWidget& window) {
        return window.findChild<ReportGrid*>(QStringLiteral("rcTrattamenti"));
    }
    static int rowOf(ReportGrid& grid, const QString& number) {
        for (int row = 0; row < grid.rowCount(); ++row) {
            if (grid.rowRecord(row)->cell(PROGRESSIVE).value == number) return row;
        }
        return -1;
    }
    static bool isBold(ReportGrid& grid, int row) {
        return grid.rowRecord(row)->cell(PATIENT).style().bold && grid.rowRecord(row)->cell(TAX_CODE).style().bold;
    }
};

} // namespace

TEST_F(TreatmentLists, ShowsThePlansOfThePeriodAndMarksThoseOfTheOpenPatient) {
    const QString id = savedPlan(QStringLiteral("2026"), QStringLiteral("0041")).ID;
    frmMDITrattamenti window;
    window.show();
    ReportGrid& grid = *gridOf(window);
    auto* from = window.findChild<QDateEdit*>(QStringLiteral("dtpData(0)"));
    auto* to = window.findChild<QDateEdit*>(QStringLiteral("dtpData(1)"));
    EXPECT_EQ(from->date(), QDate(2026, 3, 1));
    EXPECT_EQ(to->date(), QDate(2026, 3, 31));
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("laTitoloTrattamenti"))->text(),
              QStringLiteral("ELENCO TRATTAMENTI 01/03/2026 - 31/03/2026"));
    ASSERT_EQ(grid.rowCount(), 1);
    EXPECT_EQ(grid.rowRecord(0)->tag, id);
    EXPECT_EQ(grid.rowRecord(0)->cell(TAX_CODE).value, QStringLiteral("RSSMRA80A01H501U"));
    EXPECT_TRUE(isBold(grid, 0));

    grid.setFocusedRecord(grid.rowRecord(0));
    from->setDate(QDate(2024, 1, 1));
    QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("cbFiltra")), Qt::LeftButton);
    EXPECT_GT(grid.rowCount(), 10);
    EXPECT_EQ(grid.rowRecord(0)->tag, id) << "sorted by number, descending";
    ASSERT_NE(grid.focusedRecord(), nullptr);
    EXPECT_EQ(grid.focusedRecord()->tag, id) << "the selected plan stays so";
    EXPECT_FALSE(isBold(grid, 1));
    EXPECT_FALSE(window.findChild<QLabel*>(QStringLiteral("pbAttesa"))->isVisible());

    window.resize(1400, 600);
    QTest::qWait(1);
    const QString longest = QStringLiteral("1 lavori finiti. Ci sono 2 lavori aperti. Restano da iniziare 2 lavori");
    EXPECT_GE(grid.view()->columnWidth(STATUS), grid.fontMetrics().horizontalAdvance(longest) + 25) << "with its icon";

    desk_->closePatient();
    window.RefreshGraficaTrattamenti();
    EXPECT_FALSE(isBold(grid, 0));
}

TEST_F(TreatmentLists, LeavesOutThePlansOfAPatientWhoIsNotThere) {
    savedPlan(QStringLiteral("2026"), QStringLiteral("0041"));
    savedPlan(QStringLiteral("2026"), QStringLiteral("0042"));
    oHost->DB().Execute(QStringLiteral("PRAGMA foreign_keys=OFF"));
    oHost->DB().Execute(QStringLiteral("Update ") + oHost->Utente().idschema() +
                        QStringLiteral(".tblWorkspace SET idpaziente='nessuno' Where (idrif1='2026-0041')"));
    frmMDITrattamenti window;
    ASSERT_EQ(gridOf(window)->rowCount(), 1);
    EXPECT_EQ(gridOf(window)->rowRecord(0)->cell(PROGRESSIVE).value, QStringLiteral("2026-0042"));
}

TEST_F(TreatmentLists, OpensThePlanOfAnotherPatientOnDoubleClickAndEnter) {
    savedPlan(QStringLiteral("2026"), QStringLiteral("0041"));
    const QString ownId = patient().ID();
    frmMDITrattamenti window;
    window.show();
    ReportGrid& grid = *gridOf(window);
    ASSERT_EQ(grid.rowCount(), 1);
    for (const bool byKey : {false, true}) {
        SCOPED_TRACE(byKey);
        desk_->closePatient();
        grid.setFocusedRecord(grid.rowRecord(0));
        const ModalWindow expected("frmEditTrattamento", pressing("cbAnnulla", "0041"));
        if (byKey)
            QTest::keyClick(grid.view(), Qt::Key_Return);
        else
            emit grid.rowDoubleClicked(grid.rowRecord(0), PROGRESSIVE);
        ASSERT_NE(currentPatient(), nullptr);
        EXPECT_EQ(currentPatient()->ID(), ownId);
    }
}

TEST_F(TreatmentLists, OffersItsCommandsAndDeletesThroughThem) {
    savedPlan(QStringLiteral("2026"), QStringLiteral("0041"));
    savedPlan(QStringLiteral("2026"), QStringLiteral("0042"));
    frmMDITrattamenti window;
    window.show();
    ReportGrid& grid = *gridOf(window);
    const QStringList onlyNew{QStringLiteral("Nuovo")};
    const QStringList all =
        onlyNew + QStringList{QStringLiteral("Modifica"), QStringLiteral("Elimina"), QStringLiteral("Stampa")};
    // Wherever the click falls, what counts is how many rows are selected.
    const auto menuOnEmptyArea = [&] {
        QWidget* ground = grid.view()->viewport();
        QTest::mouseClick(ground, Qt::RightButton, {}, ground->rect().bottomLeft() + QPoint(20, -5));
        return dialogs_.menu;
    };
    grid.setFocusedRecord(nullptr);
    EXPECT_EQ(menuOnEmptyArea(), onlyNew);
    grid.view()->selectAll();
    EXPECT_EQ(menuOnEmptyArea(), onlyNew) << "a command for one row is offered for two";
    emit grid.rowRightClicked(grid.rowRecord(0), 0);
    EXPECT_EQ(dialogs_.menu, onlyNew);

    grid.setFocusedRecord(grid.rowRecord(1));
    dialogs_.choice = QStringLiteral("Elimina");
    dialogs_.taskAnswer.button = QStringLiteral("Si");
    EXPECT_EQ(menuOnEmptyArea(), all);
    EXPECT_EQ(dialogs_.titles.last(), QStringLiteral("Tessara 5000. CORVALA"));
    EXPECT_EQ(grid.rowCount(), 1);
    EXPECT_FALSE(storedRow(QStringLiteral("2026-0041")));
}

TEST_F(TreatmentLists, FillsThePanelAndFocusesTheRecordAskedFor) {
    savedPlan(QStringLiteral("2026"), QStringLiteral("0041"));
    const QString id = savedPlan(QStringLiteral("2026"), QStringLiteral("0042")).ID;
    EXPECT_EQ(view().TipoRecord(), 101014);
    ReportGrid grid;
    view().setLikePannello(true);
    view().refreshGrid(&grid, id);
    ASSERT_EQ(grid.recordCount(), 2);
    ASSERT_NE(grid.focusedRecord(), nullptr);
    EXPECT_EQ(grid.focusedRecord()->tag, id);
    EXPECT_EQ(grid.rowRecord(0)->cell(PROGRESSIVE).value, QStringLiteral("2026-0042"));
    EXPECT_FALSE(grid.column(PATIENT).visible);
    EXPECT_FALSE(grid.column(TAX_CODE).visible);
    EXPECT_EQ(grid.columnCount(), 6);
    grid.resize(698, 300); // as in the patient's desk
    grid.show();
    EXPECT_GE(grid.view()->columnWidth(DESCRIPTION), 240);
    const auto* groups = grid.findChild<QWidget*>(QStringLiteral("groupBox"));
    EXPECT_TRUE(groups->isVisible());
    EXPECT_EQ(groups->findChild<QLabel*>()->text(),
              QStringLiteral("Trascinare qui il titolo di una colonna per raggruppare"));
    view().setLikePannello(false);
    view().RefreshPannello();
    EXPECT_TRUE(grid.column(PATIENT).visible);
    EXPECT_EQ(grid.recordCount(), 2);
    EXPECT_EQ(grid.columnCount(), 6);
    EXPECT_FALSE(view().Elimina(id));
    EXPECT_EQ(dialogs_.messages.last(), QStringLiteral("Cancello ") + id);
    EXPECT_TRUE(treatments().Carica(id));
}

TEST_F(TreatmentLists, KeepsTheSingleSheetSingle) {
    const QString newCaption = QStringLiteral("Nuovo");
    const QStringList onOne{QStringLiteral("Modifica"), QStringLiteral("Elimina"), QStringLiteral("Stampa")};
    ReportGrid grid;
    const auto menu = [&] {
        PanelPopup bar;
        view().Popup(bar, &grid);
        EXPECT_EQ(bar.entries.first(), 5) << "the host's own entries are gone";
        return bar.texts;
    };
    for (const bool isSingle : {true, false}) {
        SCOPED_TRACE(isSingle);
        oConfig->setUnicaSchedaTrattamento(isSingle);
        view().refreshGrid(&grid, QString());
        if (isSingle) {
            EXPECT_EQ(menu(), QStringList{newCaption});
            savedPlan(QStringLiteral("2026"), QStringLiteral("0041"));
        }
        treatments().Refresh();
        patient().corvala().Refresh();
        view().refreshGrid(&grid, QString());
        ASSERT_EQ(grid.recordCount(), 1);
        EXPECT_EQ(menu(), isSingle ? QStringList() : QStringList{newCaption});
        grid.setFocusedRecord(grid.rowRecord(0));
        EXPECT_EQ(menu(), isSingle ? onOne : QStringList{newCaption} + onOne);
    }
}

TEST_F(TreatmentLists, RunsTheCommandsOfThePanel) {
    const QString id = savedPlan(QStringLiteral("2026"), QStringLiteral("0041")).ID;
    ReportGrid grid;
    view().refreshGrid(&grid, id);
    {
        const ModalWindow expected("frmEditTrattamento", pressing("cbConferma", "0041"));
        view().PopupExecute(10078, &grid);
    }
    {
        const ModalWindow expected("frmEditTrattamento", pressing("cbConferma", "0042"));
        view().PopupExecute(10077, &grid);
    }
    EXPECT_TRUE(storedRow(QStringLiteral("2026-0042")));
    view().PopupExecute(10080, &grid);
    dialogs_.taskAnswer.button = QStringLiteral("Si");
    view().refreshGrid(&grid, id);
    ASSERT_EQ(grid.recordCount(), 2);
    view().PopupExecute(10079, &grid);
    EXPECT_EQ(grid.recordCount(), 1);
    EXPECT_FALSE(storedRow(QStringLiteral("2026-0041")));
}

TEST_F(TreatmentLists, ThePanelShowsWhatWasConfirmedBehindItsDoubleClick) {
    savedPlan(QStringLiteral("2026"), QStringLiteral("0041"));
    auto* grid = desk_->window()->findChild<ReportGrid*>(QStringLiteral("pannello(Corvala: Lista Trattamenti)"));
    ASSERT_NE(grid, nullptr);
    view().refreshGrid(grid, QString());
    ASSERT_EQ(grid->rowCount(), 1);
    const ModalWindow expected("frmEditTrattamento", [](QWidget& editor) {
        editor.findChild<QLineEdit*>(QStringLiteral("tbDati(2)"))->setText(QStringLiteral("Corretto"));
        QTest::mouseClick(editor.findChild<QPushButton*>(QStringLiteral("cbConferma")), Qt::LeftButton);
    });
    emit grid->rowDoubleClicked(grid->rowRecord(0), PROGRESSIVE);
    EXPECT_EQ(grid->rowRecord(0)->cell(DESCRIPTION).value, QStringLiteral("Corretto"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the editor, which the desk owns
}

TEST_F(TreatmentLists, OpensThePlanWithWorkGoingOnFromTheRibbon) {
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("CRVL0303"))) << "without a plan the command is off";
    {
        const ModalWindow expected("frmEditTrattamento", [](QWidget& editor) {
            auto* rows = editor.findChild<ReportGrid*>(QStringLiteral("rcRighi"));
            editor.findChild<QPushButton*>(QStringLiteral("cbRighi(0)"))->click();
            QTest::qWait(1);
            EXPECT_TRUE(rows->enterText(0, 2, QStringLiteral("VISITA")));
            EXPECT_TRUE(rows->enterText(0, 4, QStringLiteral("09/03/2026")));
            editor.findChild<QPushButton*>(QStringLiteral("cbConferma"))->click();
        });
        ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0302")));
    }
    ASSERT_TRUE(storedRow(QStringLiteral("2026-0001")));
    {
        const ModalWindow expected("frmEditTrattamento", pressing("cbAnnulla", "0001"));
        ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0303")));
    }
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0301")));
    auto* list = desk_->window()->findChild<QWidget*>(QStringLiteral("frmMDITrattamenti"));
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(gridOf(*list)->rowCount(), 1);

    dialogs_.taskAnswer.button = QStringLiteral("Si");
    ASSERT_TRUE(oTrattamenti->Elimina(patient(), storedRow(QStringLiteral("2026-0001"))->ID));
    QTest::qWait(1);
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("CRVL0303")));
}
