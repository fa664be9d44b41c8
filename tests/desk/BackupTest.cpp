#include "DeskFixture.h"

#include "desk/data/SqliteCopy.h"
#include "support/PracticeDatabase.h"

#include <QFile>
#include <QStatusBar>
#include <QUrl>

/// The two commands, as a person uses them.
class DeskBackup : public DeskFixture {
protected:
    QString copy() const { return folder_.filePath(QStringLiteral("copie di riserva.db")); }
    void press(const char* command) {
        QString error;
        EXPECT_TRUE(desk_->pressCommand(QString::fromUtf8(command), &error)) << error.toStdString();
    }
    QString lastMessage() const { return dialogs_.messages.isEmpty() ? QString() : dialogs_.messages.last(); }
};

TEST_F(DeskBackup, ACopyIsMadeToldAndRestored) {
    dialogs_.file = copy();
    press("Copia di sicurezza…");
    ASSERT_EQ(dialogs_.messages.size(), 1);
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("Pazienti: 3"))) << lastMessage().toStdString();
    EXPECT_TRUE(lastMessage().contains(copy()));
    ASSERT_TRUE(QFile::exists(copy()));

    ASSERT_TRUE(desk_->openPatient(rossi_));
    addRecord(QStringLiteral("dopo la copia"));
    dialogs_.answer = platform::Answer::No;
    press("Ripristina copia…");
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("Ripristinare la copia?")));
    ASSERT_NE(desk_->host().paziente(), nullptr) << "a No changes nothing";
    EXPECT_EQ(desk_->host().paziente()->corvala().Lista().size(), 1);

    dialogs_.answer = platform::Answer::Yes;
    press("Ripristina copia…");
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("La copia è stata ripristinata"))) << lastMessage().toStdString();
    EXPECT_EQ(desk_->host().paziente(), nullptr) << "nothing of the former practice stays on screen";
    ASSERT_TRUE(desk_->openPatient(rossi_));
    EXPECT_TRUE(desk_->host().paziente()->corvala().Lista().isEmpty());
    addRecord(QStringLiteral("nella copia"));
    EXPECT_EQ(desk_->host().paziente()->corvala().Lista().size(), 1);
}

TEST_F(DeskBackup, ABrokenCopyIsRefusedBeforeAnythingIsAsked) {
    QFile broken(copy());
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("SQLite format 3 e poi più niente");
    broken.close();
    ASSERT_TRUE(desk_->openPatient(rossi_));
    dialogs_.file = copy();
    dialogs_.answer = platform::Answer::Yes;
    press("Ripristina copia…");
    ASSERT_EQ(dialogs_.messages.size(), 1);
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("non si può ripristinare"))) << lastMessage().toStdString();
    EXPECT_NE(desk_->host().paziente(), nullptr);
}

TEST_F(DeskBackup, AFailureIsToldAndACancelIsSilent) {
    press("Copia di sicurezza…");
    press("Ripristina copia…");
    EXPECT_EQ(dialogs_.messages, QStringList());
    dialogs_.file = folder_.filePath(QStringLiteral("manca/copia.db"));
    press("Copia di sicurezza…");
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("non è stata fatta"))) << lastMessage().toStdString();
    QTest::qWait(20);
    EXPECT_EQ(dialogs_.messages.size(), 1) << "told once";
}

TEST_F(DeskBackup, ARestoredPracticeWithoutTheUserEndsTheProgram) {
    dialogs_.file = copy();
    press("Copia di sicurezza…");
    desk_.reset();
    {
        auto database = desk::Database::open(desk::DatabaseUrl::parse(QStringLiteral("sqlite:") + copy()));
        database->command(QStringLiteral("update tessara.tblUtenti set ID = 'altro'"));
    }
    desk_ = desk::Desk::open(options_);
    desk_->window()->show();
    dialogs_.answer = platform::Answer::Yes;
    press("Ripristina copia…");
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("il programma si chiude"))) << lastMessage().toStdString();
    EXPECT_FALSE(desk_->window()->isVisible());
}

/// A server has tools of its own for copies: the commands name them, ready to be typed.
TEST(DeskOnServerTest, TheCommandsTellHowAServerIsCopied) {
    if (!PracticeDatabase::serverChosen()) GTEST_SKIP() << "only on a server";
    const PracticeDatabase place;
    const QTemporaryDir folder;
    DeskDialogs dialogs;
    desk::Options options;
    options.databaseUrl = place.url();
    options.configDir = folder.path();
    const auto desk = desk::Desk::open(options);
    for (const char* command : {"Copia di sicurezza…", "Ripristina copia…"})
        EXPECT_TRUE(desk->pressCommand(QString::fromUtf8(command)));
    ASSERT_EQ(dialogs.messages.size(), 2);
    const QUrl url(place.url());
    for (const QString& text : dialogs.messages) {
        EXPECT_TRUE(text.contains(QStringLiteral("pg_dump -F c -n tessara"))) << text.toStdString();
        EXPECT_TRUE(text.contains(QStringLiteral("-p %1").arg(url.port())));
        EXPECT_TRUE(text.contains(url.path().mid(1)));
        EXPECT_FALSE(text.contains(url.password()));
    }
}

/// A list that cannot be read is told.
TEST_F(DeskBackup, AFailedReadIsNoEmptyArchive) {
    ASSERT_TRUE(desk_->openPatient(rossi_));
    {
        auto other = desk::Database::open(desk::DatabaseUrl::parse(options_.databaseUrl));
        other->command(QStringLiteral("alter table tessara.tblWorkspace rename to tblSparita"));
    }
    for (int again = 0; again < 3; ++again)
        EXPECT_THROW(desk_->host().paziente()->corvala().Lista(), host::HostError);
    QTest::qWait(20);
    ASSERT_EQ(dialogs_.messages.size(), 1) << "once, not for every list";
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("Errore dell'archivio"))) << lastMessage().toStdString();
    EXPECT_TRUE(
        desk_->window()->findChild<QStatusBar*>()->currentMessage().contains(QStringLiteral("Errore dell'archivio")));
}
