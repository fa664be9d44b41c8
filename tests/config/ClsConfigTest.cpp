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
    ASSERT_EQ(vat_.size(), 2u);
    EXPECT_FLOAT_EQ(vat_.find(QStringLiteral("5"))->percentuale, 5.5F);
    EXPECT_EQ(vat_[0].descrizione, QStringLiteral("Ordinaria"));
    EXPECT_EQ(groups_.find(QStringLiteral("01"))->descrizione, QStringLiteral("Visite"));
    EXPECT_EQ(situations_.find(QStringLiteral("9"))->descrizione, QStringLiteral("Impianto"));
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

    clsConfig other;
    ASSERT_TRUE(other.Init());
    EXPECT_TRUE(other.AutomaticoRigoVuoto());
    EXPECT_EQ(other.MinuteRefresh(), 12);
    EXPECT_EQ(other.PreventReportID(), QStringLiteral("A & B <1>"));
    EXPECT_FALSE(other.UnicaSchedaTrattamento());
    EXPECT_EQ(other.TitoloAppunti(), QString::fromUtf8("Appunti di là"));
    EXPECT_EQ(other.BolloPlafon(), QStringLiteral("80,00"));
    EXPECT_EQ(other.IVADefault(), QStringLiteral("ES"));
    EXPECT_EQ(other.UserTitle(), QString::fromUtf8("Studio Dott. Niccolò — 10 €"));
    EXPECT_FALSE(saved().contains("Studio Dott.")) << "the texts of the user stand in Base64";
    EXPECT_EQ(other.UserDetails(), QString());
}

TEST_F(ClsConfigTest, OnlyTheLaterSettingsGetANodeWhereThereIsNone) {
    ASSERT_TRUE(config_.Init());
    config_.setDefaultRicetteBianche(false);
    config_.setUtilizzoMMG(true);
    config_.setBollo(QStringLiteral("2,00"));
    EXPECT_EQ(config_.Bollo(), QStringLiteral("2,00"));

    clsConfig other;
    ASSERT_TRUE(other.Init());
    EXPECT_FALSE(other.DefaultRicetteBianche());
    EXPECT_TRUE(other.UtilizzoMMG());
    EXPECT_EQ(other.Bollo(), QString());
}

TEST_F(ClsConfigTest, ARefusedSaveIsToldAndLeavesEverythingAsItWas) {
    ASSERT_TRUE(config_.Init());
    const QByteArray before = saved();
    const QString folder = folder_.filePath(QStringLiteral("config"));
    ASSERT_TRUE(QDir().rename(folder, folder + QStringLiteral("-via")));
    EXPECT_THROW(config_.setIVADefault(QStringLiteral("22")), ConfigError);
    EXPECT_THROW(config_.setUtilizzoMMG(true), ConfigError);
    EXPECT_THROW(config_.setUserTitle(QStringLiteral("x")), ConfigError);
    ASSERT_TRUE(QDir().rename(folder + QStringLiteral("-via"), folder));
    EXPECT_EQ(config_.IVADefault(), QString());
    EXPECT_FALSE(config_.UtilizzoMMG());
    EXPECT_EQ(saved(), before);

    config_.setMinuteRefresh(7);
    EXPECT_FALSE(saved().contains("utilizzoMMG")) << "a refused value must not go out with the next one";
    EXPECT_FALSE(saved().contains(">22<"));
}

TEST_F(ClsConfigTest, NumbersThatDoNotFitAreZero) {
    for (const char* text : {"", "abc", "40000", "-99999"}) {
        SCOPED_TRACE(text);
        Settings settings;
        settings.MinuteRefresh = 3;
        readParameter(parameters()[2], QLatin1String(text), settings);
        EXPECT_EQ(settings.MinuteRefresh, 0);
    }
}

TEST_F(ClsConfigTest, NotesAreModalUnlessTheUserSaidNo) {
    const char* const key = "mostraAppuntiPazienteInFinestraModale";
    for (const char* text : {"", "SI", "no", "NO"}) {
        SCOPED_TRACE(text);
        oHost->Utente().Items().SetITEM(QLatin1String(key), QLatin1String(text));
        clsConfig config;
        ASSERT_TRUE(config.Init());
        EXPECT_EQ(config.AppuntiPazienteModali(), qstrcmp(text, "NO") != 0);
    }
    config_.setAppuntiPazienteModali(true);
    EXPECT_EQ(oHost->Utente().Items().GetITEM(QLatin1String(key)), QStringLiteral("SI"));
}

TEST_F(ClsConfigTest, CommandsAreFoundByKeyAndByIdAndTheUnknownAnswersNothing) {
    ASSERT_TRUE(config_.Init());
    QSet<qint32> ids;
    for (const clsItemService& service : config_.ListaServices())
        ids.insert(service.ID);
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
