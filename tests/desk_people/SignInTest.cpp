#include "desk/people/SignIn.h"
#include "desk/data/UserDirectory.h"
#include "desk_data/PracticeFixture.h"
#include "platform/Clock.h"

namespace {

using Outcome = desk::SignIn::Outcome;

const QDateTime MORNING(QDate(2026, 3, 2), QTime(9, 0));
const QString SECRET = QStringLiteral("pàssword 🦷 di prova");

} // namespace

/// A practice with a doctor who has a password and an assistant who has none. Counts what is really verified.
class SignInTest : public PracticeFixture {
protected:
    SignInTest() {
        platform::setClock(MORNING);
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
    static void wait(int seconds) { platform::setClock(platform::now().addSecs(seconds)); }

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
        EXPECT_EQ(check.secondsToWait(doctor_.codice), expected);
        EXPECT_EQ(desk::SignIn(*elsewhere).secondsToWait(doctor_.codice), expected) << "a new start forgets none";
        wait(expected - 1);
        EXPECT_EQ(check.secondsToWait(doctor_.codice), 1);
        const int before = verifications_;
        EXPECT_EQ(check.attempt(doctor_.codice, SECRET), Outcome::Wait) << "the right one has to wait as well";
        EXPECT_EQ(verifications_, before);
        wait(1);
        EXPECT_EQ(fail(), Outcome::Wrong);
    }
    wait(900);
    EXPECT_EQ(check.attempt(doctor_.codice, SECRET), Outcome::Accepted);
    EXPECT_EQ(fail(), Outcome::Wrong);
    EXPECT_EQ(check.secondsToWait(doctor_.codice), 0) << "a good sign-in forgets the tries";
    EXPECT_EQ(check.secondsToWait(assistant_.codice), 0);
}

TEST_F(SignInTest, AWrongClockShutsNobodyOutForLong) {
    platform::setClock(MORNING.addYears(20));
    for (int i = 0; i < desk::SignIn::freeTries; ++i)
        signIn().attempt(doctor_.codice, QStringLiteral("x"));
    platform::setClock(MORNING);
    EXPECT_EQ(signIn().attempt(doctor_.codice, SECRET), Outcome::Wait);
    wait(desk::SignIn::firstWait);
    EXPECT_EQ(signIn().attempt(doctor_.codice, SECRET), Outcome::Accepted);
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
