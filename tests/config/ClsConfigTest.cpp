#include "ConfigFixture.h"

#include <QSet>

TEST_F(ClsConfigTest, ReadsValuesDefaultsAndCollections) {
    ASSERT_TRUE(config_.Init());
    EXPECT_EQ(config_.ProductName(), QStringLiteral("Prova"));
    EXPECT_EQ(config_.WebInformation(), QStringLiteral("https://esempio.it"));
    EXPECT_EQ(config_.ImageEditor(), QStringLiteral("/usr/bin/gimp"));
    EXPECT_EQ(config_.MinuteRefresh(), 5);
    EXPECT_TRUE(config_.UnicaSchedaTrattamento());
    EXPECT_FALSE(config_.PreventReportIvaSmall()) << "only the exact text true is true";
    EXPECT_EQ(config_.TitoloAppunti(), QStringLiteral("Storico degli Appunti"));
    EXPECT_TRUE(config_.FatturaRichiestaPagamento());
    EXPECT_TRUE(config_.DefaultRicetteBianche());
    EXPECT_FALSE(config_.UtilizzoMMG());
    EXPECT_EQ(config_.Bollo(), QString());
    ASSERT_EQ(iva_.size(), 2u);
    EXPECT_FLOAT_EQ(iva_.find(QStringLiteral("5"))->percentuale, 5.5F);
    EXPECT_EQ(iva_[0].descrizione, QStringLiteral("Ordinaria"));
    EXPECT_EQ(gruppi_.find(QStringLiteral("01"))->descrizione, QStringLiteral("Visite"));
    EXPECT_EQ(situazioni_.find(QStringLiteral("9"))->descrizione, QStringLiteral("Impianto"));
}

TEST_F(ClsConfigTest, EverySettingIsInTheFileAtOnce) {
    ASSERT_TRUE(config_.Init());
    config_.setAutomaticoRigoVuoto(true);
    config_.setMinuteRefresh(12);
    config_.setPreventReportID(QStringLiteral("A & B <1>"));
    config_.setUnicaSchedaTrattamento(false);
    config_.setTitoloAppunti(QString::fromUtf8("Appunti di là"));
    config_.setBolloPlafon(QStringLiteral("80,00"));
    config_.setIVADefault(QStringLiteral("ES"));
    config_.setUserTitle(QString::fromUtf8("Studio Dott. Niccolò — 10 €"));
    config_.setUserDetails(QString());

    clsConfig altra;
    ASSERT_TRUE(altra.Init());
    EXPECT_TRUE(altra.AutomaticoRigoVuoto());
    EXPECT_EQ(altra.MinuteRefresh(), 12);
    EXPECT_EQ(altra.PreventReportID(), QStringLiteral("A & B <1>"));
    EXPECT_FALSE(altra.UnicaSchedaTrattamento());
    EXPECT_EQ(altra.TitoloAppunti(), QString::fromUtf8("Appunti di là"));
    EXPECT_EQ(altra.BolloPlafon(), QStringLiteral("80,00"));
    EXPECT_EQ(altra.IVADefault(), QStringLiteral("ES"));
    EXPECT_EQ(altra.UserTitle(), QString::fromUtf8("Studio Dott. Niccolò — 10 €"));
    EXPECT_FALSE(salvato().contains("Studio Dott.")) << "the texts of the user stand in Base64";
    EXPECT_EQ(altra.UserDetails(), QString());
}

TEST_F(ClsConfigTest, OnlyTheLaterSettingsGetANodeWhereThereIsNone) {
    ASSERT_TRUE(config_.Init());
    config_.setDefaultRicetteBianche(false);
    config_.setUtilizzoMMG(true);
    config_.setBollo(QStringLiteral("2,00"));
    EXPECT_EQ(config_.Bollo(), QStringLiteral("2,00"));

    clsConfig altra;
    ASSERT_TRUE(altra.Init());
    EXPECT_FALSE(altra.DefaultRicetteBianche());
    EXPECT_TRUE(altra.UtilizzoMMG());
    EXPECT_EQ(altra.Bollo(), QString());
}

TEST_F(ClsConfigTest, ARefusedSaveIsToldAndLeavesEverythingAsItWas) {
    ASSERT_TRUE(config_.Init());
    const QByteArray prima = salvato();
    const QString cartella = cartella_.filePath(QStringLiteral("config"));
    ASSERT_TRUE(QDir().rename(cartella, cartella + QStringLiteral("-via")));
    EXPECT_THROW(config_.setIVADefault(QStringLiteral("22")), ErroreConfigurazione);
    EXPECT_THROW(config_.setUtilizzoMMG(true), ErroreConfigurazione);
    EXPECT_THROW(config_.setUserTitle(QStringLiteral("x")), ErroreConfigurazione);
    ASSERT_TRUE(QDir().rename(cartella + QStringLiteral("-via"), cartella));
    EXPECT_EQ(config_.IVADefault(), QString());
    EXPECT_FALSE(config_.UtilizzoMMG());
    EXPECT_EQ(salvato(), prima);

    config_.setMinuteRefresh(7);
    EXPECT_FALSE(salvato().contains("utilizzoMMG")) << "a refused value must not go out with the next one";
    EXPECT_FALSE(salvato().contains(">22<"));
}

TEST_F(ClsConfigTest, NumbersThatDoNotFitAreZero) {
    for (const char* testo : {"", "abc", "40000", "-99999"}) {
        SCOPED_TRACE(testo);
        Impostazioni impostazioni;
        impostazioni.MinuteRefresh = 3;
        leggiParametro(parametri()[2], QLatin1String(testo), impostazioni);
        EXPECT_EQ(impostazioni.MinuteRefresh, 0);
    }
}

TEST_F(ClsConfigTest, NotesAreModalUnlessTheUserSaidNo) {
    const char* const chiave = "mostraAppuntiPazienteInFinestraModale";
    for (const char* testo : {"", "SI", "no", "NO"}) {
        SCOPED_TRACE(testo);
        oHost->Utente().Items().SetITEM(QLatin1String(chiave), QLatin1String(testo));
        clsConfig config;
        ASSERT_TRUE(config.Init());
        EXPECT_EQ(config.AppuntiPazienteModali(), qstrcmp(testo, "NO") != 0);
    }
    config_.setAppuntiPazienteModali(true);
    EXPECT_EQ(oHost->Utente().Items().GetITEM(QLatin1String(chiave)), QStringLiteral("SI"));
}

TEST_F(ClsConfigTest, CommandsAreFoundByKeyAndByIdAndTheUnknownAnswersNothing) {
    ASSERT_TRUE(config_.Init());
    QSet<qint32> ids;
    for (const clsItemService& servizio : config_.ListaServices())
        ids.insert(servizio.ID);
    EXPECT_EQ(ids.size(), 8) << "six fixed ones and two of the file, each with an id of its own";
    const qint32 id = config_.IDService(QStringLiteral("CRVL0303"));
    EXPECT_EQ(config_.KeyService(id), QStringLiteral("CRVL0303"));
    EXPECT_EQ(config_.EndpointService(id), QStringLiteral("e"));
    EXPECT_EQ(config_.BiblioService(id), QStringLiteral("T\tC;U\r\nT2\tC2;U2"));
    EXPECT_TRUE(config_.UsableService(id));
    EXPECT_TRUE(config_.PatientService(id));
    EXPECT_FALSE(config_.UsableService(QStringLiteral("CRVL0301"))) << "only 1 enables";
    EXPECT_TRUE(config_.UsableService(QStringLiteral("CRVL.main.about")));

    EXPECT_EQ(config_.IDService(QStringLiteral("CRVL9999")), 0);
    EXPECT_EQ(config_.KeyService(987654), QString());
    EXPECT_EQ(config_.BiblioService(987654), QString());
    EXPECT_FALSE(config_.UsableService(987654));
    EXPECT_FALSE(config_.PatientService(987654));
}
