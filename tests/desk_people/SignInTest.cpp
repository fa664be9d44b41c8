#include "desk/people/SignIn.h"
#include "desk/data/UserDirectory.h"
#include "desk_data/PracticeFixture.h"
#include "platform/Clock.h"
#include "support/HelperProcess.h"

#include <gmock/gmock.h>

namespace {

using Outcome = desk::SignIn::Outcome;

const QDateTime MORNING(QDate(2026, 3, 2), QTime(9, 0));
const QString SECRET = QStringLiteral("pàssword 🦷 di prova");

/// Some seconds may have passed since.
auto about(int seconds) {
    return testing::AllOf(testing::Le(seconds), testing::Gt(seconds - 9));
}

} // namespace

/// A practice with a doctor who has a password and an assistant who has none. Counts what is really verified.
class SignInTest : public PracticeFixture {
protected:
    SignInTest() {
        EXPECT_TRUE(users_.save(doctor_, desk::hashPassword(SECRET)));
        EXPECT_TRUE(users_.save(assistant_));
    }
    ~SignInTest() override { platform::releaseClock(); }

    desk::SignIn signIn() {
        return desk::SignIn(*database_, [this](const QString& hash, const QString& password) {
            ++verifications_;
            return desk::verifyPassword(hash, password);
        });
    }
    /// Time passes, as the clock sees it that nobody can turn.
    void wait(int seconds) {
        place_.execute(QStringLiteral("update tblUtenti set istante = istante - %1").arg(seconds));
    }
    void failAllFreeTries() {
        desk::SignIn check = signIn();
        for (int i = 0; i < desk::SignIn::freeTries; ++i)
            ASSERT_EQ(check.attempt(doctor_.codice, QStringLiteral("x")), Outcome::Wrong);
    }

    desk::UserDirectory users_{*database_};
    desk::UserData doctor_{{}, QStringLiteral("D'AN%"), QStringLiteral("D'Angelo"), QStringLiteral("Zoe"), {},
                           0,  QStringLiteral("OD")};
    desk::UserData assistant_{{}, QStringLiteral("ALBA"), QStringLiteral("Alba"), QStringLiteral("Ada"), {},
                              3,  QStringLiteral("AS")};
    int verifications_ = 0;
};

TEST_F(SignInTest, LetsInByPasswordOrByNone) {
    desk::SignIn check = signIn();
    EXPECT_EQ(check.attempt(QStringLiteral("d'an%"), SECRET), Outcome::Accepted);
    EXPECT_EQ(check.attempt(doctor_.codice, QStringLiteral("altro")), Outcome::Wrong);
    EXPECT_EQ(check.attempt(doctor_.codice, QString()), Outcome::Wrong);
    EXPECT_EQ(check.attempt(assistant_.codice, QString()), Outcome::Accepted);
    const QString decomposed = SECRET.normalized(QString::NormalizationForm_D);
    ASSERT_NE(decomposed, SECRET);
    EXPECT_EQ(check.attempt(doctor_.codice, decomposed), Outcome::Accepted) << "as another keyboard composes it";
}

TEST_F(SignInTest, StoresNoPasswordAndNoTwoEqualForms) {
    desk::UserData other = assistant_;
    ASSERT_TRUE(users_.save(other, desk::hashPassword(SECRET)));
    QStringList stored;
    desk::Query query = database_->run(
        QStringLiteral("select improntapassword from {schema}.tblUtenti where improntapassword is not null"));
    while (query.next())
        stored << query.text(0);
    ASSERT_EQ(stored.size(), 2);
    EXPECT_NE(stored[0], stored[1]);
    for (const QString& form : std::as_const(stored)) {
        EXPECT_TRUE(form.startsWith(QLatin1String("$argon2id$")));
        EXPECT_FALSE(form.contains(SECRET));
        EXPECT_FALSE(desk::verifyPassword(form.chopped(1), SECRET)) << "a damaged form lets nobody in";
    }
    EXPECT_FALSE(desk::verifyPassword(QString(), QString()));
}

TEST_F(SignInTest, AnUnknownUserCostsOneVerificationLikeAnyOther) {
    desk::SignIn check = signIn();
    const QString costs = desk::hashPassword(SECRET).section(QLatin1Char('$'), 0, 3);
    EXPECT_EQ(desk::nobodysHash().section(QLatin1Char('$'), 0, 3), costs) << "the same work";
    EXPECT_EQ(check.attempt(doctor_.codice, QStringLiteral("x")), Outcome::Wrong);
    EXPECT_EQ(verifications_, 1);
    EXPECT_EQ(check.attempt(QStringLiteral("nessuno"), QStringLiteral("x")), Outcome::Wrong);
    EXPECT_EQ(verifications_, 2);
    doctor_.attivo = false;
    ASSERT_TRUE(users_.save(doctor_));
    EXPECT_EQ(check.attempt(doctor_.codice, SECRET), Outcome::Wrong) << "no more a user";
    EXPECT_EQ(verifications_, 3);
}

TEST_F(SignInTest, SlowsDownAfterFiveTriesAndLongerEachTimeWhereverTheyAreMade) {
    desk::SignIn check = signIn();
    const auto elsewhere = reopened();
    const auto fail = [&] { return check.attempt(doctor_.codice, QStringLiteral("x")); };
    for (int i = 0; i < desk::SignIn::freeTries; ++i) {
        EXPECT_EQ(check.secondsToWait(doctor_.codice), 0) << i;
        EXPECT_EQ(fail(), Outcome::Wrong) << i;
    }
    for (const int expected : {30, 60, 120, 240, 480, 900, 900}) {
        EXPECT_THAT(check.secondsToWait(doctor_.codice), about(expected));
        EXPECT_THAT(desk::SignIn(*elsewhere).secondsToWait(doctor_.codice), about(expected)) << "no start forgets any";
        wait(expected - 10);
        EXPECT_THAT(check.secondsToWait(doctor_.codice), about(10));
        const int before = verifications_;
        EXPECT_EQ(check.attempt(doctor_.codice, SECRET), Outcome::Wait) << "the right one has to wait as well";
        EXPECT_EQ(verifications_, before);
        wait(10);
        EXPECT_EQ(fail(), Outcome::Wrong);
    }
    wait(900);
    EXPECT_EQ(check.attempt(doctor_.codice, SECRET), Outcome::Accepted);
    EXPECT_EQ(fail(), Outcome::Wrong);
    EXPECT_EQ(check.secondsToWait(doctor_.codice), 0) << "a good sign-in forgets the tries";
    EXPECT_EQ(check.secondsToWait(assistant_.codice), 0);
}

// Whoever sets the time of day forward gains nothing, and whose clock ran ahead once loses nothing.
TEST_F(SignInTest, TheTimeOfDayChangesNoWait) {
    for (const int years : {20, 0, -20}) {
        platform::setClock(MORNING.addYears(years));
        failAllFreeTries();
        for (const int move : {1, -1, 0}) {
            platform::setClock(MORNING.addYears(years + move));
            EXPECT_EQ(signIn().attempt(doctor_.codice, SECRET), Outcome::Wait);
            EXPECT_THAT(signIn().secondsToWait(doctor_.codice), about(desk::SignIn::firstWait));
        }
        wait(desk::SignIn::firstWait);
        EXPECT_EQ(signIn().secondsToWait(doctor_.codice), 0);
        EXPECT_EQ(signIn().attempt(doctor_.codice, SECRET), Outcome::Accepted);
    }
}

// Another clock cannot tell how long ago it was: the wait begins again, and comes to its end.
TEST_F(SignInTest, AnotherStartOfTheComputerBeginsTheWaitAgain) {
    for (const char* change :
         {"orologio = 'ieri'", "orologio = null", "istante = null", "istante = istante + 100000"}) {
        SCOPED_TRACE(change);
        failAllFreeTries();
        wait(desk::SignIn::firstWait);
        place_.execute(QStringLiteral("update tblUtenti set ") + QLatin1String(change));
        EXPECT_EQ(signIn().attempt(doctor_.codice, SECRET), Outcome::Wait);
        EXPECT_THAT(signIn().secondsToWait(doctor_.codice), about(desk::SignIn::firstWait));
        wait(desk::SignIn::firstWait);
        EXPECT_EQ(signIn().secondsToWait(doctor_.codice), 0);
        EXPECT_EQ(signIn().attempt(doctor_.codice, SECRET), Outcome::Accepted);
    }
}

// Twelve desks, three tries each, all at once: five are free, and after the wait there is one.
TEST_F(SignInTest, ManyDesksHaveNoMoreTriesThanOne) {
    for (const int allowed : {desk::SignIn::freeTries, 1}) {
        std::vector<std::unique_ptr<HelperProcess>> desks;
        for (int i = 0; i < 12; ++i)
            desks.push_back(
                std::make_unique<HelperProcess>(QStringList{QStringLiteral("guess"), place_.url(), doctor_.codice}));
        for (const auto& desk : desks)
            desk->waitForWord();
        for (const auto& desk : desks)
            desk->go();
        qsizetype tries = 0;
        for (const auto& desk : desks) {
            desk->end();
            tries += desk->lines().count("provata");
        }
        EXPECT_EQ(tries, allowed);
        wait(desk::SignIn::firstWait);
    }
}

TEST_F(SignInTest, UsersWithRecordsStay) {
    EXPECT_FALSE(users_.hasRecords(assistant_));
    const QString patient = addPatient(QStringLiteral("Rossi"), QStringLiteral("Anna"));
    desk::PatientDirectory patients(*database_, sign_);
    auto data = *patients.load(patient);
    data.idMedico = doctor_.ID;
    ASSERT_TRUE(patients.update(data));
    EXPECT_TRUE(users_.hasRecords(doctor_)) << "the doctor of a patient";
    EXPECT_FALSE(users_.remove(doctor_.ID));

    desk::UserData writer{{}, QStringLiteral("S"), QStringLiteral("D'Amico"), QStringLiteral("Sara"), {},
                          3,  QStringLiteral("AS")};
    ASSERT_TRUE(users_.save(writer));
    EXPECT_TRUE(users_.hasRecords(writer)) << "the patient's card bears the signature";

    desk::UserData planner{
        {}, QStringLiteral("P"), QStringLiteral("Neri"), QStringLiteral("Ugo"), QStringLiteral("NREGUO"),
        0,  QStringLiteral("OD")};
    ASSERT_TRUE(users_.save(planner));
    EXPECT_FALSE(users_.hasRecords(planner));
    QString id;
    ASSERT_TRUE(bound(patient)->corvala().Salva(id, {QStringLiteral("01/10/2025"),
                                                     QStringLiteral("2025-0001"),
                                                     {},
                                                     QStringLiteral("TRT"),
                                                     QStringLiteral("<m medico='NREGUO'/>")}));
    EXPECT_TRUE(users_.hasRecords(planner)) << "the doctor of a plan";

    ASSERT_TRUE(users_.remove(assistant_.ID));
    EXPECT_FALSE(users_.byCode(assistant_.codice));
    EXPECT_FALSE(users_.remove(assistant_.ID));
}

TEST_F(SignInTest, SavingAUserIsAllOrNothing) {
    desk::UserData twice = assistant_;
    twice.ID.clear();
    EXPECT_THROW(users_.save(twice, desk::hashPassword(SECRET)), desk::DatabaseError) << "codes are unique";
    EXPECT_TRUE(twice.ID.isEmpty());
    EXPECT_EQ(users_.all().size(), 2);
    EXPECT_EQ(signIn().attempt(doctor_.codice, SECRET), Outcome::Accepted);
}
