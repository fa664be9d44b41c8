#pragma once

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>
#include <QVariant>
#include <stdexcept>

/// Room for one practice that nobody else uses, gone with the object: a file in a temporary folder, or a database of
/// its own on the server whose address stands in CORVALA_TEST_POSTGRES. CORVALA_TEST_BACKEND=postgresql chooses the
/// server. Whoever has it open must close it before.
class PracticeDatabase {
public:
    enum class System { Chosen, Sqlite, PostgreSql };

    static bool serverChosen() { return qEnvironmentVariable("CORVALA_TEST_BACKEND") == QLatin1String("postgresql"); }
    static QString serverAddress() { return qEnvironmentVariable("CORVALA_TEST_POSTGRES"); }

    explicit PracticeDatabase(System system = System::Chosen)
        : onServer_(system == System::Chosen ? serverChosen() : system == System::PostgreSql) {
        if (!onServer_) return;
        static int count = 0;
        name_ = QStringLiteral("prova_%1_%2").arg(QCoreApplication::applicationPid()).arg(++count);
        administer(QStringLiteral("create database ") + name_);
    }
    ~PracticeDatabase() {
        if (onServer_) administer(QStringLiteral("drop database if exists %1 with (force)").arg(name_));
    }
    PracticeDatabase(const PracticeDatabase&) = delete;
    PracticeDatabase& operator=(const PracticeDatabase&) = delete;

    bool onServer() const { return onServer_; }
    QString path() const { return folder_.filePath(QStringLiteral("studio.db")); } ///< Of the file.
    QString folder() const { return folder_.path(); }
    QString url() const {
        if (!onServer_) return QStringLiteral("sqlite:") + path();
        QUrl address(serverAddress());
        address.setPath(QLatin1Char('/') + name_);
        return address.toString(QUrl::FullyEncoded);
    }
    /// Ends every connection to it, as a server does that is shut down.
    void cutConnections() const {
        administer(QStringLiteral("select pg_terminate_backend(pid, 5000) from pg_stat_activity where datname = '%1'")
                       .arg(name_));
    }

private:
    static void administer(const QString& sql) {
        const QUrl address(serverAddress());
        const QString connection = QStringLiteral("prova-gestione");
        QString fault;
        {
            QSqlDatabase server = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), connection);
            server.setHostName(address.host());
            server.setPort(address.port());
            server.setUserName(address.userName());
            server.setPassword(address.password());
            server.setDatabaseName(address.path().mid(1));
            if (!server.open()) {
                fault = server.lastError().text();
            } else {
                QSqlQuery query(server);
                if (!query.exec(sql)) fault = query.lastError().text();
            }
        }
        QSqlDatabase::removeDatabase(connection);
        if (!fault.isEmpty()) throw std::runtime_error(fault.toStdString());
    }

    bool onServer_;
    QString name_;
    QTemporaryDir folder_;
};
