#include "EditorFixture.h"
#include "ModalWindow.h"
#include "chart/ToothChart.h"
#include "treatments/TreatmentMemo.h"
#include "treatments/modSituazioneDente.h"

#include <QComboBox>
#include <QLabel>

using platform::ReportGrid;
using platform::form::arrayName;
using namespace gridrow;

namespace {

template <class T>
T* in(QWidget& window, const char* name) {
    T* found = window.findChild<T*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

QStringList textsOf(const ReportGrid& grid) {
    QStringList rows;
    for (int row = 0; row < grid.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < grid.columnCount(); ++column)
            cells << grid.rowRecord(row)->cell(column).value;
        rows << cells.join(u'|');
    }
    return rows;
}

class ToothDetails : public EditorFixture {
protected:
    static clsItemRigoTrattamento row(const char* number, const char* service, const char* tooth,
                                      const char* teeth = "") {
        clsItemRigoTrattamento row;
        row.progressivo = QLatin1String(number);
        row.servizio = QLatin1String(service);
        row.descrizione = QLatin1String("Lavoro ") + QLatin1String(number);
        row.dente = QLatin1String(tooth);
        row.denti = QLatin1String(teeth);
        return row;
    }
    clsItemTrattamento plan(const char* number, const QList<clsItemRigoTrattamento>& rows, const char* situation = "") {
        clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QLatin1String(number));
        item.SituazioneOrale = QLatin1String(situation);
        for (const clsItemRigoTrattamento& row : rows)
            item.righi.add(row.progressivo, row);
        EXPECT_TRUE(treatments().Salva(item));
        treatments().Refresh();
        return item;
    }
    /// "Informazioni" in the menu of a tooth.
    void details(int index, std::function<void(QWidget&)> work) {
        const ModalWindow expected("frmEditDente", std::move(work));
        dialogs_.choice = QStringLiteral("Informazioni");
        QTest::mouseClick(find<QWidget>(arrayName("imTooth", index)), Qt::RightButton);
    }
    QString savedSituation(const char* number) {
        clsItemTrattamento item;
        readTreatmentMemo(item, storedRow(QLatin1String(number))->m1);
        return item.SituazioneOrale;
    }
};

} // namespace

TEST_F(ToothDetails, TakesSituationAndTextWithoutTearingItsNeighboursApart) {
    open(plan("0001", {}, "6:2:dolente;8:3:").ID);
    details(7, [](QWidget& window) {
        EXPECT_EQ(in<QLabel>(window, "laDente(0)")->text(), QStringLiteral("1.1"));
        auto* situation = in<QComboBox>(window, "cbSituazione");
        EXPECT_EQ(situation->currentIndex(), -1);
        EXPECT_EQ(situation->count(), int(colSituazioniDenti->size()));
        EXPECT_TRUE(in<QLineEdit>(window, "tbDati")->text().isEmpty());
        situation->setCurrentIndex(situation->findData(QStringLiteral("4")));
        in<QLineEdit>(window, "tbDati")->setText(QStringLiteral("alle 10:30; 9:1:no"));
        in<QPushButton>(window, "cbConferma")->click();
    });
    EXPECT_EQ(find<QWidget>(arrayName("imTooth", 7))->toolTip(), QStringLiteral("alle 10:30, 9:1:no"));
    confirm();
    EXPECT_EQ(savedSituation("2026-0001"), QStringLiteral("6:2:dolente;7:4:alle 10:30, 9:1:no;8:3:"));
}

TEST_F(ToothDetails, KeepsWhatItHasWhenTheWindowIsCancelledAndLosesAllWhenEmptied) {
    open(plan("0001", {}, "7:3:a:b").ID);
    details(7, [](QWidget& window) {
        EXPECT_EQ(in<QComboBox>(window, "cbSituazione")->currentData().toString(), QStringLiteral("3"));
        EXPECT_EQ(in<QLineEdit>(window, "tbDati")->text(), QStringLiteral("a:b")); // as another program wrote it
        in<QLineEdit>(window, "tbDati")->setText(QStringLiteral("altro"));
        in<QPushButton>(window, "cbAnnulla")->click();
    });
    EXPECT_EQ(find<QWidget>(arrayName("imTooth", 7))->property("tag").toString(), QStringLiteral("7:3:a:b"));
    details(7, [](QWidget& window) {
        in<QPushButton>(window, "cbNessuna")->click();
        in<QLineEdit>(window, "tbDati")->clear();
        in<QPushButton>(window, "cbConferma")->click();
    });
    EXPECT_EQ(find<QWidget>(arrayName("imTooth", 7))->property("tag").toString(), QString());
    confirm();
    EXPECT_EQ(savedSituation("2026-0001"), QString());
}

TEST_F(ToothDetails, ShowsWhatThePlansDidToIt) {
    plan("0001", {row("01", "VISITA", "7"), row("02", "CORONA", "+", "7;8"), row("03", "IGIENE", "8")},
         "8:3:;7:2:dolente:molto");
    plan("0002", {row("01", "VISITA", "17"), row("02", "CORONA", "+", "17;70")});
    const clsItemTrattamento last = plan("0003", {row("01", "IGIENE", "7")}, "7:77:ignota");
    open(last.ID);
    details(7, [](QWidget& window) {
        auto* plans = in<ReportGrid>(window, "rcTrattamenti");
        auto* work = in<ReportGrid>(window, "rcRighi");
        EXPECT_EQ(textsOf(*plans), (QStringList{QStringLiteral("2026-0001|10/03/2026|Cariato|dolente:molto"),
                                                QStringLiteral("2026-0003|10/03/2026||ignota")}));
        EXPECT_EQ(plans->focusedRecord(), plans->rowRecord(1)); // the plan that is open
        EXPECT_EQ(textsOf(*work), QStringList{QStringLiteral("IGIENE|Lavoro 01")});
        EXPECT_EQ(in<QComboBox>(window, "cbSituazione")->currentIndex(), -1);
        plans->setFocusedRecord(plans->rowRecord(0));
        EXPECT_EQ(textsOf(*work),
                  (QStringList{QStringLiteral("VISITA|Lavoro 01"), QStringLiteral("CORONA|Lavoro 02")}));
    });
    details(30, [](QWidget& window) { EXPECT_EQ(in<ReportGrid>(window, "rcTrattamenti")->rowCount(), 0); });
}

TEST_F(ToothDetails, ZoomsTheRowsAndMarksTheirTeethBehind) {
    open(plan("0001", {row("01", "VISITA", "20"), row("02", "CORONA", "+", "7;6")}).ID);
    const ModalWindow expected("frmZoomRighiTrattamento", [this](QWidget& zoom) {
        EXPECT_EQ(in<QLabel>(zoom, "laTitoloForm")->text(), QStringLiteral("TRATTAMENTO 2026-0001"));
        auto* grid = in<ReportGrid>(zoom, "rcRighi");
        ASSERT_EQ(grid->rowCount(), 2);
        for (int cell = NUMBER; cell <= NOTES; ++cell) {
            EXPECT_EQ(grid->rowRecord(1)->cell(cell).value, rows()->rowRecord(1)->cell(cell).value) << cell;
            EXPECT_EQ(grid->rowRecord(1)->cell(cell).tag, rows()->rowRecord(1)->cell(cell).tag) << cell;
        }
        const auto marked = [this] {
            QStringList teeth;
            const auto* chart = window_->findChild<ToothChart*>();
            for (int index = 0; index < TOOTH_COUNT; ++index)
                if (chart->isMarked(index)) teeth << DenteDaIndice(index);
            return teeth.join(u' ');
        };
        grid->setFocusedRecord(grid->rowRecord(0));
        EXPECT_EQ(marked(), DenteDaIndice(20));
        grid->setFocusedRecord(grid->rowRecord(1));
        EXPECT_EQ(marked(), QStringLiteral("1.2 1.1"));
        grid->rowRecord(1)->cell(DESCRIPTION).value = QStringLiteral("cambiata");
        grid->rowRecord(1)->cell(DESCRIPTION).setBackground(Qt::blue);
        QTest::mouseClick(in<QPushButton>(zoom, "cbChiudi"), Qt::LeftButton);
    });
    press(arrayName("cbRighi", 3));
    QTest::qWait(60);
    EXPECT_EQ(cell(1, DESCRIPTION), QStringLiteral("Lavoro 02"));
    EXPECT_NE(rows()->rowRecord(1)->cell(DESCRIPTION).style().background, QColor(Qt::blue));
}
