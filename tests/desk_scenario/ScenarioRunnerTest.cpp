#include "desk_scenario/SampleWindow.h"
#include "desk_scenario/ScenarioPlay.h"
#include "platform/Dialogs.h"

#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QThread>
#include <QTimer>

namespace {

/// A main window whose commands do what the test sets.
class ScenarioRunnerTest : public ScenarioPlay {
protected:
    ScenarioRunnerTest() {
        main.setObjectName(QStringLiteral("frmMain"));
        main.show();
        access.pressCommand = [this](const QString& command, QString* error) {
            if (!commands.contains(command))
                *error = QStringLiteral("non esiste");
            else
                commands[command]();
            return commands.contains(command);
        };
    }

    /// Adds a command that opens a modal window and notes how it ended.
    void addEditor(const QString& command, const QString& name, std::function<void(SampleWindow&)> prepare = {}) {
        commands[command] = [=, this] {
            SampleWindow window(name);
            if (prepare) prepare(window);
            const bool confirmed = window.exec() == QDialog::Accepted;
            ended += name + (confirmed ? QStringLiteral(" ok ") : QStringLiteral(" no ")) + window.field(0)->text();
        };
    }

    QMainWindow main;
    QMap<QString, std::function<void()>> commands;
    QStringList ended;
};

} // namespace

TEST_F(ScenarioRunnerTest, WaitsForTheFileOfAnotherDeskLongerThanForAWindow) {
    const QString sign = folder.filePath(QStringLiteral("out/fatto"));
    QTimer::singleShot(600, [&sign] { EXPECT_TRUE(QFile(sign).open(QIODevice::WriteOnly)); });
    const Outcome outcome = play(QStringLiteral("wait-file fatto\ntouch altro\nwait-file altro"));
    EXPECT_EQ(outcome.failure, QString()) << "three times the patience for a window have passed";
    EXPECT_EQ(outcome.steps, 3);
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("out/altro"))));
    EXPECT_TRUE(play(QStringLiteral("touch manca/altro")).failure.contains(QStringLiteral("non si può scrivere")));
}

TEST_F(ScenarioRunnerTest, FirstLinesAnswerWhatIsSaidWhileTheDeskOpens) {
    const auto complain = [] { platform::dialogs().message(QStringLiteral("Manca"), platform::MB_CRITICAL, {}); };
    QTimer::singleShot(0, &main, complain);
    const Outcome answered = play(QStringLiteral("# the start\nanswer ok\nwindow frmMain\nexpect-message Manca"));
    EXPECT_EQ(answered.failure, QString());
    EXPECT_EQ(answered.steps, 3);

    QTimer::singleShot(0, &main, complain);
    EXPECT_TRUE(play(QStringLiteral("window frmMain\nanswer ok")).failure.contains(QStringLiteral("senza risposta")));
}

TEST_F(ScenarioRunnerTest, GoesOnInsideAModalWindow) {
    addEditor(QStringLiteral("Apri"), QStringLiteral("frmEdit"));
    const Outcome outcome = play(QStringLiteral("press Apri\nwindow frmEdit\ntype tbDati(0) abc\nclick cbConferma\n"
                                                "expect-closed frmEdit\nwindow frmMain"));
    EXPECT_EQ(outcome.failure, QString());
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.steps, 6);
    EXPECT_EQ(ended, QStringList{QStringLiteral("frmEdit ok abc")});
}

TEST_F(ScenarioRunnerTest, SpeaksToTheModalWindowInFrontAndBackToTheOneBehind) {
    addEditor(QStringLiteral("Apri"), QStringLiteral("frmEdit"), [this](SampleWindow& window) {
        QObject::connect(window.findChild<QPushButton*>(QStringLiteral("cbTardi")), &QPushButton::clicked, &window,
                         [this] { commands[QStringLiteral("Rigo")](); });
    });
    addEditor(QStringLiteral("Rigo"), QStringLiteral("frmRigo"));
    const Outcome outcome = play(QStringLiteral("press Apri\nclick cbTardi\n"
                                                "window frmRigo\ntype tbDati(0) dentro\nclick cbConferma\n"
                                                "type tbDati(0) fuori\nclick cbConferma\nexpect-closed frmEdit"));
    EXPECT_EQ(outcome.failure, QString());
    EXPECT_EQ(ended, (QStringList{QStringLiteral("frmRigo ok dentro"), QStringLiteral("frmEdit ok fuori")}));
}

TEST_F(ScenarioRunnerTest, RunsNothingWhileALineIsAtWorkWithoutAModalWindow) {
    bool isWorking = false;
    bool wasInterrupted = false;
    commands[QStringLiteral("Lavora")] = [&] {
        isWorking = true;
        QEventLoop pause;
        QTimer::singleShot(200, &pause, &QEventLoop::quit);
        pause.exec();
        isWorking = false;
    };
    commands[QStringLiteral("Dopo")] = [&] { wasInterrupted = isWorking; };
    EXPECT_EQ(play(QStringLiteral("press Lavora\npress Dopo")).code, 0);
    EXPECT_FALSE(wasInterrupted);
}

TEST_F(ScenarioRunnerTest, LetsALineFinishAfterItsFirstModalWindowAndOpenAnother) {
    addEditor(QStringLiteral("Primo"), QStringLiteral("frmPrimo"));
    addEditor(QStringLiteral("Secondo"), QStringLiteral("frmSecondo"));
    commands[QStringLiteral("Due")] = [this] {
        commands[QStringLiteral("Primo")]();
        QThread::msleep(50);
        commands[QStringLiteral("Secondo")]();
        ended += QStringLiteral("fine");
    };
    const Outcome outcome = play(QStringLiteral("press Due\nwindow frmPrimo\nclick cbConferma\n"
                                                "window frmSecondo\nkey Escape\nexpect-closed frmSecondo"));
    EXPECT_EQ(outcome.failure, QString());
    EXPECT_EQ(ended,
              (QStringList{QStringLiteral("frmPrimo ok "), QStringLiteral("frmSecondo no "), QStringLiteral("fine")}));
}

// The program runs on while the key is down that closes a window: the next line must still find that window's answer.
TEST_F(ScenarioRunnerTest, WaitsForWhatAClosedWindowLedTo) {
    addEditor(QStringLiteral("Apri"), QStringLiteral("frmEdit"), [this](SampleWindow& window) {
        const auto button = [&window](const char* name) { return window.findChild<QPushButton*>(QLatin1String(name)); };
        QObject::connect(button("cbPremuto"), &QPushButton::clicked, &window,
                         [this] { commands[QStringLiteral("Rigo")](); });
        QObject::connect(button("cbConferma"), &QPushButton::clicked, &window,
                         [this] { ended += QStringLiteral("conferma"); });
    });
    addEditor(QStringLiteral("Rigo"), QStringLiteral("frmRigo"));
    const Outcome outcome = play(QStringLiteral("press Apri\nclick cbPremuto\nwindow frmRigo\nkey Escape\n"
                                                "window frmEdit\nclick cbConferma\nexpect-closed frmEdit"));
    EXPECT_EQ(outcome.failure, QString());
    EXPECT_EQ(ended,
              (QStringList{QStringLiteral("frmRigo no "), QStringLiteral("conferma"), QStringLiteral("frmEdit ok ")}));
}

TEST_F(ScenarioRunnerTest, CannotReachBehindAModalWindow) {
    SampleWindow behind(QStringLiteral("frmDietro"));
    behind.show();
    addEditor(QStringLiteral("Apri"), QStringLiteral("frmEdit"));
    const Outcome outcome =
        play(QStringLiteral("press Apri\nwindow frmDietro\nexpect cbConferma Conferma\nclick cbConferma"));
    EXPECT_EQ(outcome.failure,
              QStringLiteral("4: il controllo «cbConferma» non si raggiunge: davanti c'è la finestra «frmEdit»"));
}

TEST_F(ScenarioRunnerTest, FindsChildWindowsAndBringsThemForward) {
    auto* area = new QMdiArea(&main);
    area->setViewMode(QMdiArea::TabbedView);
    main.setCentralWidget(area);
    auto* first = new SampleWindow(QStringLiteral("frmMDIPrima"));
    QMdiSubWindow* shown = area->addSubWindow(first);
    QMdiSubWindow* other = area->addSubWindow(new SampleWindow(QStringLiteral("frmMDISeconda")));
    first->setWindowFlags(Qt::Widget);
    shown->show();
    first->show();
    other->showMaximized();
    area->setActiveSubWindow(other);
    const Outcome outcome = play(QStringLiteral("window frmMDIPrima\ntype tbDati(0) abc\nexpect tbDati(0) abc"));
    EXPECT_EQ(outcome.failure, QString());
    EXPECT_EQ(area->currentSubWindow(), shown);
    EXPECT_EQ(first->field(0)->text(), QStringLiteral("abc"));
}

TEST_F(ScenarioRunnerTest, FailsOnAQuestionThatNobodyAnswersAndClosesEverything) {
    addEditor(QStringLiteral("Apri"), QStringLiteral("frmEdit"), [](SampleWindow& window) {
        QObject::connect(window.findChild<QPushButton*>(QStringLiteral("cbTardi")), &QPushButton::clicked, [] {
            platform::dialogs().message(QStringLiteral("Eliminare?\r\nNon si torna indietro"), platform::MB_QUESTION,
                                        QString());
        });
    });
    testing::internal::CaptureStderr();
    const Outcome outcome = play(QStringLiteral("press Apri\nwindow frmEdit\nclick cbTardi\ntype tbDati(0) mai"));
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.failure, QStringLiteral("3: messaggio senza risposta: Eliminare? Non si torna indietro"));
    const std::string told = testing::internal::GetCapturedStderr();
    const std::string path = folder.filePath(QStringLiteral("prova.txt")).toStdString();
    EXPECT_TRUE(told.ends_with(path + ":" + outcome.failure.toStdString() + "\n")) << told;
    EXPECT_EQ(ended, QStringList{QStringLiteral("frmEdit no ")});
    EXPECT_FALSE(main.isVisible());
}

TEST_F(ScenarioRunnerTest, AnswersQuestionsAndHandsOutFilesBesideTheResults) {
    QString path;
    platform::Answer answer = platform::Answer::No;
    commands[QStringLiteral("Chiedi")] = [&] {
        answer = platform::dialogs().message(QStringLiteral("Salvare?"), platform::MB_QUESTION, QString());
        path = platform::dialogs().openFile(QStringLiteral("Apri"), {}, QString());
    };
    const Outcome outcome =
        play(QStringLiteral("answer yes\nfile rx/prova.jpg\npress Chiedi\nexpect-message \"Salvare?\""));
    EXPECT_EQ(outcome.failure, QString());
    EXPECT_EQ(answer, platform::Answer::Yes);
    EXPECT_EQ(path, folder.filePath(QStringLiteral("out/rx/prova.jpg")));
    const Outcome wrong = play(QStringLiteral("answer yes\nfile \"\"\npress Chiedi\nexpect-message \"Eliminare?\""));
    EXPECT_EQ(wrong.failure, QStringLiteral("4: il messaggio è «Salvare?», atteso «Eliminare?»"));
}

TEST_F(ScenarioRunnerTest, GivesUpOnWindowsThatNeverComeAndOnLinesThatHang) {
    EXPECT_EQ(play(QStringLiteral("window frmMai")).failure,
              QStringLiteral("1: la finestra «frmMai» non è sullo schermo; ci sono: frmMain"));
    main.show();
    commands[QStringLiteral("Ferma")] = [] {
        QEventLoop loop;
        // Ends only after the script has given up.
        QTimer::singleShot(1800, &loop, &QEventLoop::quit);
        loop.exec();
    };
    EXPECT_EQ(play(QStringLiteral("press Ferma\ndump")).failure, QStringLiteral("1: non finisce entro 1 secondi"));
}

TEST_F(ScenarioRunnerTest, RunsNothingOfAScriptWithASlip) {
    bool hasRun = false;
    commands[QStringLiteral("Apri")] = [&] { hasRun = true; };
    const Outcome outcome = play(QStringLiteral("press Apri\nclik cbConferma"));
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.failure.startsWith(QStringLiteral("2: comando sconosciuto «clik»")))
        << outcome.failure.toStdString();
    EXPECT_FALSE(hasRun);
}

TEST_F(ScenarioRunnerTest, PutsTheFormerDialogsBack) {
    platform::Dialogs* former = &platform::dialogs();
    EXPECT_EQ(play(QStringLiteral("window frmMain")).code, 0);
    EXPECT_EQ(&platform::dialogs(), former);
}

using ScenarioWatchdogDeathTest = ScenarioRunnerTest;

TEST_F(ScenarioWatchdogDeathTest, EndsAProgramThatNoLongerAnswers) {
    const auto hang = [] {
        desk::ScenarioWatchdog watchdog;
        watchdog.start(std::chrono::milliseconds(50));
        watchdog.beat(QStringLiteral("prova.txt:7: il programma non risponde più"));
        QThread::sleep(10);
    };
    EXPECT_EXIT(hang(), testing::ExitedWithCode(1), "prova.txt:7: il programma non risponde");
}
