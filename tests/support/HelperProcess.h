#pragma once

#include "support/Places.h"

#include <QProcess>
#include <gtest/gtest.h>

/// A workstation in a process of its own, as Helper.cpp plays it. It ends with the object.
class HelperProcess {
public:
    explicit HelperProcess(const QStringList& arguments) { process_.start(places::deskDataHelper(), arguments); }
    ~HelperProcess() { kill(); }
    HelperProcess(const HelperProcess&) = delete;
    HelperProcess& operator=(const HelperProcess&) = delete;

    void waitForWord() { ASSERT_TRUE(process_.waitForReadyRead()) << process_.readAllStandardError().toStdString(); }
    void go() {
        process_.write("via\n");
        ASSERT_TRUE(process_.waitForBytesWritten());
    }
    void end() {
        ASSERT_TRUE(process_.waitForFinished(60000));
        EXPECT_EQ(process_.exitCode(), 0) << process_.readAllStandardError().toStdString();
    }
    void kill() {
        process_.kill();
        process_.waitForFinished();
    }
    /// Whole lines of what it said until now.
    QList<QByteArray> lines() {
        said_ += process_.readAllStandardOutput();
        QList<QByteArray> lines = said_.split('\n');
        lines.removeLast();
        return lines;
    }

private:
    QProcess process_;
    QByteArray said_;
};
