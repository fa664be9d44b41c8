#include "desk/people/SignInWindow.h"
#include "desk/DeskFixture.h"
#include "desk/data/UserDirectory.h"
#include "desk/people/PasswordHash.h"
#include "platform/Clock.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace {

const QString SECRET = QStringLiteral("parola d'ordine");

} // namespace

/// The practice of the fixture with users of its own; the desk opens anew in each test.
class DeskSignIn : public DeskFixture {
protected:
    DeskSignIn() { desk_.reset(); }
    ~DeskSignIn() override { platform::releaseClock(); }

    void addUser(const char* code, int kind, const QString& password = {}) {
        const auto database = elsewhere();
        const QString name = QString::fromUtf8(code);
        desk::UserData user{{}, name, name, QStringLiteral("Ada"), {}, kind, QStringLiteral("OD")};
        ASSERT_TRUE(desk::UserDirectory(*database).save(
            user, password.isEmpty() ? std::nullopt : std::optional(desk::hashPassword(password))));
    }
    void setPasswordOfFirst() {
        const auto database = elsewhere();
        desk::UserDirectory users(*database);
        desk::UserData first = *users.forSignIn({});
        ASSERT_TRUE(users.save(first, desk::hashPassword(SECRET)));
    }
    QString signedIn() {
        desk_ = desk::Desk::open(options_);
        return control<QLabel>("laUtente")->text();
    }
    static void choose(QWidget& window, int row) {
        auto* list = window.findChild<QListWidget*>(QStringLiteral("lbUtenti"));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
    }
    static void enter(QWidget& window, const QString& password) {
        auto* field = window.findChild<QLineEdit*>(QStringLiteral("tbPassword"));
        field->selectAll();
        QTest::keyClicks(field, password);
        QTest::keyClick(field, Qt::Key_Return);
    }
    static QString state(QWidget& window) { return window.findChild<QLabel*>(QStringLiteral("laStato"))->text(); }
};

TEST_F(DeskSignIn, AsksNobodyWhereThereIsNothingToAsk) {
    options_.asksWhoSignsIn = true;
    EXPECT_EQ(signedIn(), QStringLiteral("Utente: Medico dello studio")) << "a single user without a password";
    desk_.reset();
    addUser("ALBA", 3);
    options_.userCode = QStringLiteral("alba");
    EXPECT_EQ(signedIn(), QStringLiteral("Utente: ALBA Ada")) << "named on the command line";
    desk_.reset();
    options_.userCode.clear();
    options_.asksWhoSignsIn = false;
    EXPECT_EQ(signedIn(), QStringLiteral("Utente: Medico dello studio")) << "nobody to ask: the first doctor";
    desk_.reset();

    place_.execute(QStringLiteral("update tblUtenti set attivo = 0 where codice = 'ALBA'"));
    options_.asksWhoSignsIn = true;
    EXPECT_EQ(signedIn(), QStringLiteral("Utente: Medico dello studio")) << "who left is no choice";
    desk_.reset();
    options_.userCode = QStringLiteral("ALBA");
    EXPECT_THROW(desk::Desk::open(options_), desk::OptionError);
}

TEST_F(DeskSignIn, AClickOnAUserWithoutPasswordIsEnough) {
    addUser("D'Angelo %", 3);
    options_.asksWhoSignsIn = true;
    whenModal("frmAccesso", [](QWidget& window) {
        EXPECT_FALSE(window.findChild<QLineEdit*>(QStringLiteral("tbPassword"))->isEnabled());
        choose(window, 1);
    });
    EXPECT_EQ(signedIn(), QStringLiteral("Utente: D'Angelo % Ada"));
}

TEST_F(DeskSignIn, APasswordIsAskedHoweverTheDeskIsStarted) {
    addUser("ALBA", 3);
    setPasswordOfFirst();
    for (const bool named : {false, true}) {
        SCOPED_TRACE(named);
        options_.userCode = named ? QStringLiteral("MEDICO") : QString();
        whenModal("frmAccesso", [named](QWidget& window) {
            EXPECT_EQ(window.findChild<QListWidget*>(QStringLiteral("lbUtenti"))->count(), named ? 1 : 2);
            choose(window, 0);
            EXPECT_TRUE(window.isVisible());
            enter(window, QStringLiteral("sbagliata"));
            EXPECT_EQ(state(window), QStringLiteral("La password non è corretta."));
            enter(window, SECRET);
        });
        EXPECT_EQ(signedIn(), QStringLiteral("Utente: Medico dello studio"));
        desk_.reset();
    }
    whenModal("frmAccesso", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    EXPECT_THROW(desk::Desk::open(options_), desk::SignInCancelled);

    options_.forgottenCode = QStringLiteral("nessuno");
    EXPECT_THROW(desk::Desk::open(options_), desk::OptionError);
    options_.forgottenCode = QStringLiteral("medico");
    EXPECT_EQ(signedIn(), QStringLiteral("Utente: Medico dello studio")) << "nothing is asked any more";
}

TEST_F(DeskSignIn, CountsTheSecondsDownAfterFiveWrongPasswords) {
    setPasswordOfFirst();
    const auto pass = [this](int seconds) {
        place_.execute(QStringLiteral("update tblUtenti set istante = istante - %1").arg(seconds));
        QTest::qWait(1200);
    };
    whenModal("frmAccesso", [&pass](QWidget& window) {
        auto* confirm = window.findChild<QPushButton*>(QStringLiteral("cbConferma"));
        for (int i = 0; i < desk::SignIn::freeTries; ++i)
            enter(window, QStringLiteral("x"));
        const QString waiting = QStringLiteral("Troppi tentativi errati. Si potrà riprovare fra 0:");
        EXPECT_TRUE(state(window).startsWith(waiting)) << state(window).toStdString();
        EXPECT_FALSE(confirm->isEnabled());
        enter(window, SECRET);
        EXPECT_TRUE(window.isVisible()) << "the right one has to wait as well";
        pass(21);
        EXPECT_TRUE(state(window).startsWith(waiting + QLatin1Char('0'))) << state(window).toStdString();
        platform::setClock(QDateTime(QDate(2046, 3, 2), QTime(9, 0)));
        QTest::qWait(1200);
        EXPECT_FALSE(confirm->isEnabled()) << "the time of day has no say";
        pass(9);
        EXPECT_TRUE(confirm->isEnabled());
        enter(window, SECRET);
    });
    EXPECT_EQ(signedIn(), QStringLiteral("Utente: Medico dello studio"));
}
