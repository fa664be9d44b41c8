#include "FinestraModale.h"
#include "StudioDiProva.h"
#include "host/contract/View.h"
#include "platform/ReportGrid.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/ColonneTrattamenti.h"
#include "treatments/frmMDITrattamenti.h"

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>

using platform::ReportGrid;
using namespace colonnetrattamenti;

namespace {

/// The menu of a panel, with the entries that the host puts in every one.
class MenuPannello : public host::PopupBar {
public:
    void RemoveItem(int command) override { voci.removeAll(command); }
    void AddItem(int command, const QString& caption) override {
        voci << command;
        testi << caption;
    }
    QList<int> voci{80, 77, 78, 79, 5};
    QStringList testi;
};

/// In the editor of the plan with that number: presses the button.
std::function<void(QWidget&)> preme(const char* bottone, const char* numero) {
    return [=](QWidget& editor) {
        EXPECT_EQ(editor.findChild<QLineEdit*>(QStringLiteral("tbDati(1)"))->text(), QLatin1String(numero));
        QTest::mouseClick(editor.findChild<QPushButton*>(QLatin1String(bottone)), Qt::LeftButton);
    };
}

class Elenchi : public StudioDiProva {
protected:
    static ReportGrid* griglia(QWidget& finestra) {
        return finestra.findChild<ReportGrid*>(QStringLiteral("rcTrattamenti"));
    }
    static int rigaDi(ReportGrid& grid, const QString& numero) {
        for (int riga = 0; riga < grid.rowCount(); ++riga) {
            if (grid.rowRecord(riga)->cell(PROGRESSIVO).value == numero) return riga;
        }
        return -1;
    }
    static bool grassetto(ReportGrid& grid, int riga) {
        return grid.rowRecord(riga)->cell(CLIENTE).style().bold &&
               grid.rowRecord(riga)->cell(CODICE_FISCALE).style().bold;
    }
};

} // namespace

TEST_F(Elenchi, ShowsThePlansOfThePeriodAndMarksThoseOfTheOpenPatient) {
    const QString id = salvato(QStringLiteral("2026"), QStringLiteral("0041")).ID;
    frmMDITrattamenti finestra;
    finestra.show();
    ReportGrid& grid = *griglia(finestra);
    auto* da = finestra.findChild<QDateEdit*>(QStringLiteral("dtpData(0)"));
    auto* a = finestra.findChild<QDateEdit*>(QStringLiteral("dtpData(1)"));
    EXPECT_EQ(da->date(), QDate(2026, 3, 1));
    EXPECT_EQ(a->date(), QDate(2026, 3, 31));
    EXPECT_EQ(finestra.findChild<QLabel*>(QStringLiteral("laTitoloTrattamenti"))->text(),
              QStringLiteral("ELENCO TRATTAMENTI 01/03/2026 - 31/03/2026"));
    ASSERT_EQ(grid.rowCount(), 1);
    EXPECT_EQ(grid.rowRecord(0)->tag, id);
    EXPECT_EQ(grid.rowRecord(0)->cell(CODICE_FISCALE).value, QStringLiteral("RSSMRA80A01H501U"));
    EXPECT_TRUE(grassetto(grid, 0));

    grid.setFocusedRecord(grid.rowRecord(0));
    da->setDate(QDate(2024, 1, 1));
    QTest::mouseClick(finestra.findChild<QPushButton*>(QStringLiteral("cbFiltra")), Qt::LeftButton);
    EXPECT_GT(grid.rowCount(), 10);
    EXPECT_EQ(grid.rowRecord(0)->tag, id) << "sorted by number, descending";
    ASSERT_NE(grid.focusedRecord(), nullptr);
    EXPECT_EQ(grid.focusedRecord()->tag, id) << "the selected plan stays so";
    EXPECT_FALSE(grassetto(grid, 1));
    EXPECT_FALSE(finestra.findChild<QLabel*>(QStringLiteral("pbAttesa"))->isVisible());

    finestra.resize(1400, 600);
    QTest::qWait(1);
    const QString piuLungo = QStringLiteral("1 lavori finiti. Ci sono 2 lavori aperti. Restano da iniziare 2 lavori");
    EXPECT_GE(grid.view()->columnWidth(STATUS), grid.fontMetrics().horizontalAdvance(piuLungo) + 25) << "with its icon";

    desk_->closePatient();
    finestra.RefreshGraficaTrattamenti();
    EXPECT_FALSE(grassetto(grid, 0));
}

TEST_F(Elenchi, LeavesOutThePlansOfAPatientWhoIsNotThere) {
    salvato(QStringLiteral("2026"), QStringLiteral("0041"));
    salvato(QStringLiteral("2026"), QStringLiteral("0042"));
    oHost->DB().Execute(QStringLiteral("PRAGMA foreign_keys=OFF"));
    oHost->DB().Execute(QStringLiteral("Update ") + oHost->Utente().idschema() +
                        QStringLiteral(".tblWorkspace SET idpaziente='nessuno' Where (idrif1='2026-0041')"));
    frmMDITrattamenti finestra;
    ASSERT_EQ(griglia(finestra)->rowCount(), 1);
    EXPECT_EQ(griglia(finestra)->rowRecord(0)->cell(PROGRESSIVO).value, QStringLiteral("2026-0042"));
}

TEST_F(Elenchi, OpensThePlanOfAnotherPatientOnDoubleClickAndEnter) {
    salvato(QStringLiteral("2026"), QStringLiteral("0041"));
    const QString suo = paziente().ID();
    frmMDITrattamenti finestra;
    finestra.show();
    ReportGrid& grid = *griglia(finestra);
    ASSERT_EQ(grid.rowCount(), 1);
    for (const bool daTasto : {false, true}) {
        SCOPED_TRACE(daTasto);
        desk_->closePatient();
        grid.setFocusedRecord(grid.rowRecord(0));
        const FinestraModale attesa("frmEditTrattamento", preme("cbAnnulla", "0041"));
        if (daTasto)
            QTest::keyClick(grid.view(), Qt::Key_Return);
        else
            emit grid.rowDoubleClicked(grid.rowRecord(0), PROGRESSIVO);
        ASSERT_NE(PazienteAperto(), nullptr);
        EXPECT_EQ(PazienteAperto()->ID(), suo);
    }
}

TEST_F(Elenchi, OffersItsCommandsAndDeletesThroughThem) {
    salvato(QStringLiteral("2026"), QStringLiteral("0041"));
    salvato(QStringLiteral("2026"), QStringLiteral("0042"));
    frmMDITrattamenti finestra;
    finestra.show();
    ReportGrid& grid = *griglia(finestra);
    const QStringList soloNuovo{QStringLiteral("Nuovo")};
    const QStringList tutte =
        soloNuovo + QStringList{QStringLiteral("Modifica"), QStringLiteral("Elimina"), QStringLiteral("Stampa")};
    // Wherever the click falls, what counts is how many rows are selected.
    const auto menuNelVuoto = [&] {
        QWidget* fondo = grid.view()->viewport();
        QTest::mouseClick(fondo, Qt::RightButton, {}, fondo->rect().bottomLeft() + QPoint(20, -5));
        return dialoghi_.menu;
    };
    grid.setFocusedRecord(nullptr);
    EXPECT_EQ(menuNelVuoto(), soloNuovo);
    grid.view()->selectAll();
    EXPECT_EQ(menuNelVuoto(), soloNuovo) << "a command for one row is offered for two";
    emit grid.rowRightClicked(grid.rowRecord(0), 0);
    EXPECT_EQ(dialoghi_.menu, soloNuovo);

    grid.setFocusedRecord(grid.rowRecord(1));
    dialoghi_.choice = QStringLiteral("Elimina");
    dialoghi_.taskAnswer.button = QStringLiteral("Si");
    EXPECT_EQ(menuNelVuoto(), tutte);
    EXPECT_EQ(dialoghi_.titles.last(), QStringLiteral("Tessara 5000. CORVALA"));
    EXPECT_EQ(grid.rowCount(), 1);
    EXPECT_FALSE(riga(QStringLiteral("2026-0041")));
}

TEST_F(Elenchi, FillsThePanelAndFocusesTheRecordAskedFor) {
    salvato(QStringLiteral("2026"), QStringLiteral("0041"));
    const QString id = salvato(QStringLiteral("2026"), QStringLiteral("0042")).ID;
    EXPECT_EQ(vista().TipoRecord(), 101014);
    ReportGrid grid;
    vista().setLikePannello(true);
    vista().refreshGrid(&grid, id);
    ASSERT_EQ(grid.recordCount(), 2);
    ASSERT_NE(grid.focusedRecord(), nullptr);
    EXPECT_EQ(grid.focusedRecord()->tag, id);
    EXPECT_EQ(grid.rowRecord(0)->cell(PROGRESSIVO).value, QStringLiteral("2026-0042"));
    EXPECT_FALSE(grid.column(CLIENTE).visible);
    EXPECT_FALSE(grid.column(CODICE_FISCALE).visible);
    EXPECT_EQ(grid.columnCount(), 6);
    grid.resize(698, 300); // as in the patient's desk
    grid.show();
    EXPECT_GE(grid.view()->columnWidth(DESCRIZIONE), 240);
    const auto* gruppi = grid.findChild<QWidget*>(QStringLiteral("groupBox"));
    EXPECT_TRUE(gruppi->isVisible());
    EXPECT_EQ(gruppi->findChild<QLabel*>()->text(),
              QStringLiteral("Trascinare qui il titolo di una colonna per raggruppare"));
    vista().setLikePannello(false);
    vista().RefreshPannello();
    EXPECT_TRUE(grid.column(CLIENTE).visible);
    EXPECT_EQ(grid.recordCount(), 2);
    EXPECT_EQ(grid.columnCount(), 6);
    EXPECT_FALSE(vista().Elimina(id));
    EXPECT_EQ(dialoghi_.messages.last(), QStringLiteral("Cancello ") + id);
    EXPECT_TRUE(trattamenti().Carica(id));
}

TEST_F(Elenchi, KeepsTheSingleSheetSingle) {
    const QString nuovo = QStringLiteral("Nuovo");
    const QStringList suUno{QStringLiteral("Modifica"), QStringLiteral("Elimina"), QStringLiteral("Stampa")};
    ReportGrid grid;
    const auto menu = [&] {
        MenuPannello bar;
        vista().Popup(bar, &grid);
        EXPECT_EQ(bar.voci.first(), 5) << "the host's own entries are gone";
        return bar.testi;
    };
    for (const bool unica : {true, false}) {
        SCOPED_TRACE(unica);
        oConfig->setUnicaSchedaTrattamento(unica);
        vista().refreshGrid(&grid, QString());
        if (unica) {
            EXPECT_EQ(menu(), QStringList{nuovo});
            salvato(QStringLiteral("2026"), QStringLiteral("0041"));
        }
        trattamenti().Refresh();
        paziente().corvala().Refresh();
        vista().refreshGrid(&grid, QString());
        ASSERT_EQ(grid.recordCount(), 1);
        EXPECT_EQ(menu(), unica ? QStringList() : QStringList{nuovo});
        grid.setFocusedRecord(grid.rowRecord(0));
        EXPECT_EQ(menu(), unica ? suUno : QStringList{nuovo} + suUno);
    }
}

TEST_F(Elenchi, RunsTheCommandsOfThePanel) {
    const QString id = salvato(QStringLiteral("2026"), QStringLiteral("0041")).ID;
    ReportGrid grid;
    vista().refreshGrid(&grid, id);
    {
        const FinestraModale attesa("frmEditTrattamento", preme("cbConferma", "0041"));
        vista().PopupExecute(10078, &grid);
    }
    {
        const FinestraModale attesa("frmEditTrattamento", preme("cbConferma", "0042"));
        vista().PopupExecute(10077, &grid);
    }
    EXPECT_TRUE(riga(QStringLiteral("2026-0042")));
    vista().PopupExecute(10080, &grid);
    dialoghi_.taskAnswer.button = QStringLiteral("Si");
    vista().refreshGrid(&grid, id);
    ASSERT_EQ(grid.recordCount(), 2);
    vista().PopupExecute(10079, &grid);
    EXPECT_EQ(grid.recordCount(), 1);
    EXPECT_FALSE(riga(QStringLiteral("2026-0041")));
}

TEST_F(Elenchi, ThePanelShowsWhatWasConfirmedBehindItsDoubleClick) {
    salvato(QStringLiteral("2026"), QStringLiteral("0041"));
    auto* grid = desk_->window()->findChild<ReportGrid*>(QStringLiteral("pannello(Corvala: Lista Trattamenti)"));
    ASSERT_NE(grid, nullptr);
    vista().refreshGrid(grid, QString());
    ASSERT_EQ(grid->rowCount(), 1);
    const FinestraModale attesa("frmEditTrattamento", [](QWidget& editor) {
        editor.findChild<QLineEdit*>(QStringLiteral("tbDati(2)"))->setText(QStringLiteral("Corretto"));
        QTest::mouseClick(editor.findChild<QPushButton*>(QStringLiteral("cbConferma")), Qt::LeftButton);
    });
    emit grid->rowDoubleClicked(grid->rowRecord(0), PROGRESSIVO);
    EXPECT_EQ(grid->rowRecord(0)->cell(DESCRIZIONE).value, QStringLiteral("Corretto"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the editor, which the desk owns
}

TEST_F(Elenchi, OpensThePlanWithWorkGoingOnFromTheRibbon) {
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("CRVL0303"))) << "without a plan the command is off";
    {
        const FinestraModale attesa("frmEditTrattamento", [](QWidget& editor) {
            auto* righi = editor.findChild<ReportGrid*>(QStringLiteral("rcRighi"));
            editor.findChild<QPushButton*>(QStringLiteral("cbRighi(0)"))->click();
            QTest::qWait(1);
            EXPECT_TRUE(righi->enterText(0, 2, QStringLiteral("VISITA")));
            EXPECT_TRUE(righi->enterText(0, 4, QStringLiteral("09/03/2026")));
            editor.findChild<QPushButton*>(QStringLiteral("cbConferma"))->click();
        });
        ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0302")));
    }
    ASSERT_TRUE(riga(QStringLiteral("2026-0001")));
    {
        const FinestraModale attesa("frmEditTrattamento", preme("cbAnnulla", "0001"));
        ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0303")));
    }
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0301")));
    auto* elenco = desk_->window()->findChild<QWidget*>(QStringLiteral("frmMDITrattamenti"));
    ASSERT_NE(elenco, nullptr);
    EXPECT_EQ(griglia(*elenco)->rowCount(), 1);

    dialoghi_.taskAnswer.button = QStringLiteral("Si");
    ASSERT_TRUE(oTrattamenti->Elimina(paziente(), riga(QStringLiteral("2026-0001"))->ID));
    EXPECT_FALSE(desk_->pressCommand(QStringLiteral("CRVL0303")));
}
