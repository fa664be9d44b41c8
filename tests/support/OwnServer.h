#pragma once

#include "support/Places.h"

#include <QFile>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <stdexcept>

/// A server that belongs to one test alone, which may switch it off and on again. It keeps its port and its data.
class OwnServer {
public:
    OwnServer() {
        // The server runs as a user of its own, who must be able to pass.
        QFile::setPermissions(folder_.path(), QFile::Permissions(0x7711));
        start();
    }
    ~OwnServer() { control("--stop"); }
    OwnServer(const OwnServer&) = delete;
    OwnServer& operator=(const OwnServer&) = delete;

    void start() {
        url_ = control("--start");
        if (!url_.startsWith(QLatin1String("postgresql://"))) throw std::runtime_error("the server does not start");
    }
    void stop() { control("--stop"); }
    QString url() const { return url_; }

private:
    QString control(const char* action) const {
        QProcess script;
        script.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        script.start(places::tests("/with-postgres.sh"),
                     {QLatin1String(action), folder_.filePath(QStringLiteral("server"))});
        script.waitForFinished(60000);
        return QString::fromUtf8(script.readAllStandardOutput()).trimmed();
    }

    QTemporaryDir folder_;
    QString url_;
};
