#include "Workstation.h"

#include "desk/data/Database.h"
#include "desk/data/DemoPractice.h"
#include "support/PracticeDatabase.h"

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
