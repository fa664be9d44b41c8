// The practice-wide list with more plans than are read at once.
#include "platform/ReportGrid.h"
#include "treatments/TreatmentColumns.h"
#include "treatments/TreatmentFixture.h"
#include "treatments/frmMDITrattamenti.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using platform::ReportRecord;
using namespace treatmentcolumns;

namespace {

constexpr int PLANS = 3000;

/// Plans "p1" to "p3000" of the open patient with their numbers; those with an even number are finished.
class LongList : public TreatmentFixture {
protected:
    LongList() {
        database_.execute(
            QStringLiteral("with recursive n(i) as (select 1 union all select i + 1 from n where i < %1) "
                           "insert into tblWorkspace (ID, tiporecord, t1, idrif1, idpaziente, Data, descrizione, m1) "
                           "select 'p' || i, 906, 'TRT', printf('2026-%04d', i), '%2', '2026-03-05 00:00:00', 'Piano', "
                           "printf('<trattamento anno=\"2026\" progressivo=\"%04d\" data=\"05/03/2026\"><righi>"
                           "<rigo progressivo=\"01\" fineLavori=\"%s\"/></righi></trattamento>', i, "
                           "case i % 2 when 0 then '06/03/2026' else '' end) from n")
                .arg(PLANS)
                .arg(patient().ID()));
        window_ = std::make_unique<frmMDITrattamenti>();
        window_->show();
    }

    platform::ReportGrid& grid() { return *window_->findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti")); }
    void click(const char* button) {
        QTest::mouseClick(window_->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
    }
    bool isReading() { return window_->findChild<QWidget*>(QStringLiteral("cbInterrompi"))->isVisible(); }
    QString progress() { return window_->findChild<QLabel*>(QStringLiteral("laLettura"))->text(); }
    QString text(int row, int column) { return grid().rowRecord(row)->cell(column).value; }
    /// Records whose state is not there.
    int unread() {
        int count = 0;
        for (int i = 0; i < grid().recordCount(); ++i)
            count += grid().record(i)->cell(STATUS).value.isEmpty() ? 1 : 0;
        return count;
    }
    ReportRecord* byTag(const char* tag) {
        for (int i = 0; i < grid().recordCount(); ++i)
            if (grid().record(i)->tag == QLatin1String(tag)) return grid().record(i);
        return nullptr;
    }

    std::unique_ptr<frmMDITrattamenti> window_;
};

} // namespace

TEST_F(LongList, StandsWholeAtOnceAndReadsOnWhileItLives) {
    ASSERT_EQ(grid().rowCount(), PLANS);
    EXPECT_EQ(text(0, PROGRESSIVE), QStringLiteral("2026-3000"));
    EXPECT_EQ(text(PLANS - 1, PROGRESSIVE), QStringLiteral("2026-0001"));
    EXPECT_TRUE(isReading());
    EXPECT_GT(unread(), 1000);
    window_->grab();
    EXPECT_EQ(text(0, STATUS), QStringLiteral("FINITO")) << "what is on screen is read first";
    EXPECT_EQ(text(1, STATUS), QStringLiteral("Da iniziare"));

    window_->RefreshTrattamenti(QStringLiteral("p6"));
    ASSERT_NE(grid().focusedRecord(), nullptr);
    EXPECT_EQ(grid().focusedRecord()->tag, QStringLiteral("p6")) << "the place of a plan is known before its memo";
    window_->grab();
    EXPECT_EQ(grid().focusedRecord()->cell(STATUS).value, QStringLiteral("FINITO"));
    EXPECT_TRUE(byTag("p1500")->cell(PATIENT).style().bold);
    desk_->closePatient();
    window_->RefreshGraficaTrattamenti();

    click("cbFiltra"); // once more on the way
    EXPECT_EQ(grid().focusedRecord()->tag, QStringLiteral("p6"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isReading(); }));
    EXPECT_EQ(grid().rowCount(), PLANS);
    EXPECT_EQ(unread(), 0);
    EXPECT_FALSE(byTag("p1500")->cell(PATIENT).style().bold);
}

TEST_F(LongList, APartNeverPassesForTheWhole) {
    EXPECT_EQ(progress(), QStringLiteral("Lettura in corso: 0 di 3000"));
    window_->grab();
    click("cbInterrompi");
    EXPECT_FALSE(isReading());
    const int read = grid().rowCount();
    EXPECT_GT(read, 0);
    EXPECT_LT(read, PLANS);
    EXPECT_EQ(unread(), 0) << "a plan without its state would be taken for one that has none";
    EXPECT_EQ(text(0, PROGRESSIVE), QStringLiteral("2026-3000"));
    const QString partial = QStringLiteral("Elenco parziale: letti %1 di 3000. Filtra legge da capo.").arg(read);
    EXPECT_EQ(progress(), partial);
    QTest::qWait(30);
    EXPECT_EQ(grid().rowCount(), read);
    EXPECT_TRUE(window_->findChild<QLabel*>(QStringLiteral("laLettura"))->isVisible());
    click("cbFiltra");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isReading(); }));
    EXPECT_EQ(grid().rowCount(), PLANS);
    EXPECT_FALSE(window_->findChild<QLabel*>(QStringLiteral("laLettura"))->isVisible());
}

TEST_F(LongList, AnOrderByTheStateWaitsForAllOfThem) {
    const QHeaderView* head = grid().view()->header();
    QTest::mouseClick(head->viewport(), Qt::LeftButton, {},
                      {head->sectionViewportPosition(STATUS) + 20, head->height() / 2});
    EXPECT_EQ(unread(), 0);
    EXPECT_FALSE(isReading());
    for (int row = 1; row < PLANS; ++row)
        ASSERT_LE(text(row - 1, STATUS), text(row, STATUS));

    grid().setGroups({STATUS});
    window_->RefreshTrattamenti(QString());
    EXPECT_EQ(unread(), 0) << "the groups of the former reading stay";
    ASSERT_EQ(grid().rowCount(), PLANS + 2);
    EXPECT_EQ(grid().rowCaption(0), QStringLiteral("Status: Da iniziare (1500)"));
}

TEST_F(LongList, ReadsPlansThatAFoldedGroupHides) {
    grid().setGroups({DATE});
    window_->RefreshTrattamenti(QString());
    grid().view()->collapseAll();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isReading(); }));
    EXPECT_EQ(unread(), 0);
}

TEST_F(LongList, AnErrorOnTheWayLeavesNoPart) {
    ASSERT_TRUE(isReading());
    raiseEvent("fine"); // there is no host any more that could be asked for the rest
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isReading(); }));
    EXPECT_EQ(grid().rowCount(), 0);
    EXPECT_EQ(grid().emptyText(), QStringLiteral("Elenco non letto: il modulo non è più attivo"));
    EXPECT_TRUE(window_->findChild<QTimer*>(QStringLiteral("tmRilettura"))->isActive());
}

TEST_F(LongList, BearsADeletedRowAndItsOwnEndOnTheWay) {
    window_->hide(); // nothing is painted, so that the plan is unread
    window_->RefreshTrattamenti(QStringLiteral("p1"));
    dialogs_.choice = QStringLiteral("Elimina");
    dialogs_.taskAnswer.button = QStringLiteral("Si");
    emit grid().rowRightClicked(grid().focusedRecord(), 0);
    EXPECT_EQ(byTag("p1"), nullptr);
    window_->show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isReading(); }));
    EXPECT_EQ(grid().rowCount(), PLANS - 1);
    EXPECT_EQ(unread(), 0);
    window_->RefreshTrattamenti(QString());
    window_.reset();
    QTest::qWait(30);
}
