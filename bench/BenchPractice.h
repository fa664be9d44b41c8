#pragma once

#include "Measures.h"

#include "desk/shell/DeskApplication.h"
#include "desk/shell/DeskLog.h"
#include "desk/shell/Options.h"

#include <QDir>
#include <QTemporaryDir>

/// What a benchmark of the desk runs in: the application, without a screen where there is none, and the options of a
/// practice that does not exist yet, in a folder of its own.
class BenchPractice {
public:
    BenchPractice(int& argc, char** argv)
        : application_(withoutScreen(argc), argv) {
        Measures::initialize(argc, argv);
        options.databaseUrl = QStringLiteral("sqlite:") + file();
        options.configDir = folder_.filePath(QStringLiteral("profilo"));
    }
    QString file() const { return folder_.filePath(QStringLiteral("studio.db")); } ///< Of the database.

    desk::Options options;

private:
    static int& withoutScreen(int& argc) {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        desk::log::install();
        return argc;
    }

    desk::DeskApplication application_;
    /// By a name of its own: what bears the desk's is taken for a leftover and cleared away.
    QTemporaryDir folder_{QDir::tempPath() + QStringLiteral("/corvala-bench-XXXXXX")};
};
