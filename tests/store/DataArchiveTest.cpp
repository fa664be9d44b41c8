#include "support/ModuleFixture.h"

#include "store/clsArchivioDati.h"

namespace {

class DataArchive : public ModuleFixture {
protected:
    host::Dati& data() { return desk_->host().Archivio().Dati(); }
    clsArchivioDati archive_;
};

} // namespace

TEST_F(DataArchive, MovementsLieInTheFolderOfTheirArticleUnderOneKey) {
    start();
    JournalEntry entry{{}, QStringLiteral("A'12 100%"), QStringLiteral("Carico \U0001F9B7")};
    ASSERT_TRUE(archive_.SetITEM(entry, QStringLiteral("<m q=\"1\"/>")));
    const QString key = entry.file;
    ASSERT_FALSE(key.isEmpty());
    auto loaded = archive_.GetITEM(key);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->Cartella, QStringLiteral("Prima Nota Magazzino/A'12 100%"));
    EXPECT_EQ(loaded->descrizione, entry.description);
    EXPECT_EQ(loaded->file, QStringLiteral("<m q=\"1\"/>"));

    entry.article = QStringLiteral("B");
    entry.description = QStringLiteral("Scarico");
    ASSERT_TRUE(archive_.SetITEM(entry, QString(500, QLatin1Char('x'))));
    EXPECT_EQ(entry.file, key) << "the same item, moved to the folder of its article";
    loaded = archive_.GetITEM(key);
    EXPECT_EQ(loaded->Cartella, QStringLiteral("Prima Nota Magazzino/B"));
    EXPECT_EQ(loaded->file.size(), 500);

    JournalEntry vanished{QStringLiteral("non c'è"), QStringLiteral("C"), {}};
    ASSERT_TRUE(archive_.SetITEM(vanished, QStringLiteral("x")));
    EXPECT_NE(vanished.file, QStringLiteral("non c'è")) << "what another workstation deleted is written anew";
    EXPECT_TRUE(archive_.DelITEM(key));
    EXPECT_FALSE(archive_.DelITEM(key));
    EXPECT_FALSE(archive_.GetITEM(key));
}

TEST_F(DataArchive, AFolderIsAskedForOnceUntilRefreshOrAnotherFolder) {
    start();
    const QString folder = QStringLiteral("Prima Nota Magazzino");
    EXPECT_TRUE(archive_.Lista(folder).isEmpty());
    JournalEntry entry{{}, QStringLiteral("A"), QStringLiteral("Carico")};
    ASSERT_TRUE(archive_.SetITEM(entry, QStringLiteral("x")));
    EXPECT_TRUE(archive_.Lista(folder).isEmpty()) << "an empty list is a list too, and is kept";
    EXPECT_EQ(archive_.Lista(folder + QStringLiteral("/A")).size(), 1);
    EXPECT_EQ(archive_.Lista(folder).size(), 1) << "the items of the folders below belong to it";
    PracticeDatabase& studio = ModuleFixture::database_;
    studio.execute(QStringLiteral("alter table tblDati rename to altrove"));
    archive_.Refresh();
    for (int again = 0; again < 2; ++again)
        EXPECT_THROW(archive_.Lista(folder), host::HostError) << "unread is not none";
    EXPECT_THROW(archive_.GetITEM(entry.file), host::HostError);
    EXPECT_FALSE(archive_.SetITEM(entry, QStringLiteral("y"))) << "nor is the item taken for a new one";
    studio.execute(QStringLiteral("alter table altrove rename to tblDati"));
    EXPECT_EQ(archive_.Lista(folder).size(), 1);
    ASSERT_TRUE(archive_.DelITEM(entry.file));
    EXPECT_EQ(archive_.Lista(folder).size(), 1);
    archive_.Refresh();
    EXPECT_TRUE(archive_.Lista(folder).isEmpty());
}

TEST_F(DataArchive, WithoutAHostEverythingFailsQuietly) {
    JournalEntry entry;
    EXPECT_FALSE(archive_.SetITEM(entry, QStringLiteral("x")));
    EXPECT_FALSE(archive_.GetITEM(QStringLiteral("1")));
    EXPECT_FALSE(archive_.DelITEM(QStringLiteral("1")));
    EXPECT_TRUE(archive_.Lista(QStringLiteral("x")).isEmpty());
}
