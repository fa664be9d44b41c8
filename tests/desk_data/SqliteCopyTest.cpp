#include "PracticeFixture.h"

#include "desk/data/SqliteCopy.h"

#include <QFile>
#include <functional>

namespace {

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("?");
}

void write(const QString& path, const QByteArray& bytes, qint64 at = 0) {
    QFile file(path);
    ASSERT_TRUE(file.open(at ? QIODevice::ReadWrite : QIODevice::WriteOnly));
    file.seek(at);
    ASSERT_EQ(file.write(bytes), bytes.size());
}

} // namespace

/// A practice at work, and a folder for its copies.
class SqliteCopyTest : public PracticeFixture {
protected:
    SqliteCopyTest()
        : PracticeFixture(PracticeDatabase::System::Sqlite) {
        id_ = addPatient(QStringLiteral("D'Angelo"), QStringLiteral("Anna"));
        for (int i = 0; i < 150; ++i) {
            QString record;
            EXPECT_TRUE(bound(id_)->corvala().Salva(record, {QStringLiteral("22/11/2025"),
                                                             QStringLiteral("2025-%1").arg(i, 4, 10, QLatin1Char('0')),
                                                             {},
                                                             QStringLiteral("TRT"),
                                                             QStringLiteral("x").repeated(2000)}));
        }
        EXPECT_EQ(records(), 150);
    }

    qsizetype records() { return bound(id_)->corvala().Lista().size(); }
    QString inFolder(const char* name) const { return QDir(place_.folder()).filePath(QString::fromUtf8(name)); }
    QStringList files() const {
        return QDir(place_.folder()).entryList(QDir::Files | QDir::Hidden, QDir::Name).filter(QStringLiteral("studio"));
    }
    static QString refusal(const std::function<void()>& work) {
        try {
            work();
        } catch (const desk::DatabaseError& error) {
            return error.text();
        }
        return QString();
    }

    QString id_;
};

TEST_F(SqliteCopyTest, ACopyOfAPracticeAtWorkIsWholeAndComesBack) {
    const QString copy = inFolder("copia è 100%.db");
    const desk::CopyFacts facts = desk::sqlite_copy::make(*database_, copy);
    EXPECT_EQ(facts.patients, 1);
    EXPECT_EQ(facts.records, 150);
    EXPECT_FALSE(QFile::exists(copy + QStringLiteral("-wal")));

    addPatient(QStringLiteral("Verdi"), QStringLiteral("Luca"));
    ASSERT_TRUE(database_->url().path == path());
    const QByteArray before = bytesOf(copy);
    const QString former = desk::sqlite_copy::restore(*database_, copy);
    EXPECT_EQ(desk::PatientDirectory(*database_, sign_).count(), 1) << "the later patient is not in the copy";
    EXPECT_EQ(records(), 150);
    EXPECT_EQ(bytesOf(copy), before);
    EXPECT_EQ(desk::sqlite_copy::examine(former).patients, 2) << "what was replaced is kept";
    EXPECT_TRUE(former.contains(QStringLiteral("studio-sostituito-")));
    EXPECT_EQ(desk::Database::open(url())->command(QStringLiteral("pragma tessara.journal_mode")).next(), true);

    addPatient(QStringLiteral("Neri"), QStringLiteral("Pia"));
    database_.reset();
    database_ = reopened();
    EXPECT_EQ(desk::PatientDirectory(*database_, sign_).count(), 2) << "work went on in the restored file";
}

TEST_F(SqliteCopyTest, ANewCopyReplacesAnOldOneOnlyWhenItIsGood) {
    const QString copy = inFolder("copia.db");
    write(copy, "una copia di ieri");
    desk::sqlite_copy::make(*database_, copy);
    EXPECT_EQ(desk::sqlite_copy::examine(copy).records, 150);
    EXPECT_FALSE(refusal([&] { desk::sqlite_copy::make(*database_, inFolder("manca/copia.db")); }).isEmpty());
    const QByteArray good = bytesOf(copy);
    write(path(), QByteArray(60000, '\x5a'), 60000); // the live file breaks
    EXPECT_FALSE(refusal([&] { desk::sqlite_copy::make(*reopened(), copy); }).isEmpty());
    EXPECT_EQ(bytesOf(copy), good);
    EXPECT_EQ(QDir(place_.folder()).entryList({QStringLiteral("*.parte-*")}), QStringList());
}

TEST_F(SqliteCopyTest, NeverTouchesTheLiveFileAsACopyOfItself) {
    const QString link = inFolder("collegamento.db");
    ASSERT_TRUE(QFile::link(path(), link));
    for (const QString& target : {path(), link, path() + QStringLiteral("-wal"), inFolder("./studio.db")}) {
        EXPECT_TRUE(refusal([&] { desk::sqlite_copy::make(*database_, target); }).contains(QStringLiteral("in uso")))
            << target.toStdString();
        EXPECT_TRUE(refusal([&] { desk::sqlite_copy::restore(*database_, target); }).contains(QStringLiteral("in uso")))
            << target.toStdString();
    }
    EXPECT_EQ(records(), 150);
}

TEST_F(SqliteCopyTest, RefusesBrokenCopiesAndLeavesThePracticeAlone) {
    const QString copy = inFolder("copia.db");
    desk::sqlite_copy::make(*database_, copy);
    const QByteArray good = bytesOf(copy);
    ASSERT_GT(good.size(), 200000);
    const auto changed = [&](const QByteArray& from, const QByteArray& to) {
        QByteArray bytes = good;
        return bytes.replace(from, to);
    };
    struct Case {
        const char* name;
        QByteArray bytes;
        const char* words;
    };
    const Case cases[] = {
        {"a text", "Caro dottore, le scrivo per il preventivo.", "non è un archivio"},
        {"nothing", "", "non è un archivio"},
        {"cut short", good.left(good.size() / 2), "danneggiat"},
        {"noise in it", QByteArray(good).replace(60000, 40000, QByteArray(40000, '\x5a')), "danneggiat"},
        {"of another program", changed("tblPazienti", "tblAltrotto"), ""},
    };
    const QStringList before = files();
    for (const Case& broken : cases) {
        SCOPED_TRACE(broken.name);
        write(copy, broken.bytes);
        const QString text = refusal([&] { desk::sqlite_copy::restore(*database_, copy); });
        EXPECT_FALSE(text.isEmpty());
        EXPECT_TRUE(text.contains(QString::fromUtf8(broken.words))) << text.toStdString();
        EXPECT_EQ(records(), 150);
        EXPECT_EQ(files(), before) << "no traces";
    }
    write(copy, good);
    write(copy + QStringLiteral("-wal"), "altro");
    EXPECT_TRUE(refusal([&] { desk::sqlite_copy::restore(*database_, copy); }).contains(QStringLiteral("a metà")));
    EXPECT_TRUE(refusal([&] {
                    desk::sqlite_copy::restore(*database_, inFolder("manca.db"));
                }).contains(QStringLiteral("leggere")));
}

TEST_F(SqliteCopyTest, RefusesACopyOfANewerVersion) {
    const QString copy = inFolder("copia.db");
    database_->command(QStringLiteral("insert into tessara.tblVersione values (9999, '2030-01-01 00:00:00')"));
    const QString made = refusal([&] { desk::sqlite_copy::make(*database_, copy); });
    EXPECT_TRUE(made.contains(QStringLiteral("più recente"))) << made.toStdString();
    EXPECT_FALSE(QFile::exists(copy));
}

TEST_F(SqliteCopyTest, RestoresNothingWhileAnotherWorkstationHasThePracticeOpen) {
    const QString copy = inFolder("copia.db");
    desk::sqlite_copy::make(*database_, copy);
    addPatient(QStringLiteral("Verdi"), QStringLiteral("Luca"));
    {
        const auto other = reopened();
        const QString text = refusal([&] { desk::sqlite_copy::restore(*database_, copy); });
        EXPECT_TRUE(text.contains(QStringLiteral("altra postazione"))) << text.toStdString();
        EXPECT_EQ(desk::PatientDirectory(*database_, sign_).count(), 2);
        EXPECT_EQ(desk::PatientDirectory(*other, sign_).count(), 2);
    }
    EXPECT_EQ(refusal([&] { desk::sqlite_copy::restore(*database_, copy); }), QString());
    EXPECT_EQ(desk::PatientDirectory(*database_, sign_).count(), 1);
}
