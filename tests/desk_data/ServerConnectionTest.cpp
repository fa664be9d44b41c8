#include "PracticeFixture.h"

#include "desk/data/DatabaseService.h"
#include "desk/data/Transaction.h"
#include "host/contract/HostError.h"
#include "support/CuttingProxy.h"
#include "support/OwnServer.h"

#include <QElapsedTimer>
#include <QThread>
#include <QUrl>

namespace {

/// Everything that is written to the log while it lives.
class HeardLog {
public:
    HeardLog() {
        text().clear();
        before_ = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& line) { text() += line + QLatin1Char('\n'); });
    }
    ~HeardLog() { qInstallMessageHandler(before_); }
    HeardLog(const HeardLog&) = delete;
    HeardLog& operator=(const HeardLog&) = delete;
    static QString& text() {
        static QString lines;
        return lines;
    }

private:
    QtMessageHandler before_;
};

} // namespace

/// A practice on a server whose connections break.
class ServerConnectionTest : public testing::Test {
protected:
    void SetUp() override {
        if (!PracticeDatabase::serverChosen()) GTEST_SKIP() << "only on a server";
        place_ = std::make_unique<PracticeDatabase>();
        open(place_->url());
    }

    void open(const QString& url) {
        patient_.reset();
        database_ = desk::Database::open(desk::DatabaseUrl::parse(url));
        database_->setListener({.failed =
                                    [this](const QString& text, bool lost) {
                                        failures_ << text;
                                        losses_ << lost;
                                    },
                                .recovered = [this] { ++recoveries_; }});
        desk::PatientData data;
        data.Cognome = QStringLiteral("D'Angelo");
        data.Nome = QStringLiteral("Anna");
        ASSERT_TRUE(desk::PatientDirectory(*database_, sign_).insert(data));
        patient_ = std::make_unique<desk::PatientRecord>(*database_, sign_);
        ASSERT_TRUE(patient_->Init(data.ID));
    }

    bool save(const char* number) {
        QString id;
        const bool saved = patient_->corvala().Salva(
            id,
            {QStringLiteral("22/11/2025"), QLatin1String(number), QStringLiteral("Piano"), QStringLiteral("TRT"), {}});
        EXPECT_EQ(saved, !id.isEmpty()) << "an identity is given with the record and never without";
        return saved;
    }
    QStringList numbers() {
        QStringList found;
        for (const host::RigaCorvala& row : patient_->corvala().Lista())
            found << row.idrif1;
        return found;
    }

    std::unique_ptr<PracticeDatabase> place_;
    const QString sign_ = QStringLiteral("prova");
    std::unique_ptr<desk::Database> database_;
    std::unique_ptr<desk::PatientRecord> patient_;
    QStringList failures_;
    QList<bool> losses_;
    int recoveries_ = 0;
};

TEST_F(ServerConnectionTest, ACutConnectionIsMadeAnewWithoutAWord) {
    ASSERT_TRUE(save("2025-0001"));
    place_->cutConnections();
    EXPECT_EQ(numbers(), QStringList{QStringLiteral("2025-0001")}) << "a question is put again";
    place_->cutConnections();
    EXPECT_TRUE(save("2025-0002")) << "nothing had been written yet";
    EXPECT_EQ(numbers().size(), 2);
    EXPECT_EQ(failures_, QStringList());
}

TEST_F(ServerConnectionTest, ATransactionThatIsCutLeavesNothingBehind) {
    const auto count = [this] { return desk::PatientDirectory(*database_, sign_).count(); };
    const QString add = QStringLiteral("insert into {schema}.tblPazienti (ID, Cognome, Nome) values (?, 'a', 'b')");
    {
        desk::Transaction transaction(*database_);
        database_->run(add, {QStringLiteral("1")});
        place_->cutConnections();
        EXPECT_THROW(database_->run(add, {QStringLiteral("2")}), desk::DatabaseError);
        EXPECT_THROW(count(), desk::DatabaseError) << "no statement slips out of its transaction";
        EXPECT_THROW(transaction.commit(), desk::DatabaseError);
    }
    EXPECT_EQ(count(), 1);
    ASSERT_FALSE(failures_.isEmpty());
    EXPECT_TRUE(failures_.first().contains(QStringLiteral("si è interrotto"))) << failures_.first().toStdString();
    EXPECT_TRUE(losses_.first());
    EXPECT_EQ(recoveries_, 1);
    desk::Transaction transaction(*database_);
    database_->run(add, {QStringLiteral("3")});
    transaction.commit();
    EXPECT_EQ(count(), 2);
}

TEST_F(ServerConnectionTest, ACommitWhoseAnswerIsLostIsNotStoredTwice) {
    QUrl url(place_->url());
    CuttingProxy network(url.port());
    url.setPort(network.port());
    open(url.toString(QUrl::FullyEncoded));
    network.arm();
    EXPECT_TRUE(save("2025-0001")) << "it was stored, and the user may know";
    EXPECT_TRUE(network.hasCut());
    EXPECT_EQ(numbers(), QStringList{QStringLiteral("2025-0001")});
    EXPECT_TRUE(save("2025-0002"));
    EXPECT_EQ(numbers().size(), 2);
    EXPECT_EQ(failures_, QStringList());
    patient_.reset();
    database_.reset();
}

// The machine is there and takes what it is sent, but nothing answers any more.
TEST_F(ServerConnectionTest, AServerThatHangsCountsAsLostAndKeepsNobodyWaiting) {
    QUrl url(place_->url());
    CuttingProxy network(url.port());
    url.setPort(network.port());
    open(url.toString(QUrl::FullyEncoded));
    database_->setPatience(600);
    ASSERT_TRUE(save("2025-0001"));
    QElapsedTimer waiting;
    {
        desk::Transaction transaction(*database_);
        database_->run(QStringLiteral("update {schema}.tblPazienti set Nome = 'b'"));
        network.hang(true);
        waiting.start();
        EXPECT_THROW(database_->run(QStringLiteral("update {schema}.tblPazienti set Nome = 'c'")), desk::DatabaseError);
        EXPECT_LT(waiting.elapsed(), 3000);
        EXPECT_THROW(transaction.commit(), desk::DatabaseError);
    }
    ASSERT_FALSE(failures_.isEmpty());
    EXPECT_TRUE(failures_.first().contains(QStringLiteral("si è interrotto"))) << failures_.first().toStdString();
    EXPECT_TRUE(losses_.first());
    waiting.start();
    EXPECT_FALSE(save("2025-0002"));
    EXPECT_FALSE(save("2025-0002")) << "not asked again at once";
    EXPECT_LT(waiting.elapsed(), 9000);
    EXPECT_EQ(recoveries_, 0);
    network.hang(false);
    QThread::msleep(3100); // for so long it is not asked
    EXPECT_TRUE(save("2025-0002")) << "the same input, once more";
    EXPECT_EQ(recoveries_, 1);
    EXPECT_EQ(numbers().size(), 2);
    ASSERT_TRUE(patient_->Init(patient_->ID()));
    EXPECT_EQ(patient_->Nome(), QStringLiteral("Anna"));
    patient_.reset();
    database_.reset();
}

TEST_F(ServerConnectionTest, RowsThatBreakOffAreNoShorterList) {
    desk::Query rows = database_->run(QStringLiteral("select g, repeat('x', 1000) from generate_series(1, 40000) g"));
    int read = 0;
    EXPECT_THROW(
        {
            while (rows.next())
                if (++read == 10) place_->cutConnections();
        },
        desk::DatabaseError);
    EXPECT_GT(read, 0);
    EXPECT_LT(read, 40000);
    EXPECT_EQ(failures_.size(), 1);
}

TEST_F(ServerConnectionTest, AFailedStatementIsToldAndTheNextOneWorks) {
    desk::DatabaseService sql(*database_, sign_);
    EXPECT_THROW(sql.OpenRecordset(QStringLiteral("select manca from tessara.tblPazienti")), host::HostError);
    EXPECT_EQ(losses_, QList<bool>{false});
    EXPECT_THROW(sql.Execute(QStringLiteral("update tessara.tblPazienti set datanascita = ''")), host::HostError);
    EXPECT_TRUE(save("2025-0001"));
    EXPECT_EQ(recoveries_, 0);
}

// The server is switched off while somebody works, and on again.
TEST_F(ServerConnectionTest, WhileTheServerIsOffEveryCallSaysSoAndAfterwardsAllGoesOn) {
    HeardLog log;
    OwnServer server;
    open(server.url());
    ASSERT_TRUE(save("2025-0001"));
    server.stop();
    desk::DatabaseService sql(*database_, sign_);
    for (int again = 0; again < 2; ++again) {
        failures_.clear();
        EXPECT_FALSE(save("2025-0002"));
        EXPECT_THROW(numbers(), host::HostError) << "unread is not none";
        EXPECT_THROW(sql.OpenRecordset(QStringLiteral("select * from tessara.tblWorkspace")), host::HostError);
        EXPECT_THROW(sql.Execute(QStringLiteral("delete from tessara.tblWorkspace")), host::HostError);
        EXPECT_THROW(desk::PatientDirectory(*database_, sign_).search(QString()), desk::DatabaseError);
        ASSERT_EQ(failures_.size(), 5) << "each of them";
        for (const QString& text : failures_)
            EXPECT_TRUE(text.contains(QStringLiteral("Il server non risponde"))) << text.toStdString();
    }
    EXPECT_EQ(recoveries_, 0);
    server.start();
    EXPECT_TRUE(save("2025-0002")) << "the same call, once more";
    EXPECT_EQ(numbers(), QStringList({QStringLiteral("2025-0001"), QStringLiteral("2025-0002")}));
    EXPECT_EQ(recoveries_, 1);

    const QString password = QUrl(server.url()).password();
    ASSERT_FALSE(password.isEmpty());
    EXPECT_FALSE(log.text().isEmpty());
    EXPECT_FALSE((log.text() + failures_.join(QLatin1Char('\n'))).contains(password));
    database_.reset();
}

TEST_F(ServerConnectionTest, RefusalsAreToldInWordsAndWithoutThePassword) {
    QUrl url(place_->url());
    const auto refusal = [](const QUrl& address) {
        try {
            desk::Database::open(desk::DatabaseUrl::parse(address.toString(QUrl::FullyEncoded)));
        } catch (const desk::DatabaseError& error) {
            return error.text();
        }
        return QString();
    };
    EXPECT_EQ(refusal(url), QString());
    QUrl wrongPassword = url;
    wrongPassword.setPassword(QStringLiteral("p'arola \\segretissima"));
    HeardLog log;
    const QString text = refusal(wrongPassword);
    EXPECT_TRUE(text.contains(QStringLiteral("nome utente o password non validi"))) << text.toStdString();
    EXPECT_FALSE((text + log.text()).contains(QStringLiteral("segretissima")));
    QUrl wrongName = url;
    wrongName.setPath(QStringLiteral("/manca"));
    EXPECT_TRUE(refusal(wrongName).contains(QStringLiteral("non esiste")));
}
