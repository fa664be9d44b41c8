#include "EndWhenUsable.h"
#include "Median.h"

#include "desk/shell/Desk.h"
#include "desk/shell/DeskApplication.h"
#include "desk/shell/DeskLog.h"
#include "desk/shell/Options.h"
#include "platform/Theme.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>
#include <unistd.h>
#include <vector>

// Start of the desk with its module to a window that answers, against the start of an empty Qt window in the same look.
// Each start is a process of its own, from before it is made to the first idle moment after the window was painted.

namespace {

constexpr int STARTS = 30;
constexpr double LIMIT = 3;

int startDesk(int argc, char** argv, const QString& folder) {
    desk::log::install();
    desk::DeskApplication application(argc, argv);
    platform::applyTheme(application);
    desk::Options options;
    options.databaseUrl = QStringLiteral("sqlite:") + folder + QStringLiteral("/studio.db");
    options.configDir = folder + QStringLiteral("/profilo");
    options.demo = true; // Fills the database on the first start only.
    const auto desk = desk::Desk::open(options);
    if (!desk->loadModule(QCoreApplication::applicationDirPath() + QStringLiteral("/plgCorvala.so"))) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(desk->moduleError()));
        ::_exit(2);
    }
    endWhenUsable(*desk->window());
}

/// Milliseconds of one start; negative when it failed.
double timeOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) return -1;
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

int measure(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString self = QCoreApplication::applicationFilePath();
    const QStringList deskArguments{QStringLiteral("--desk"), folder.path()};
    if (timeOf(self, deskArguments) < 0) return 1; // Makes the database and warms the caches.
    // In turns, so that what else the machine does counts for both.
    std::vector<double> bareTimes;
    std::vector<double> fullTimes;
    for (int i = 0; i < STARTS; ++i) {
        bareTimes.push_back(timeOf(self + QStringLiteral("_bare"), {}));
        fullTimes.push_back(timeOf(self, deskArguments));
        if (bareTimes.back() < 0 || fullTimes.back() < 0) return 1;
    }
    const double bare = medianOf(bareTimes);
    const double full = medianOf(fullTimes);
    std::printf("%-44s median %9.3f ms  floor %9.3f ms  ratio %5.2f  limit %4.1f  %s\n",
                "start of the desk with its module", full, bare, full / bare, LIMIT,
                full / bare <= LIMIT ? "ok" : "TOO SLOW");
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QByteArray mode = argc > 1 ? argv[1] : "";
    if (mode == "--desk" && argc > 2) return startDesk(argc, argv, QString::fromLocal8Bit(argv[2]));
    return measure(argc, argv);
}
