#include "support/StudioConModulo.h"

#include "store/clsArchivioDati.h"

namespace {

class ArchivioDati : public StudioConModulo {
protected:
    host::Dati& dati() { return desk_->host().Archivio().Dati(); }
    clsArchivioDati archivio_;
};

} // namespace

TEST_F(ArchivioDati, MovementsLieInTheFolderOfTheirArticleUnderOneKey) {
    avvia();
    VocePrimaNota voce{{}, QStringLiteral("A'12 100%"), QStringLiteral("Carico \U0001F9B7")};
    ASSERT_TRUE(archivio_.SetITEM(voce, QStringLiteral("<m q=\"1\"/>")));
    const QString chiave = voce.file;
    ASSERT_FALSE(chiave.isEmpty());
    auto letta = archivio_.GetITEM(chiave);
    ASSERT_TRUE(letta);
    EXPECT_EQ(letta->Cartella, QStringLiteral("Prima Nota Magazzino/A'12 100%"));
    EXPECT_EQ(letta->descrizione, voce.descrizione);
    EXPECT_EQ(letta->file, QStringLiteral("<m q=\"1\"/>"));

    voce.articolo = QStringLiteral("B");
    voce.descrizione = QStringLiteral("Scarico");
    ASSERT_TRUE(archivio_.SetITEM(voce, QString(500, QLatin1Char('x'))));
    EXPECT_EQ(voce.file, chiave) << "the same item, moved to the folder of its article";
    letta = archivio_.GetITEM(chiave);
    EXPECT_EQ(letta->Cartella, QStringLiteral("Prima Nota Magazzino/B"));
    EXPECT_EQ(letta->file.size(), 500);

    VocePrimaNota sparita{QStringLiteral("non c'è"), QStringLiteral("C"), {}};
    ASSERT_TRUE(archivio_.SetITEM(sparita, QStringLiteral("x")));
    EXPECT_NE(sparita.file, QStringLiteral("non c'è")) << "what another workstation deleted is written anew";
    EXPECT_TRUE(archivio_.DelITEM(chiave));
    EXPECT_FALSE(archivio_.DelITEM(chiave));
    EXPECT_FALSE(archivio_.GetITEM(chiave));
}

TEST_F(ArchivioDati, AFolderIsAskedForOnceUntilRefreshOrAnotherFolder) {
    avvia();
    const QString cartella = QStringLiteral("Prima Nota Magazzino");
    EXPECT_TRUE(archivio_.Lista(cartella).isEmpty());
    VocePrimaNota voce{{}, QStringLiteral("A"), QStringLiteral("Carico")};
    ASSERT_TRUE(archivio_.SetITEM(voce, QStringLiteral("x")));
    EXPECT_TRUE(archivio_.Lista(cartella).isEmpty()) << "an empty list is a list too, and is kept";
    EXPECT_EQ(archivio_.Lista(cartella + QStringLiteral("/A")).size(), 1);
    EXPECT_EQ(archivio_.Lista(cartella).size(), 1) << "the items of the folders below belong to it";
    PracticeDatabase& studio = StudioConModulo::archivio_;
    studio.execute(QStringLiteral("alter table tblDati rename to altrove"));
    archivio_.Refresh();
    for (int volta = 0; volta < 2; ++volta)
        EXPECT_THROW(archivio_.Lista(cartella), host::HostError) << "unread is not none";
    EXPECT_THROW(archivio_.GetITEM(voce.file), host::HostError);
    EXPECT_FALSE(archivio_.SetITEM(voce, QStringLiteral("y"))) << "nor is the item taken for a new one";
    studio.execute(QStringLiteral("alter table altrove rename to tblDati"));
    EXPECT_EQ(archivio_.Lista(cartella).size(), 1);
    ASSERT_TRUE(archivio_.DelITEM(voce.file));
    EXPECT_EQ(archivio_.Lista(cartella).size(), 1);
    archivio_.Refresh();
    EXPECT_TRUE(archivio_.Lista(cartella).isEmpty());
}

TEST_F(ArchivioDati, WithoutAHostEverythingFailsQuietly) {
    VocePrimaNota voce;
    EXPECT_FALSE(archivio_.SetITEM(voce, QStringLiteral("x")));
    EXPECT_FALSE(archivio_.GetITEM(QStringLiteral("1")));
    EXPECT_FALSE(archivio_.DelITEM(QStringLiteral("1")));
    EXPECT_TRUE(archivio_.Lista(QStringLiteral("x")).isEmpty());
}
