#pragma once

#include "desk/scenario/ScenarioDesk.h"
#include "desk/scenario/ScenarioDialogs.h"
#include "desk/scenario/ScenarioLine.h"
#include "desk/scenario/ScenarioStage.h"
#include "desk/scenario/ScenarioWatchdog.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <chrono>
#include <vector>

class QWidget;

namespace desk {

struct ScenarioOptions {
    QString file;
    QString outDir;
    std::chrono::milliseconds patience{3000};   ///< How long a line waits for its window, control or text.
    std::chrono::milliseconds lineLimit{30000}; ///< A line at work for longer counts as hung.
};

/// Plays a script line by line from the event loop. A line may open a modal window and so not return: the lines after
/// it run inside the nested event loop. While a line is at work without such a window nothing else runs. Stops at the
/// first line that fails; closes every window at the end, without questions. One run per object.
class ScenarioRunner : public QObject {
    Q_OBJECT

public:
    ScenarioRunner(ScenarioDesk desk, ScenarioOptions options);
    ~ScenarioRunner() override;

    int run(); ///< 0 when every line succeeded, else 1.
    void giveUp(const QString& what); ///< Ends the run as failed; the caller tells why.
    int stepsDone() const { return stepsDone_; }
    const QString& failure() const { return failure_; } ///< "FILE:LINE: what failed"; empty on success.

private:
    /// A line that was started and has not returned yet.
    struct Frame {
        int line = 0;
        int loopLevel = 0;
        QList<QPointer<QWidget>> modalAtStart; ///< The windows that barred others already.
    };

    bool load();
    void scheduleStep();
    void step();
    bool isParked(const Frame& frame) const;
    bool isSettled() const;
    void runNextLine();
    void fail(int line, const QString& what);
    void unwind();

    ScenarioOptions options_;
    ScenarioDialogs dialogs_;
    ScenarioStage stage_;
    ScenarioWatchdog watchdog_;
    QList<ScenarioLine> lines_;
    qsizetype next_ = 0;
    int lastStarted_ = 0;
    int stepsDone_ = 0;
    bool over_ = false;
    QString failure_;
    std::vector<Frame> frames_;
    qsizetype waitingFor_ = -1; ///< The line whose turn it has been since `sinceWaiting_`.
    QElapsedTimer sinceWaiting_;
    QElapsedTimer sinceProgress_; ///< Since anything was started or finished.
    QEventLoop loop_;
};

} // namespace desk
