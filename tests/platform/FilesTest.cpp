#include "platform/Files.h"
#include "platform/SpecialFolders.h"
#include "support/FullDisk.h"
#include "support/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace files = platform::files;

namespace {

constexpr qsizetype COPY_STEPS = (2 << 20) + 5000; // more than a copy takes at a time

class FilesTest : public testing::Test {
protected:
    QString path(const char* name) const { return folder_.filePath(u8(name)); }
    QStringList names() const { return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(FilesTest, FindsNamesInAnotherCaseAndWithBackslashes) {
    ASSERT_TRUE(QDir(folder_.path()).mkpath(u8("DB/Listini")));
    ASSERT_TRUE(files::writeAtomically(path("DB/Listini/tabellaServizi.xml"), "servizi"));

    EXPECT_EQ(files::resolve(path("db\\LISTINI\\TabellaServizi.xml")), path("DB/Listini/tabellaServizi.xml"));
    EXPECT_EQ(files::resolve(path("db/Altro/Nuovo.xml")), path("DB/Altro/Nuovo.xml"));
    EXPECT_TRUE(files::exists(path("dB\\listini\\TABELLASERVIZI.XML")));
    EXPECT_FALSE(files::exists(path("db\\listini")));
    EXPECT_TRUE(files::isFolder(path("db\\listini\\")));
    EXPECT_EQ(files::read(path("db/listini/tabellaservizi.xml")), QByteArray("servizi"));
    EXPECT_EQ(files::resolve(QString()), QString());
    EXPECT_FALSE(files::exists(QString()));

    // A write under another case replaces the file that is there, instead of setting a second beside it.
    ASSERT_TRUE(files::writeAtomically(path("DB/Listini/TABELLAservizi.xml"), "nuovi"));
    EXPECT_EQ(files::list(path("db/listini"), u8("*.XML")), QStringList(u8("tabellaServizi.xml")));
    // Two names that differ in case only: the exact one wins.
    QFile twin(path("DB/Listini/TABELLASERVIZI.XML"));
    ASSERT_TRUE(twin.open(QIODevice::WriteOnly));
    twin.close();
    EXPECT_EQ(files::read(path("DB/Listini/TABELLASERVIZI.XML")), QByteArray());
    EXPECT_EQ(files::read(path("DB/Listini/tabellaServizi.xml")), QByteArray("nuovi"));
}

TEST_F(FilesTest, AFailedWriteLeavesTheOldContentAndNothingBeside) {
    const QString target = path("Config.xml");
    ASSERT_TRUE(files::writeAtomically(target, "vecchio"));
    // Less than a buffer holds, just over one, and much: what is left in a buffer is lost at another moment.
    const qsizetype sizes[] = {5000, 17000, 100000, COPY_STEPS};
    for (const qsizetype size : sizes) {
        SCOPED_TRACE(size);
        const QString large = path("grande");
        const QByteArray content(size, 'n');
        ASSERT_TRUE(files::writeAtomically(large, content));
        {
            const FullDisk disk(4096);
            EXPECT_FALSE(files::writeAtomically(target, content));
            EXPECT_FALSE(files::copy(large, target));
            EXPECT_TRUE(files::writeAtomically(path("piccolo"), "entra"));
        }
        EXPECT_EQ(files::read(target), QByteArray("vecchio"));
        EXPECT_EQ(names(), QStringList({u8("Config.xml"), u8("grande"), u8("piccolo")}));
    }
    EXPECT_FALSE(files::writeAtomically(path("manca/Config.xml"), "x"));
    EXPECT_FALSE(files::writeAtomically(folder_.path(), "x"));
    EXPECT_FALSE(files::writeAtomically(QString(), "x"));
}

TEST_F(FilesTest, RightsOfOthersAreKeptTakenOrThoseOfTheFolder) {
    const auto rights = [this](const char* name) {
        return QFile::permissions(path(name)) & QFile::Permissions(0x7077);
    };
    const QString target = path("condiviso.xml");
    const auto shared = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup;
    ASSERT_TRUE(files::writeAtomically(target, "uno"));
    ASSERT_TRUE(QFile::setPermissions(target, shared | QFile::ReadOther));
    ASSERT_TRUE(files::writeAtomically(target, "due"));
    EXPECT_EQ(rights("condiviso.xml"), shared | QFile::ReadOther) << "a write keeps them";

    EXPECT_TRUE(files::restrictToOwner(path("CONDIVISO.xml")));
    EXPECT_EQ(rights("condiviso.xml"), QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(files::createFolder(path("studio")));
    const auto folders = QFile::ExeOwner | QFile::ExeGroup | shared;
    ASSERT_TRUE(QFile::setPermissions(path("studio"), folders));
    ASSERT_TRUE(files::writeAtomically(path("studio/a.lck"), "x"));
    ASSERT_TRUE(files::restrictToOwner(path("studio/a.lck")));
    EXPECT_TRUE(files::shareAsFolder(path("studio/a.lck")));
    EXPECT_EQ(rights("studio/a.lck"), shared);
    EXPECT_TRUE(files::restrictToOwner(path("studio")));
    EXPECT_EQ(rights("studio"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner) << "folders too";
    EXPECT_TRUE(files::shareAsFolder(path("studio/a.lck")));
    EXPECT_EQ(rights("studio/a.lck"), QFile::ReadOwner | QFile::WriteOwner) << "and taken where nobody shares";
    EXPECT_FALSE(files::restrictToOwner(path("manca")));
    EXPECT_FALSE(files::shareAsFolder(path("manca")));
}

TEST_F(FilesTest, MovesNeverReplaceAndCopiesDo) {
    ASSERT_TRUE(files::writeAtomically(path("a"), "aaa"));
    ASSERT_TRUE(files::writeAtomically(path("b"), "b"));
    EXPECT_FALSE(files::move(path("a"), path("B")));
    EXPECT_EQ(files::read(path("b")), QByteArray("b"));
    EXPECT_TRUE(files::copy(path("A"), path("B")));
    EXPECT_EQ(files::read(path("b")), QByteArray("aaa"));
    EXPECT_TRUE(files::copy(path("a"), path("a")));
    EXPECT_EQ(files::read(path("a")), QByteArray("aaa"));
    EXPECT_TRUE(files::move(path("a"), path("c")));
    EXPECT_FALSE(files::copy(path("a"), path("d")));
    EXPECT_FALSE(files::move(path("a"), path("d")));
    EXPECT_TRUE(files::remove(path("C")));
    EXPECT_FALSE(files::remove(path("c")));
    EXPECT_EQ(names(), QStringList(u8("b")));
}

TEST_F(FilesTest, FoldersAreMadeOneLevelAtATimeAndNeverRemovedAsFiles) {
    EXPECT_TRUE(files::createFolder(path("Dati")));
    EXPECT_TRUE(files::createFolder(path("dati")));
    EXPECT_FALSE(files::createFolder(path("x/y")));
    EXPECT_FALSE(files::remove(path("dati")));
    EXPECT_EQ(names(), QStringList(u8("Dati")));
    EXPECT_FALSE(files::read(path("Dati")));
    EXPECT_TRUE(files::list(path("manca"), u8("*")).isEmpty());
}

TEST_F(FilesTest, TheApplicationDataFolderIsMadeWhereItIsPut) {
    const QString own = platform::specialFolder(platform::CSIDL_APPDATA);
    EXPECT_TRUE(files::isFolder(own));
    platform::setApplicationDataFolder(path("profilo/dati/"));
    EXPECT_EQ(platform::specialFolder(platform::CSIDL_APPDATA), path("profilo/dati"));
    EXPECT_TRUE(files::isFolder(path("profilo/dati")));
    EXPECT_EQ(platform::specialFolder(5), QString());
    platform::setApplicationDataFolder(QString());
    EXPECT_EQ(platform::specialFolder(platform::CSIDL_APPDATA), own);
}
