#include "desk/data/Database.h"
#include "desk/data/PracticeTransfer.h"
#include "desk/people/SignInWindow.h"
#include "desk/scenario/DeskScenario.h"
#include "desk/shell/ArchiveRestore.h"
#include "desk/shell/Desk.h"
#include "desk/shell/DeskApplication.h"
#include "desk/shell/DeskLog.h"
#include "desk/shell/Options.h"
#include "platform/Dialogs.h"
#include "platform/FileHold.h"
#include "platform/QtDialogs.h"
#include "platform/Theme.h"

#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <cstdio>
#include <unistd.h>

namespace {

constexpr int EXIT_FAILED = 1;
constexpr int EXIT_USAGE = 2;
constexpr char MODULE_FILE[] = "plgCorvala.so";

void tellOnConsole(const QString& text) {
    std::fprintf(stderr, "tessara: %s\n", qUtf8Printable(text));
}

QStringList argumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

bool hasScreen() {
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qEnvironmentVariableIsSet("DISPLAY") ||
           qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

/// Qt wants a folder of this user's own; a session without one, such as a service, gets one.
void provideRuntimeFolder() {
    if (qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) return;
    const QString folder = QDir::tempPath() + QStringLiteral("/tessara-runtime-%1").arg(::getuid());
    if (!QDir().exists(folder) && !QDir().mkpath(folder)) return;
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder));
}

/// On the console always; in a message box only where somebody sits in front of it.
void tellUser(const QString& text, const desk::Options& options) {
    tellOnConsole(text);
    if (!options.scenarioFile.isEmpty() || QGuiApplication::platformName() == QLatin1String("offscreen")) return;
    platform::dialogs().message(text, platform::MB_CRITICAL, QStringLiteral("Tessara 5000"));
}

int copyPractice(const desk::Options& options) {
    const desk::DatabaseUrl from = desk::DatabaseUrl::parse(options.databaseUrl);
    if (from.kind == desk::DatabaseUrl::Kind::Sqlite && !QFile::exists(from.path))
        throw desk::OptionError(QStringLiteral("Il file %1 non esiste.").arg(from.toDisplay()));
    const auto source = desk::Database::open(from);
    const auto target = desk::Database::open(desk::DatabaseUrl::parse(options.copyTo));
    for (const auto& [table, rows] : desk::practice_transfer::run(*source, *target))
        std::printf("%-20s %8d\n", qUtf8Printable(table), rows);
    std::puts("L'archivio \u00e8 stato copiato per intero.");
    return 0;
}

int restoreCopy(const desk::Options& options) {
    options.useConfigFolder();
    const desk::RestoredArchive restored = desk::restoreArchive(desk::DatabaseUrl::parse(options.databaseUrl),
                                                                QFileInfo(options.restoreFrom).absoluteFilePath());
    std::puts(qUtf8Printable(desk::describe(restored)));
    return 0;
}

std::unique_ptr<desk::Desk> openDesk(const desk::Options& options) {
    std::unique_ptr<desk::Desk> desk = desk::Desk::open(options);
    desk->loadModule(QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(MODULE_FILE));
    desk->window()->show();
    return desk;
}

int runDesk(desk::Options options) {
    if (!options.scenarioFile.isEmpty())
        return desk::runScenario([&options] { return openDesk(options); }, options.scenarioFile, options.outDir);
    options.asksWhoSignsIn = QGuiApplication::platformName() != QLatin1String("offscreen");
    const std::unique_ptr<desk::Desk> desk = openDesk(options);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    platform::keepNewFilesPrivate(); // archive, copies, extracted files, settings
    desk::log::install();
    desk::Options options;
    try {
        options = desk::Options::parse(argumentsOf(argc, argv));
    } catch (const desk::OptionError& error) {
        tellOnConsole(error.text() + QStringLiteral("\nPer l'elenco delle opzioni: tessara --help"));
        return EXIT_USAGE;
    }
    if (options.help) {
        std::fputs(qUtf8Printable(desk::Options::helpText()), stdout);
        return 0;
    }
    const bool works = !options.copyTo.isEmpty() || !options.restoreFrom.isEmpty(); // and shows nothing
    if (!hasScreen() && !works && options.scenarioFile.isEmpty()) {
        tellOnConsole(QStringLiteral("nessuno schermo disponibile: manca DISPLAY. Senza schermo si può eseguire uno "
                                     "scenario, con --scenario."));
        return EXIT_USAGE;
    }
    // Nobody watches a scenario where there is no screen.
    if (!hasScreen()) qputenv("QT_QPA_PLATFORM", "offscreen");
    provideRuntimeFolder();

    // Qt must not read the arguments, which are ours.
    int ownCount = 1;
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    desk::DeskApplication application(ownCount, argv);
    platform::applyTheme(application);
    platform::QtDialogs dialogs;
    platform::installDialogs(&dialogs);
    try {
        if (!options.restoreFrom.isEmpty()) return restoreCopy(options);
        return works ? copyPractice(options) : runDesk(options);
    } catch (const desk::SignInCancelled&) {
        return options.scenarioFile.isEmpty() ? 0 : EXIT_FAILED;
    } catch (const desk::DatabaseError& error) {
        tellUser(error.text(), options);
    } catch (const desk::OptionError& error) {
        tellUser(error.text(), options);
    } catch (const std::exception& error) {
        tellUser(QStringLiteral("Il programma non si avvia: ") + QString::fromUtf8(error.what()), options);
    }
    return EXIT_FAILED;
}
