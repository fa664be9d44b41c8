#include "config/clsConfig.h"
#include "config/clsItemIva.h"
#include "config/clsItemRaggMerc.h"
#include "config/clsItemSituazioneDente.h"
#include "desk/shell/Desk.h"
#include "desk/shell/Options.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Files.h"
#include "platform/SpecialFolders.h"

#include <QDir>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace files = platform::files;

namespace {

const char* const MODELLO = R"(<corvala name="Prova" webinfo="https://esempio.it">
<user><title></title><details></details></user>
<tools><tool id="altro" path="x"/><tool id="imageEditor" path="/usr/bin/gimp"/></tools>
<parameters><generici><parameter name="dbPath">[app.path]\DB\</parameter>
<parameter name="automaticoRigoVuoto">false</parameter><parameter name="refreshFinestre">5</parameter></generici>
<preventivi><parameter name="reportID"></parameter><parameter name="reportIvaSmall">True</parameter></preventivi>
<trattamenti><parameter name="unicaScheda">true</parameter><parameter name="titoloAppunti"></parameter>
<parameter name="ignoto">x</parameter></trattamenti>
<fatturazione><parameter name="bolloPlafon">77,47</parameter><parameter name="ivaDefault"></parameter></fatturazione>
</parameters>
<accise><iva codice="22" percentuale="22">Ordinaria</iva><iva codice="5" percentuale="5,5">Ridotta</iva></accise>
<ragruppamentiMerciologici><ragruppamento codice="01">Visite</ragruppamento></ragruppamentiMerciologici>
<situazioniDenti><situazione id="9" descrizione="Impianto"/></situazioniDenti>
<services><service id="CRVL0303" endpoint="e" enabled="1" patient="1">
<bibliography><link title="T" caption="C" url="U"/><link title="T2" caption="C2" url="U2"/></bibliography></service>
<service id="CRVL0301" enabled="true" patient="0"/><service id="CRVL0303" enabled="0"/></services></corvala>)";

/// A configuration on a real user of a real practice; install folder and user's folder are temporary.
class ClsConfigTest : public testing::Test {
protected:
    ClsConfigTest() {
        sAppPath = cartella_.filePath(QStringLiteral("app"));
        QDir().mkpath(sAppPath + QStringLiteral("/DB"));
        scrivi(sAppPath + QStringLiteral("/Config.xml"), MODELLO);
        scrivi(sAppPath + QStringLiteral("/DB/TabellaArticoli.xml"), "<articoli/>");
        scrivi(sAppPath + QStringLiteral("/DB/TabellaServizi.xml"), "<servizi/>");
        desk::Options opzioni;
        opzioni.databaseUrl = QStringLiteral("sqlite:") + cartella_.filePath(QStringLiteral("studio.db"));
        opzioni.configDir = cartella_.filePath(QStringLiteral("config"));
        desk_ = desk::Desk::open(opzioni);
        oHost = &desk_->host();
        colIva = &iva_;
        colRaggMerc = &gruppi_;
        colSituazioniDenti = &situazioni_;
    }
    ~ClsConfigTest() override {
        oHost = nullptr;
        colIva = nullptr;
        colRaggMerc = nullptr;
        colSituazioniDenti = nullptr;
        sAppPath.clear();
        platform::setApplicationDataFolder(QString());
    }

    static void scrivi(const QString& file, const QByteArray& testo) {
        ASSERT_TRUE(files::writeAtomically(file, testo));
    }
    QString utente(const char* nome) const {
        return cartella_.filePath(QStringLiteral("config/Lumetra/Tessara 5000 V6/Corvala/")) + QLatin1String(nome);
    }
    QByteArray salvato() const { return files::read(utente("Config.xml")).value_or(QByteArray()); }

    QTemporaryDir cartella_;
    std::unique_ptr<desk::Desk> desk_;
    platform::Collection<clsItemIva> iva_;
    platform::Collection<clsItemRaggMerc> gruppi_;
    platform::Collection<clsItemSituazioneDente> situazioni_;
    clsConfig config_;
};

} // namespace

TEST_F(ClsConfigTest, FirstRunSeedsTheFolderAndLaterRunsLeaveItAlone) {
    ASSERT_TRUE(config_.Init());
    EXPECT_EQ(config_.FileName(), utente("Config.xml"));
    EXPECT_EQ(config_.DBPAth(), utente("DB/"));
    EXPECT_TRUE(salvato().contains(utente("DB/").toUtf8()));
    EXPECT_EQ(files::read(utente("DB/TabellaServizi.xml")), QByteArray("<servizi/>"));

    scrivi(utente("DB/TabellaServizi.xml"), "<servizi>suoi</servizi>");
    config_.setDBPAth(QStringLiteral("/condivisa/DB/"));
    clsConfig seconda;
    ASSERT_TRUE(seconda.Init());
    EXPECT_EQ(seconda.DBPAth(), QStringLiteral("/condivisa/DB/"));
    EXPECT_EQ(files::read(utente("DB/TabellaServizi.xml")), QByteArray("<servizi>suoi</servizi>"));
}

TEST_F(ClsConfigTest, WithoutBothCataloguesTheDatabaseStaysInTheInstallFolder) {
    files::remove(sAppPath + QStringLiteral("/DB/TabellaArticoli.xml"));
    ASSERT_TRUE(config_.Init());
    EXPECT_EQ(config_.DBPAth(), sAppPath + QStringLiteral("\\DB\\"));
    EXPECT_TRUE(salvato().contains("[app.path]"));
}

TEST_F(ClsConfigTest, RefusesWhatIsNoConfiguration) {
    const struct {
        const char* caso;
        const char* testo;
    } casi[] = {{"empty", ""},
                {"cut short", "<corvala><user>"},
                {"two roots", "<corvala/><corvala/>"},
                {"document type", "<!DOCTYPE corvala [<!ENTITY a 'b'>]><corvala/>"}};
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.caso);
        scrivi(sAppPath + QStringLiteral("/Config.xml"), caso.testo);
        files::remove(utente("Config.xml"));
        clsConfig config;
        EXPECT_FALSE(config.Init());
        EXPECT_EQ(config.LastError(), QString::fromUtf8("Non è stato possibile caricare il file di configurazione"));
    }
    files::remove(sAppPath + QStringLiteral("/Config.xml"));
    files::remove(utente("Config.xml"));
    EXPECT_FALSE(config_.Init()) << "no template and no working file";
}

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
