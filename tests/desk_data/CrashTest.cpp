#include "PracticeFixture.h"
#include "desk/data/DatabaseService.h"
#include "support/Places.h"

#include <QHash>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

class CrashTest : public PracticeFixture {
protected:
    CrashTest()
        : PracticeFixture(PracticeDatabase::System::Sqlite) {}
};

// A workstation that is switched off in the middle of a save loses nothing that it had confirmed and leaves no half
// record.
TEST_F(CrashTest, AKilledProgramLeavesOldOrNewRecordsOnly) {
    const QString patientId = addPatient(QStringLiteral("Bianchi"), QStringLiteral("Anna"));
    database_.reset();
    QHash<QString, int> confirmed;
    QRandomGenerator random(20251122);
    for (int round = 0; round < 12; ++round) {
        QProcess helper;
        helper.start(places::deskDataHelper(),
                     {QStringLiteral("save"), place_.url(), patientId, QString::number(1000 * round + 1)});
        ASSERT_TRUE(helper.waitForStarted());
        QByteArray announced;
        for (const int saves = random.bounded(25); announced.count('\n') < saves;
             announced += helper.readAllStandardOutput())
            ASSERT_TRUE(helper.waitForReadyRead()) << helper.readAllStandardError().toStdString();
        QThread::usleep(random.bounded(20000U)); // from the opening to the middle of a save
        helper.kill();
        ASSERT_TRUE(helper.waitForFinished());
        ASSERT_EQ(helper.exitStatus(), QProcess::CrashExit) << "it was to be killed, not to end by itself";
        const QList<QByteArray> lines = (announced + helper.readAllStandardOutput()).split('\n');
        for (const QByteArray& line : lines.mid(0, lines.size() - 1)) {
            const QList<QByteArray> idAndCount = line.split(' ');
            confirmed.insert(QString::fromLatin1(idAndCount.value(0)), idAndCount.value(1).toInt());
        }

        const auto database = reopened();
        const auto rows =
            desk::DatabaseService(*database, sign_).OpenRecordset(QStringLiteral("select * from tessara.tblWorkspace"));
        ASSERT_TRUE(rows);
        ASSERT_GE(rows->RecordCount(), static_cast<int>(confirmed.size()));
        for (; !rows->isEOF(); rows->MoveNext()) {
            const QString number = rows->text(QStringLiteral("idrif1"));
            EXPECT_EQ(rows->text(QStringLiteral("descrizione")), number);
            EXPECT_EQ(rows->text(QStringLiteral("m1")), number.repeated(3000));
            EXPECT_GE(number.mid(5).toInt(), confirmed.value(rows->text(QStringLiteral("id")), 0))
                << "a confirmed save is lost";
        }
    }
    EXPECT_GT(confirmed.size(), 8) << "the kills met hardly a save";
}
