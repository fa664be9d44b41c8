#include "PracticeFixture.h"

#include "desk/data/SqliteCopy.h"
#include "support/HelperProcess.h"

#include <QFile>
#include <QSet>
#include <QThread>
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

// Every plan that a desk confirmed is in the practice or in one of the files that a restore put aside.
TEST_F(SqliteCopyTest, DesksThatStartDuringARestoreLoseNothing) {
    const QString copy = inFolder("copia.db");
    desk::sqlite_copy::make(*database_, copy);
    std::vector<std::unique_ptr<HelperProcess>> desks;
    for (int i = 0; i < 3; ++i)
        desks.push_back(std::make_unique<HelperProcess>(QStringList{QStringLiteral("restart"), place_.url(), id_}));
    for (const auto& desk : desks)
        desk->waitForWord();
    int restored = 0;
    for (int attempts = 0; restored < 5 && attempts < 20; ++attempts) {
        QThread::msleep(60);
        if (refusal([&] { desk::sqlite_copy::restore(*database_, copy); }).isEmpty()) ++restored;
    }
    EXPECT_EQ(restored, 5);
    QSet<QString> confirmed;
    for (const auto& desk : desks) {
        desk->kill();
        for (const QByteArray& id : desk->lines())
            confirmed << QString::fromLatin1(id);
    }
    EXPECT_GE(confirmed.size(), 3) << "they hardly worked";

    database_.reset();
    QStringList kept = QDir(place_.folder()).entryList({QStringLiteral("studio-sostituito-*.db")});
    EXPECT_EQ(kept.size(), 5);
    kept << QStringLiteral("studio.db");
    for (const QString& name : std::as_const(kept)) {
        const auto database = desk::Database::open(
            desk::DatabaseUrl::parse(QStringLiteral("sqlite:") + QDir(place_.folder()).filePath(name)));
        desk::Query ids = database->run(QStringLiteral("select ID from {schema}.tblWorkspace"));
        while (ids.next())
            confirmed.remove(ids.text(0));
    }
    EXPECT_EQ(confirmed.size(), 0) << "confirmed plans are lost";
}

TEST_F(SqliteCopyTest, AnOlderCopyIsBroughtUpToDateInTheSameStep) {
    const QString copy = inFolder("copia.db");
    desk::sqlite_copy::make(*database_, copy);
    {
        const auto old = desk::Database::open(desk::DatabaseUrl::parse(QStringLiteral("sqlite:") + copy));
        for (const char* sql :
             {"alter table tessara.tblUtenti drop column istante", "alter table tessara.tblUtenti drop column orologio",
              "delete from tessara.tblVersione where versione > 4"})
            old->command(QLatin1String(sql));
    }
    EXPECT_EQ(refusal([&] { desk::sqlite_copy::restore(*database_, copy); }), QString());
    EXPECT_TRUE(database_->run(QStringLiteral("select istante from {schema}.tblUtenti")).statement().isSelect());
    EXPECT_EQ(records(), 150);
}

/// A practice whose file broke, with a good copy of it.
class DamagedArchiveTest : public SqliteCopyTest {
protected:
    DamagedArchiveTest() {
        desk::sqlite_copy::make(*database_, copy());
        database_.reset();
    }
    QString copy() const { return inFolder("copia.db"); }
    bool isDamaged() const {
        try {
            reopened();
        } catch (const desk::DamagedArchive&) {
            return true;
        } catch (const desk::DatabaseError& error) {
            ADD_FAILURE() << "damage is not told as such: " << error.what();
        }
        return false;
    }
};

TEST_F(DamagedArchiveTest, ACopyTakesItsPlaceAndWhatIsLeftOfItIsKept) {
    const QByteArray good = bytesOf(path());
    const struct {
        const char* name;
        std::function<void()> breakIt;
    } cases[] = {
        {"noise in the head", [&] { write(path(), QByteArray(40, '\x5a'), 1); }},
        {"noise in the middle", [&] { write(path(), QByteArray(120000, '\x5a'), 60000); }},
        {"cut short", [&] { write(path(), good.left(good.size() / 2)); }},
        {"emptied, with a log",
         [&] {
             write(path(), QByteArray());
             write(path() + QStringLiteral("-wal"), "modifiche");
         }},
        {"larger than the copy", [&] { write(path(), QByteArray(good.size() * 2, '\x5a')); }},
    };
    for (const auto& [name, breakIt] : cases) {
        SCOPED_TRACE(name);
        write(path(), good);
        breakIt();
        ASSERT_TRUE(isDamaged());
        const QByteArray broken = bytesOf(path());
        const QByteArray log = bytesOf(path() + QStringLiteral("-wal"));
        EXPECT_NE(refusal([&] { desk::sqlite_copy::replaceDamaged(path(), path()); }), QString()) << "by itself";
        QString former;
        EXPECT_EQ(refusal([&] { former = desk::sqlite_copy::replaceDamaged(path(), copy()); }), QString());
        EXPECT_EQ(bytesOf(former), broken);
        EXPECT_EQ(bytesOf(former + QStringLiteral("-wal")), log);
        database_ = reopened();
        EXPECT_EQ(records(), 150);
        database_.reset();
    }
}

TEST_F(DamagedArchiveTest, NobodyMayBeAtWorkInIt) {
    HelperProcess other({QStringLiteral("hold"), place_.url()});
    other.waitForWord();
    write(path(), QByteArray(40, '\x5a'), 1);
    const QByteArray broken = bytesOf(path());
    const QString text = refusal([&] { desk::sqlite_copy::replaceDamaged(path(), copy()); });
    EXPECT_TRUE(text.contains(QStringLiteral("altra postazione"))) << text.toStdString();
    EXPECT_EQ(bytesOf(path()), broken);
    EXPECT_EQ(files().filter(QStringLiteral("sostituito")), QStringList());
}

TEST_F(DamagedArchiveTest, TheNewestGoodCopiesAreFoundAndTold) {
    const auto aged = [&](const char* name, int days) {
        QFile file(inFolder(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime::currentDateTime().addDays(-days), QFileDevice::FileModificationTime);
    };
    for (const char* name : {"vecchia.db", "media.db"})
        ASSERT_TRUE(QFile::copy(copy(), inFolder(name)));
    write(inFolder("rotta.db"), "SQLite format 3 e poi niente");
    aged("vecchia.db", 9);
    aged("media.db", 5);
    aged("copia.db", 1);
    const QString folder = place_.folder();
    const auto found = desk::sqlite_copy::latest({folder, folder, inFolder("manca")}, path(), 2);
    ASSERT_EQ(found.size(), 2) << "each file once, the broken one and the live one never";
    EXPECT_EQ(found[0].path, copy());
    EXPECT_EQ(found[1].path, inFolder("media.db"));
    EXPECT_EQ(found[0].facts.records, 150);
    EXPECT_EQ(found[1].made.date(), QDate::currentDate().addDays(-5));
}
