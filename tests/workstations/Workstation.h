#pragma once

#include "platform/Files.h"
#include "platform/XmlDocument.h"
#include "support/Places.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>
#include <memory>
#include <string>

/// The folder that all workstations of a practice share: catalogues and locks in "DB", the signs by which the scripts
/// wait for each other in "segni".
class SharedFolder {
public:
    SharedFolder() {
        EXPECT_TRUE(QDir(folder_.path()).mkpath(QStringLiteral("DB")));
        EXPECT_TRUE(QDir(folder_.path()).mkpath(QStringLiteral("segni")));
        const QString templates = places::app("/DB/");
        for (const QString& name : platform::files::list(templates, QStringLiteral("*.xml")))
            EXPECT_TRUE(platform::files::copy(templates + name, path("DB/") + name));
    }
    QString path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
    QStringList locks() const { return platform::files::list(path("DB"), QStringLiteral("*.lck")); }
    void sign(const char* name) const {
        QFile file(path("segni/") + QString::fromUtf8(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    bool waitForSign(const char* name) const {
        QElapsedTimer waiting;
        waiting.start();
        while (!QFile::exists(path("segni/") + QString::fromUtf8(name))) {
            if (waiting.hasExpired(60000)) return false;
            QThread::msleep(20);
        }
        return true;
    }

private:
    QTemporaryDir folder_;
};

/// One workstation: the real program in a process of its own, with settings of its own that name the shared folder,
/// playing a script. In a script "segni/" stands for the folder of the signs.
class Workstation {
public:
    Workstation(const SharedFolder& shared, const QString& database, const char* scriptName)
        : Workstation(shared, database, scriptOf(scriptName)) {}
    Workstation(const SharedFolder& shared, const QString& database, QString script) {
        prepareConfig(shared);
        script.replace(QLatin1String("segni/"), shared.path("segni/"));
        QFile file(folder_.filePath(QStringLiteral("lavoro.txt")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(script.toUtf8());
        file.close();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder_.path());
        program_.setProcessEnvironment(environment);
        program_.setProcessChannelMode(QProcess::MergedChannels);
        program_.start(places::app("/tessara"),
                       {QStringLiteral("--db"), database, QStringLiteral("--config-dir"),
                        folder_.filePath(QStringLiteral("config")), QStringLiteral("--scenario"), file.fileName(),
                        QStringLiteral("--out"), folder_.filePath(QStringLiteral("out"))});
        EXPECT_TRUE(program_.waitForStarted());
    }

    static QString scriptOf(const char* name) {
        const auto written = platform::files::read(places::tests("/workstations/%1.txt").arg(QLatin1String(name)));
        EXPECT_TRUE(written) << name;
        return QString::fromUtf8(written.value_or(QByteArray()));
    }

    /// Waits for the end of the script; what went wrong, else nothing.
    std::string fault() {
        if (!program_.waitForFinished(100000)) {
            program_.kill();
            program_.waitForFinished();
            return "hangs: " + output().toStdString();
        }
        const bool good = program_.exitStatus() == QProcess::NormalExit && program_.exitCode() == 0;
        return good ? std::string() : output().toStdString();
    }
    QString output() {
        output_ += QString::fromUtf8(program_.readAll());
        return output_;
    }

private:
    void prepareConfig(const SharedFolder& shared) {
        const QString own = folder_.filePath(QStringLiteral("config/Lumetra/Tessara 5000 V6/Corvala"));
        ASSERT_TRUE(QDir().mkpath(own));
        platform::XmlDocument config;
        ASSERT_TRUE(config.loadFile(places::app("/Config.xml")));
        config.selectOne("//parameter[@name='dbPath']").setText(shared.path("DB/"));
        ASSERT_TRUE(config.saveFile(own + QStringLiteral("/Config.xml")));
    }

    QTemporaryDir folder_;
    QProcess program_;
    QString output_;
};
