#pragma once

#include "desk/scenario/ScenarioRunner.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

/// Plays scripts given as text, with little patience, in a folder of their own.
class ScenarioPlay : public testing::Test {
protected:
    struct Outcome {
        int code = -1;
        int steps = 0;
        QString failure; ///< Without the path of the script: "LINE: what failed".
    };

    Outcome play(const QString& script) {
        const QString file = folder.filePath(QStringLiteral("prova.txt"));
        QFile written(file);
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(script.toUtf8());
        written.close();
        desk::ScenarioRunner runner(access, {.file = file,
                                             .outDir = folder.filePath(QStringLiteral("out")),
                                             .patience = std::chrono::milliseconds(200),
                                             .lineLimit = std::chrono::milliseconds(1000)});
        const int code = runner.run();
        return {code, runner.stepsDone(), runner.failure().mid(file.size() + 1)};
    }

    QTemporaryDir folder;
    desk::ScenarioDesk access{[](const QString&) { return false; }, [](const QString&, QString*) { return false; },
                              [] { return QMap<QString, QVariant>(); }};
};
