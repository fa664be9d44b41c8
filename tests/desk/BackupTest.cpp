#include "DeskFixture.h"

#include "desk/data/SqliteCopy.h"
#include "desk/people/SignInWindow.h"
#include "desk/shell/CommandList.h"
#include "desk/shell/DatabaseWatch.h"
#include "desk/shell/MainWindow.h"
#include "platform/Files.h"
#include "platform/SpecialFolders.h"
#include "support/OwnServer.h"
#include "support/PracticeDatabase.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QStatusBar>
#include <QTreeWidget>
#include <QUrl>
#include <tuple>

/// The two commands, as a person uses them.
class DeskBackup : public DeskFixture {
protected:
    QString copy() const { return folder_.filePath(QStringLiteral("copie di riserva.db")); }
    using DeskFixture::press;
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

/// The settings and catalogues that go with an archive.
class DeskBackupWithFiles : public DeskBackup {
protected:
    DeskBackupWithFiles() {
        desk_.reset();
        options_.configDir = folder_.filePath(QStringLiteral("dati"));
        platform::setApplicationDataFolder(options_.configDir);
        writeSettings("2,00", settings() + QStringLiteral("DB/"));
        write(settings() + QStringLiteral("DB/tabellaServizi.xml"), "<servizi>di allora</servizi>");
        desk_ = desk::Desk::open(options_);
        desk_->window()->show();
    }
    ~DeskBackupWithFiles() override { platform::setApplicationDataFolder(QString()); }

    QString settings() const { return options_.configDir + QStringLiteral("/Lumetra/Tessara 5000 V6/Corvala/"); }
    void write(const QString& path, const QByteArray& content) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        ASSERT_TRUE(platform::files::writeAtomically(path, content));
    }
    void writeSettings(const char* duty, const QString& catalogues) {
        const QString text = QStringLiteral("<corvala><parameters><generici><parameter name=\"dbPath\">%1</parameter>"
                                            "</generici><bollo>%2</bollo></parameters></corvala>");
        write(settings() + QStringLiteral("Config.xml"), text.arg(catalogues, QLatin1String(duty)).toUtf8());
    }
    static QString contentOf(const QString& path) {
        return QString::fromUtf8(platform::files::read(path).value_or(QByteArray("?")));
    }
};

TEST_F(DeskBackupWithFiles, TheCopyHoldsTheWholePractice) {
    dialogs_.file = copy();
    press("Copia di sicurezza…");
    EXPECT_EQ(dialogs_.kinds.value(0).patterns, QStringList{QStringLiteral("*.db")});
    // Since then the catalogues moved to another folder, and everything changed.
    const QString moved = folder_.filePath(QStringLiteral("comune/"));
    writeSettings("16,00", moved);
    write(moved + QStringLiteral("tabellaServizi.xml"), "<servizi>di oggi</servizi>");
    dialogs_.answer = platform::Answer::Yes;
    press("Ripristina copia…");
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("Config.xml, DB/tabellaServizi.xml")))
        << lastMessage().toStdString();
    EXPECT_FALSE(desk_->window()->isVisible()) << "the module has read the former settings";
    EXPECT_TRUE(contentOf(settings() + QStringLiteral("Config.xml")).contains(QStringLiteral("2,00")));
    EXPECT_TRUE(contentOf(settings() + QStringLiteral("Config.xml")).contains(moved)) << "where the catalogues are now";
    EXPECT_EQ(contentOf(moved + QStringLiteral("tabellaServizi.xml")), QStringLiteral("<servizi>di allora</servizi>"));
    for (const auto& [folder, name, content] : {std::tuple(settings(), "Config-sostituito-*.xml", "16,00"),
                                                std::tuple(moved, "tabellaServizi-sostituito-*.xml", "di oggi")}) {
        const QStringList former = platform::files::list(folder, QLatin1String(name));
        ASSERT_EQ(former.size(), 1) << name;
        EXPECT_TRUE(contentOf(folder + former[0]).contains(QLatin1String(content)));
    }
    // The same copy once more changes no file; and what was put aside is in no later copy.
    desk_.reset();
    desk_ = desk::Desk::open(options_);
    desk_->window()->show();
    press("Ripristina copia…");
    EXPECT_TRUE(desk_->window()->isVisible());
    press("Copia di sicurezza…");
    EXPECT_EQ(desk::sqlite_copy::filesIn(copy()).size(), 2);
}

/// A desk whose archive is damaged, with somebody in front of it.
class DeskWithDamage : public DeskBackupWithFiles {
protected:
    DeskWithDamage() {
        dialogs_.file = copy();
        press("Copia di sicurezza…");
        desk_.reset();
        EXPECT_TRUE(QFile::copy(copy(), besideArchive("copia del mattino.db")));
        writeSettings("16,00", settings() + QStringLiteral("DB/"));
        QFile file(place_.path());
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        file.write(QByteArray(60, 'Z'));
        options_.asksWhoSignsIn = true;
        dialogs_.messages.clear();
    }
    QString besideArchive(const char* name) const { return QDir(place_.folder()).filePath(QString::fromUtf8(name)); }
};

TEST_F(DeskWithDamage, TheNewestCopyIsOfferedAndTheWorkGoesOn) {
    whenModal("frmRipristino", [](QWidget& window) {
        auto* list = window.findChild<QTreeWidget*>(QStringLiteral("lbCopie"));
        EXPECT_TRUE(
            window.findChild<QLabel*>(QStringLiteral("laStato"))->text().contains(QStringLiteral("danneggiato")));
        ASSERT_EQ(list->topLevelItemCount(), 1);
        EXPECT_EQ(list->topLevelItem(0)->text(0), QStringLiteral("copia del mattino.db"));
        EXPECT_EQ(list->topLevelItem(0)->text(2), QStringLiteral("3")) << "patients";
        press(window, "cbRipristina");
    });
    desk_ = desk::Desk::open(options_);
    EXPECT_TRUE(desk_->openPatient(rossi_));
    ASSERT_EQ(dialogs_.messages.size(), 1);
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("studio-sostituito-"))) << lastMessage().toStdString();
    EXPECT_TRUE(contentOf(settings() + QStringLiteral("Config.xml")).contains(QStringLiteral("2,00")));
}

TEST_F(DeskWithDamage, AnotherFileCanBeChosenAndARefusalLeavesTheChoice) {
    ASSERT_TRUE(QFile::remove(besideArchive("copia del mattino.db")));
    whenModal("frmRipristino", [this](QWidget& window) {
        EXPECT_FALSE(window.findChild<QPushButton*>(QStringLiteral("cbRipristina"))->isEnabled());
        dialogs_.file = place_.path();
        press(window, "cbAltroFile");
        EXPECT_TRUE(window.isVisible());
        EXPECT_TRUE(lastMessage().contains(QStringLiteral("non è stata ripristinata"))) << lastMessage().toStdString();
        dialogs_.file = copy();
        press(window, "cbAltroFile");
    });
    desk_ = desk::Desk::open(options_);
    EXPECT_TRUE(desk_->openPatient(rossi_));
}

TEST_F(DeskWithDamage, WhoLeavesFindsEverythingAsItWas) {
    whenModal("frmRipristino", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    EXPECT_THROW(desk::Desk::open(options_), desk::SignInCancelled);
    options_.asksWhoSignsIn = false;
    EXPECT_THROW(desk::Desk::open(options_), desk::DamagedArchive) << "nobody there to be asked";
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
    ScriptedDialogs dialogs;
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

/// While a server is away this is told once, and so is its return; a return that nobody missed is not.
TEST(DeskOnServerTest, EachLossAndEachReturnIsToldOnce) {
    if (!PracticeDatabase::serverChosen()) GTEST_SKIP() << "only on a server";
    OwnServer server;
    ScriptedDialogs dialogs;
    const auto database = desk::Database::open(desk::DatabaseUrl::parse(server.url()));
    const auto asks = [&database] {
        try {
            return database->isEmpty();
        } catch (const desk::DatabaseError&) {
            return false;
        }
    };
    desk::CommandList commands;
    desk::MainWindow window(commands);
    int returns = 0;
    server.stop();
    EXPECT_FALSE(asks());
    std::unique_ptr<desk::DatabaseWatch> watch;
    watch = std::make_unique<desk::DatabaseWatch>(*database, window, [&] {
        ++returns;
        EXPECT_TRUE(asks()) << "whoever takes up the work again asks at once";
    });
    server.start();
    EXPECT_TRUE(asks());
    EXPECT_EQ(returns, 0) << "nobody was told that it was gone";
    for (int outage = 1; outage <= 2; ++outage) {
        server.stop();
        for (int again = 0; again < 3; ++again)
            EXPECT_FALSE(asks());
        QTest::qWait(20);
        EXPECT_EQ(dialogs.messages.size(), outage);
        server.start();
        for (int again = 0; again < 3; ++again)
            EXPECT_TRUE(asks());
        EXPECT_EQ(returns, outage);
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
