#include "platform/Files.h"
#include "store/modConversioni.h"
#include "store/modFile.h"
#include "support/Text.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(Conversions, FailuresAreNoughtAndHalvesGoToTheEvenNumber) {
    const struct {
        const char* text;
        float single;
        qint16 whole;
        qint32 longWhole;
    } cases[] = {
        {"", 0, 0, 0},
        {"abc", 0, 0, 0},
        {"12abc", 0, 0, 0},
        {" 12,50 ", 12.5F, 12, 12},
        {"13,5", 13.5F, 14, 14},
        {"-2,5", -2.5F, -2, -2},
        {"0,51", 0.51F, 1, 1},
        {"32.767", 32767.F, 32767, 32767},
        {"32767,5", 32767.5F, 0, 32768},
        {"40000", 40000.F, 0, 40000},
        {"-32768", -32768.F, -32768, -32768},
        {"2147483647", 2147483648.F, 0, 2147483647},
        {"2147483648", 2147483648.F, 0, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(CastSingle(u8(c.text)), c.single);
        EXPECT_EQ(CastInteger(u8(c.text)), c.whole);
        EXPECT_EQ(CastLong(u8(c.text)), c.longWhole);
    }
    EXPECT_EQ(CastSingle(QString(60, QLatin1Char('9'))), 0.F); // Beyond a single, not infinity.
}

TEST(ModFile, WritingReplacesAndNeverAppends) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u8("nota.txt"));
    EXPECT_TRUE(ScriviFile(path, u8("un testo più lungo")));
    EXPECT_TRUE(ScriviFile(path, u8("è 5 €")));
    EXPECT_EQ(*platform::files::read(path), QByteArray("\xE8 5 \x80"));
    EXPECT_TRUE(FileEsiste(folder.filePath(u8("NOTA.TXT"))));
    EXPECT_FALSE(FileEsiste(folder.path()));
    EXPECT_FALSE(ScriviFile(folder.filePath(u8("manca/nota.txt")), u8("x")));
    EXPECT_FALSE(ScriviFile(folder.path(), u8("x")));
}

TEST(ModFile, RenamingNeverReplaces) {
    const QTemporaryDir folder;
    const QString from = folder.filePath(u8("a.txt"));
    const QString to = folder.filePath(u8("b.txt"));
    ASSERT_TRUE(ScriviFile(from, u8("a")));
    ASSERT_TRUE(ScriviFile(to, u8("b")));
    EXPECT_FALSE(RinominaFile(from, to));
    EXPECT_EQ(*platform::files::read(from), "a");
    EXPECT_EQ(*platform::files::read(to), "b");
    EXPECT_TRUE(RinominaFile(from, folder.filePath(u8("c.txt"))));
    EXPECT_FALSE(FileEsiste(from));
    EXPECT_FALSE(RinominaFile(from, folder.filePath(u8("d.txt"))));
}
