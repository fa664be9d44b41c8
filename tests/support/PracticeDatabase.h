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

    /// Runs a statement as another program does that works on the same practice.
    void execute(const QString& sql) const {
        if (onServer_) return asOutsider(QStringLiteral("QPSQL"), name_, sql);
        asOutsider(QStringLiteral("QSQLITE"), path(), sql);
    }

private:
    static void administer(const QString& sql) {
        asOutsider(QStringLiteral("QPSQL"), QUrl(serverAddress()).path().mid(1), sql);
    }
    static void asOutsider(const QString& driver, const QString& database, const QString& sql) {
        const QUrl address(serverAddress());
        const QString connection = QStringLiteral("prova-gestione");
        QString fault;
        {
            QSqlDatabase outsider = QSqlDatabase::addDatabase(driver, connection);
            outsider.setHostName(address.host());
            outsider.setPort(address.port());
            outsider.setUserName(address.userName());
            outsider.setPassword(address.password());
            outsider.setDatabaseName(database);
            const bool open = outsider.open();
            QSqlQuery query(outsider);
            // A server is told where the practice's tables lie; a file holds nothing else.
            if (!open ||
                (driver == QLatin1String("QPSQL") && !query.exec(QStringLiteral("set search_path to tessara"))))
                fault = outsider.lastError().text() + query.lastError().text();
            else if (!query.exec(sql))
                fault = query.lastError().text();
        }
        QSqlDatabase::removeDatabase(connection);
        if (!fault.isEmpty()) throw std::runtime_error(fault.toStdString());
    }

    bool onServer_;
    QString name_;
    QTemporaryDir folder_;
};
