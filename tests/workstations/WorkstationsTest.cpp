#include "Workstation.h"

#include "desk/data/Database.h"
#include "desk/data/DemoPractice.h"
#include "support/PracticeDatabase.h"

#include <QSet>
#include <vector>

/// Two desks on the demonstration practice, with one folder for the locks.
class WorkstationsTest : public testing::Test {
protected:
    WorkstationsTest() {
        const auto database = desk::Database::open(desk::DatabaseUrl::parse(place_.url()));
        EXPECT_TRUE(desk::DemoPractice::fill(*database));
    }

    std::unique_ptr<Workstation> start(const char* script) {
        return std::make_unique<Workstation>(shared_, place_.url(), script);
    }
    QStringList plansOf2026() {
        const auto database = desk::Database::open(desk::DatabaseUrl::parse(place_.url()));
        QStringList plans;
        desk::Query rows = database->run(QStringLiteral(
            "select idrif1, descrizione from {schema}.tblWorkspace where t1 = 'TRT' and idrif1 like '2026%' "
            "order by idrif1"));
        while (rows.next())
            plans << rows.text(0) + QLatin1Char(' ') + rows.text(1);
        return plans;
    }

    PracticeDatabase place_;
    SharedFolder shared_;
};

TEST_F(WorkstationsTest, ANumberTakenMeanwhileBecomesTheNextAndBothPlansAreSeen) {
    const auto first = start("numero-primo");
    const auto second = start("numero-secondo");
    EXPECT_EQ(first->fault(), "");
    EXPECT_EQ(second->fault(), "");
    EXPECT_EQ(plansOf2026(), QStringList({QStringLiteral("2026-0001 Arcata inferiore"),
                                          QStringLiteral("2026-0002 Arcata superiore")}));
    EXPECT_EQ(shared_.locks(), QStringList());
}

TEST_F(WorkstationsTest, SixDesksThatSaveInTheSameSecondDoubleNoNumber) {
    constexpr int DESKS = 6;
    constexpr int PLANS = 15;
    const QString plan = QStringLiteral("press CRVL0302\nwindow frmEditTrattamento\ntype tbDati(2) \"Piano %1\"\n"
                                        "click cbConferma\nexpect-closed frmEditTrattamento\n");
    std::vector<std::unique_ptr<Workstation>> desks;
    for (int desk = 1; desk <= DESKS; ++desk) {
        const QString ready = QStringLiteral("pronta-%1").arg(desk);
        QString script = QStringLiteral("clock 2026-03-02T09:30:00\npatient RSSMRA80A01H501U\n"
                                        "window frmAmbulatorio\ntouch segni/%1\nwait-file segni/via\n")
                             .arg(ready);
        for (int i = 1; i <= PLANS; ++i)
            script += plan.arg(desk * 100 + i);
        desks.push_back(std::make_unique<Workstation>(shared_, place_.url(), script));
        ASSERT_TRUE(shared_.waitForSign(qPrintable(ready))) << desks.back()->output().toStdString();
    }
    shared_.sign("via");
    for (const auto& desk : desks)
        EXPECT_EQ(desk->fault(), "");
    QSet<QString> numbers;
    QSet<QString> descriptions;
    const QStringList plans = plansOf2026();
    for (const QString& stored : plans) {
        numbers << stored.section(QLatin1Char(' '), 0, 0);
        descriptions << stored.section(QLatin1Char(' '), 1);
    }
    EXPECT_EQ(plans.size(), DESKS * PLANS);
    EXPECT_EQ(numbers.size(), plans.size()) << "doubled numbers";
    EXPECT_EQ(descriptions.size(), plans.size()) << "plans stored twice";
}

TEST_F(WorkstationsTest, APlanInUseOpensReadOnlyAndClosingItLeavesTheLockOfTheFirst) {
    const auto first = start("blocco-primo");
    ASSERT_TRUE(shared_.waitForSign("primo-aperto")) << first->output().toStdString();
    const QStringList lock = shared_.locks();
    EXPECT_EQ(lock.size(), 1);
    const auto second = start("blocco-secondo");
    EXPECT_TRUE(shared_.waitForSign("secondo-chiuso")) << second->output().toStdString();
    EXPECT_EQ(shared_.locks(), lock) << "the lock is not the second one's to take";
    shared_.sign("controllato");
    EXPECT_EQ(first->fault(), "");
    EXPECT_EQ(second->fault(), "");
    EXPECT_EQ(plansOf2026(), QStringList{QStringLiteral("2026-0001 Seconda stesura")});
    EXPECT_EQ(shared_.locks(), QStringList());
}
