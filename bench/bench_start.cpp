#include "desk/shell/Desk.h"
#include "desk/shell/DeskApplication.h"
#include "desk/shell/MessageFilter.h"
#include "desk/shell/Options.h"
#include "platform/Theme.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <unistd.h>
#include <vector>

// Start of the desk with its module to a window that answers, against the start of an empty Qt window in the same look.
// Each start is a process of its own, from before it is made to the first idle moment after the window was painted.

namespace {

constexpr int STARTS = 15;
constexpr double LIMIT = 3;

/// Ends the process as soon as the window has been painted and nothing is left to do.
[[noreturn]] void endWhenUsable(QMainWindow& window) {
    window.show();
    QTimer idle;
    QObject::connect(&idle, &QTimer::timeout, &window, [&window] {
        if (window.isVisible()) ::_exit(0);
    });
    idle.start(0); // Fires when the queue is empty: exposure and painting come first.
    QCoreApplication::exec();
    ::_exit(1);
}

int startBare(int argc, char** argv) {
    QApplication application(argc, argv);
    platform::applyTheme(application);
    QMainWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("Tessara 5000"), &window));
    window.resize(1280, 800);
    endWhenUsable(window);
}

int startDesk(int argc, char** argv, const QString& folder) {
    desk::installMessageFilter();
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

/// Median milliseconds of so many starts; negative when one failed.
double medianStart(const QStringList& arguments) {
    std::vector<double> times;
    for (int i = 0; i < STARTS; ++i) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QElapsedTimer timer;
        timer.start();
        process.start(QCoreApplication::applicationFilePath(), arguments);
        if (!process.waitForFinished() || process.exitCode() != 0) return -1;
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::nth_element(times.begin(), times.begin() + STARTS / 2, times.end());
    return times[STARTS / 2];
}

int measure(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QStringList deskArguments{QStringLiteral("--desk"), folder.path()};
    if (medianStart(deskArguments) < 0) return 1; // Makes the database and warms the caches.
    const double bare = medianStart({QStringLiteral("--bare")});
    const double full = medianStart(deskArguments);
    if (bare < 0 || full < 0) return 1;
    std::printf("start of the desk %.1f ms  floor %.1f ms  ratio %.2f  limit %.1f  %s\n", full, bare, full / bare,
                LIMIT, full / bare <= LIMIT ? "ok" : "TOO SLOW");
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QByteArray mode = argc > 1 ? argv[1] : "";
    if (mode == "--bare") return startBare(argc, argv);
    if (mode == "--desk" && argc > 2) return startDesk(argc, argv, QString::fromLocal8Bit(argv[2]));
    return measure(argc, argv);
}
