#include "desk/scenario/ScenarioRunner.h"

#include "desk/scenario/ScenarioCommand.h"
#include "desk/scenario/ScenarioFault.h"
#include "desk/scenario/ScenarioParser.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace std::chrono_literals;

namespace desk {
namespace {

constexpr auto STEP_PAUSE = 10ms;
/// Timers of a window up to this long postpone a command of the line before; slower ones are the window's own business.
constexpr auto POSTPONING_TIMER = 250ms;
constexpr auto LONGEST_SETTLING = 1000ms;
constexpr auto LONGEST_UNWINDING = 10000ms;

bool hasElapsed(const QElapsedTimer& since, std::chrono::milliseconds limit) {
    return since.hasExpired(limit.count());
}

void closeWindow(QWidget* window) {
    if (auto* dialog = qobject_cast<QDialog*>(window))
        dialog->reject();
    else
        window->close();
    if (window->isVisible()) window->hide();
}

QList<QPointer<QWidget>> modalWindows() {
    QList<QPointer<QWidget>> modal;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isModal() && window->isVisible()) modal += window;
    return modal;
}

/// Lines that only lay something ready, and need no window for it.
bool laysReady(const ScenarioLine& line) {
    static const QStringList commands{QStringLiteral("answer"), QStringLiteral("popup"), QStringLiteral("file"),
                                      QStringLiteral("clock")};
    return commands.contains(line.command);
}

void closeEveryWindow() {
    QList<QPointer<QWidget>> windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        windows += window;
    // Closing one may end others.
    for (const QPointer<QWidget>& open : windows) {
        QWidget* window = open.data();
        if (window && window->isVisible()) closeWindow(window);
    }
}

} // namespace

ScenarioRunner::ScenarioRunner(ScenarioDesk desk, ScenarioOptions options)
    : options_(std::move(options))
    , dialogs_([this](const QString& what) { fail(frames_.empty() ? lastStarted_ : frames_.back().line, what); },
               options_.outDir)
    , stage_(std::move(desk), options_.outDir, dialogs_) {}

ScenarioRunner::~ScenarioRunner() = default;

int ScenarioRunner::run() {
    if (!load()) return 1;
    platform::Dialogs* const former = platform::installDialogs(&dialogs_);
    const bool quits = QApplication::quitOnLastWindowClosed();
    QApplication::setQuitOnLastWindowClosed(false);
    watchdog_.start(options_.lineLimit + LONGEST_UNWINDING);
    sinceWaiting_.start();
    sinceProgress_.start();
    // Before the desk opens: what it says on its way up finds its answer in the first lines.
    while (!over_ && next_ < lines_.size() && laysReady(lines_[next_]))
        runNextLine();
    scheduleStep();
    loop_.exec();
    watchdog_.stop();
    platform::installDialogs(former);
    QApplication::setQuitOnLastWindowClosed(quits);
    if (!failure_.isEmpty()) return 1;
    std::printf("%d passi eseguiti\n", stepsDone_);
    std::fflush(stdout);
    return 0;
}

bool ScenarioRunner::load() {
    QFile script(options_.file);
    if (!script.open(QIODevice::ReadOnly)) {
        fail(0, QStringLiteral("il file non si legge: %1").arg(script.errorString()));
        return false;
    }
    const ParsedScenario parsed = parseScenario(QString::fromUtf8(script.readAll()));
    if (parsed.faultyLine > 0) {
        fail(parsed.faultyLine, parsed.fault);
        return false;
    }
    if (!options_.outDir.isEmpty() && !QDir().mkpath(options_.outDir)) {
        fail(0, QStringLiteral("la cartella %1 non si può creare").arg(options_.outDir));
        return false;
    }
    lines_ = parsed.lines;
    return true;
}

void ScenarioRunner::scheduleStep() {
    // A timer of its own for each step: one that is firing does not fire again in a nested event loop.
    QTimer::singleShot(STEP_PAUSE, this, &ScenarioRunner::step);
}

void ScenarioRunner::step() {
    const int at = frames_.empty() ? lastStarted_ : frames_.back().line;
    watchdog_.beat(QStringLiteral("%1:%2: il programma non risponde più").arg(options_.file).arg(at));
    if (over_) return unwind();
    scheduleStep();
    const bool working = !frames_.empty() && !isParked(frames_.back());
    if (working && hasElapsed(sinceProgress_, options_.lineLimit))
        return fail(frames_.back().line, QStringLiteral("non finisce entro %1 secondi").arg(options_.lineLimit / 1s));
    if (working) return;
    if (waitingFor_ != next_) {
        waitingFor_ = next_;
        sinceWaiting_.start();
    }
    if (!isSettled()) return;
    if (next_ < lines_.size()) return runNextLine();
    over_ = true;
    sinceProgress_.start();
}

bool ScenarioRunner::isParked(const Frame& frame) const {
    const QWidget* modal = QApplication::activeModalWidget();
    // One that the line only laid bare again is none that it opened.
    return modal && !frame.modalAtStart.contains(modal) && modal->isVisible() &&
           QThread::currentThread()->loopLevel() > frame.loopLevel;
}

bool ScenarioRunner::isSettled() const {
    if (hasElapsed(sinceWaiting_, LONGEST_SETTLING)) return true;
    const auto postpones = [](const QTimer* timer) {
        return timer->isActive() && timer->intervalAsDuration() <= POSTPONING_TIMER;
    };
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::none_of(windows.cbegin(), windows.cend(), [&](const QWidget* window) {
        if (!window->isVisible()) return false;
        const QList<QTimer*> timers = window->findChildren<QTimer*>();
        return std::any_of(timers.cbegin(), timers.cend(), postpones);
    });
}

void ScenarioRunner::runNextLine() {
    const qsizetype position = next_++;
    const ScenarioLine& line = lines_[position];
    lastStarted_ = line.number;
    sinceProgress_.start();
    frames_.push_back({line.number, QThread::currentThread()->loopLevel(), modalWindows()});
    const ScenarioCommand* command = findScenarioCommand(line.command);
    try {
        command->perform(stage_, line.arguments);
        ++stepsDone_;
    } catch (const ScenarioFault& fault) {
        // A line that got as far as to let others run has acted already and cannot be tried again.
        const bool mayPass = fault.kind() == ScenarioFault::Kind::Passing && next_ == position + 1;
        if (mayPass && !hasElapsed(sinceWaiting_, options_.patience * command->patience))
            next_ = position;
        else
            fail(line.number, fault.text());
    } catch (const std::exception& error) {
        fail(line.number, QString::fromUtf8(error.what()));
    }
    frames_.pop_back();
    sinceProgress_.start();
}

void ScenarioRunner::fail(int line, const QString& what) {
    if (!failure_.isEmpty()) return;
    QString told = what;
    told.replace(QLatin1String("\r\n"), QLatin1String(" ")).replace(QLatin1Char('\n'), QLatin1Char(' '));
    failure_ = QStringLiteral("%1:%2: %3").arg(options_.file).arg(line).arg(told);
    std::fputs(qUtf8Printable(failure_), stderr);
    std::fputc('\n', stderr);
    over_ = true;
    sinceProgress_.start();
}

void ScenarioRunner::giveUp(const QString& what) {
    if (failure_.isEmpty()) failure_ = what;
    over_ = true;
    sinceProgress_.start();
}

void ScenarioRunner::unwind() {
    dialogs_.fallSilent();
    if (hasElapsed(sinceProgress_, LONGEST_UNWINDING)) {
        if (failure_.isEmpty()) fail(lastStarted_, QStringLiteral("le finestre non si chiudono"));
        std::_Exit(1);
    }
    scheduleStep();
    if (QWidget* modal = QApplication::activeModalWidget()) return closeWindow(modal);
    if (!frames_.empty() || !isSettled()) return;
    closeEveryWindow();
    loop_.exit();
}

} // namespace desk
