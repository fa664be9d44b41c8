#include "ConfigFixture.h"
#include "platform/Clock.h"
#include "platform/FileHold.h"
#include "platform/XmlDocument.h"
#include "support/FullDisk.h"
#include "support/Places.h"
#include "support/Text.h"

namespace {

constexpr QFile::Permissions OWNERS = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions OTHERS = QFile::ReadGroup | QFile::ReadOther;

/// The folder of a user from the first start on: seeded, mended, renewed.
class ConfigFolderTest : public ClsConfigTest {
protected:
    ConfigFolderTest() { platform::setClock(QDateTime(QDate(2026, 3, 10), QTime(9, 30))); }
    ~ConfigFolderTest() override { platform::releaseClock(); }

    static QStringList elenco(const QString& cartella, const char* quali) { return files::list(cartella, u8(quali)); }
    static QFile::Permissions diritti(const QString& path) {
        return QFile::permissions(path) & (OWNERS | OTHERS | QFile::WriteGroup | QFile::WriteOther);
    }
};

/// Every element below the path, as markup.
QStringList markup(const platform::XmlDocument& document, const char* path) {
    QStringList found;
    for (const platform::XmlNode& node : document.select(path))
        found << node.xml();
    return found;
}

} // namespace

TEST_F(ConfigFolderTest, FirstRunSeedsTheFolderAndLaterRunsLeaveItAlone) {
    ASSERT_TRUE(config_.Init());
    EXPECT_EQ(config_.FileName(), utente("Config.xml"));
    EXPECT_EQ(config_.DBPAth(), utente("DB/"));
    EXPECT_TRUE(salvato().contains(utente("DB/").toUtf8()));
    EXPECT_EQ(files::read(utente("DB/TabellaServizi.xml")), QByteArray("<servizi></servizi>"));

    scrivi(utente("DB/TabellaServizi.xml"), "<servizi>suoi</servizi>");
    config_.setDBPAth(QStringLiteral("/condivisa/DB/"));
    clsConfig seconda;
    ASSERT_TRUE(seconda.Init());
    EXPECT_EQ(seconda.DBPAth(), QStringLiteral("/condivisa/DB/"));
    EXPECT_EQ(files::read(utente("DB/TabellaServizi.xml")), QByteArray("<servizi>suoi</servizi>"));
}

TEST_F(ConfigFolderTest, WithoutBothCataloguesTheDatabaseStaysInTheInstallFolder) {
    files::remove(sAppPath + QStringLiteral("/DB/TabellaArticoli.xml"));
    ASSERT_TRUE(config_.Init());
    EXPECT_EQ(config_.DBPAth(), sAppPath + QStringLiteral("\\DB\\"));
    EXPECT_TRUE(salvato().contains("[app.path]"));
}

const char* const NO_DOCUMENT[] = {"", "<corvala><user>", "<corvala/><corvala/>",
                                   "<!DOCTYPE corvala [<!ENTITY a 'b'>]><corvala/>"};

TEST_F(ConfigFolderTest, ABrokenTemplateIsNoConfiguration) {
    const QString modello = sAppPath + u8("/Config.xml");
    for (const char* testo : NO_DOCUMENT) {
        SCOPED_TRACE(testo);
        scrivi(modello, testo);
        for (const bool primoAvvio : {true, false}) {
            files::remove(utente("Config.xml"));
            if (!primoAvvio) scrivi(utente("Config.xml"), testo);
            clsConfig config;
            EXPECT_FALSE(config.Init());
            EXPECT_EQ(config.LastError(), u8("Non è stato possibile caricare il file di configurazione"));
            EXPECT_EQ(files::exists(utente("Config.xml")), !primoAvvio);
        }
    }
    files::remove(modello);
    files::remove(utente("Config.xml"));
    EXPECT_FALSE(config_.Init()) << "no template and no working file";
}

TEST_F(ConfigFolderTest, ABrokenWorkingCopyIsKeptAsideAndSeededAgain) {
    ASSERT_TRUE(config_.Init());
    const QString aside = utente("Config-danneggiato-20260310-093000.xml");
    for (const char* testo : NO_DOCUMENT) {
        SCOPED_TRACE(testo);
        scrivi(utente("Config.xml"), testo);
        clsConfig config;
        ASSERT_TRUE(config.Init());
        EXPECT_EQ(files::read(aside), QByteArray(testo));
        ASSERT_EQ(config.Avvisi().size(), 1);
        EXPECT_TRUE(config.Avvisi().first().contains(aside));
        EXPECT_EQ(config.DBPAth(), utente("DB/"));
        config.setBolloPlafon(u8("80,00"));
        clsConfig altra;
        ASSERT_TRUE(altra.Init());
        EXPECT_EQ(altra.BolloPlafon(), u8("80,00"));
        EXPECT_TRUE(altra.Avvisi().isEmpty());
    }
}

TEST_F(ConfigFolderTest, ABrokenCatalogueIsKeptAsideAndSeededAgain) {
    ASSERT_TRUE(config_.Init());
    const QString condivisa = cartella_.filePath(u8("condivisa"));
    ASSERT_TRUE(files::createFolder(condivisa));
    const QString servizi = condivisa + u8("/tabellaServizi.xml");
    scrivi(condivisa + u8("/TabellaArticoli.xml"), "<articoli>suoi</articoli>");
    scrivi(servizi, "");
    ASSERT_TRUE(QFile::setPermissions(servizi, OWNERS | OTHERS));
    config_.setDBPAth(condivisa); // without a separator at its end
    clsConfig seconda;
    ASSERT_TRUE(seconda.Init());
    ASSERT_EQ(seconda.Avvisi().size(), 1);
    EXPECT_TRUE(seconda.Avvisi().first().contains(u8("TabellaServizi.xml")));
    EXPECT_EQ(files::read(servizi), QByteArray("<servizi></servizi>"));
    EXPECT_EQ(diritti(servizi), OWNERS | OTHERS) << "the others go on reading it";
    EXPECT_EQ(files::read(condivisa + u8("/tabellaServizi-danneggiato-20260310-093000.xml")), QByteArray());
    EXPECT_EQ(files::read(condivisa + u8("/TabellaArticoli.xml")), QByteArray("<articoli>suoi</articoli>"));
    clsConfig terza;
    ASSERT_TRUE(terza.Init());
    EXPECT_TRUE(terza.Avvisi().isEmpty());
}

TEST_F(ConfigFolderTest, AFirstStartThatFoundNoRoomBeginsAnew) {
    for (const char* grande : {"/Config.xml", "/DB/TabellaArticoli.xml", "/DB/TabellaServizi.xml"}) {
        SCOPED_TRACE(grande);
        QDir(utente("")).removeRecursively();
        const QString path = sAppPath + QLatin1String(grande);
        const QByteArray intero = *files::read(path);
        scrivi(path, QByteArray(intero).insert(intero.lastIndexOf("</"), QByteArray(10000, ' ')));
        {
            const FullDisk disk(8000);
            clsConfig config;
            EXPECT_FALSE(config.Init());
            EXPECT_TRUE(config.LastError().startsWith(u8("Non è stato possibile salvare il file di configurazione")));
            EXPECT_FALSE(files::exists(utente("Config.xml"))) << "it would name the program's own folder for ever";
        }
        clsConfig config;
        ASSERT_TRUE(config.Init());
        EXPECT_EQ(config.DBPAth(), utente("DB/"));
        scrivi(path, intero);
    }
}

TEST_F(ConfigFolderTest, OnlyTheOwnerReadsTheFolderUnlessItsDataAreShared) {
    for (const bool condivisa : {false, true}) {
        SCOPED_TRACE(condivisa);
        ASSERT_TRUE(QDir().mkpath(utente("DB")));
        for (const char* nome : {"Config.xml", "frmMDITrattamenti.geometry", "DB/TabellaServizi.xml"}) {
            scrivi(utente(nome), nome == QByteArray("Config.xml") ? MODELLO : "<x/>");
            ASSERT_TRUE(QFile::setPermissions(utente(nome), OWNERS | OTHERS));
        }
        const QFile::Permissions cartella = OWNERS | OTHERS | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
        ASSERT_TRUE(QFile::setPermissions(utente(""), cartella));
        ASSERT_TRUE(QFile::setPermissions(utente("DB"), condivisa ? cartella | QFile::WriteGroup : cartella));
        clsConfig config;
        ASSERT_TRUE(config.Init());
        for (const QString& nome : elenco(utente(""), "*"))
            EXPECT_EQ(diritti(utente("") + nome), OWNERS) << nome.toStdString();
        EXPECT_EQ(diritti(utente("")), condivisa ? OWNERS | OTHERS : OWNERS) << "the way to what is shared stays";
        EXPECT_EQ(diritti(utente("DB/TabellaServizi.xml")), OWNERS | OTHERS);
    }
}

TEST_F(ConfigFolderTest, OnlyWhatAKilledProgramLeftOfAGeometryIsRemoved) {
    ASSERT_TRUE(config_.Init());
    for (const char* nome : {"frmA.geometry", "frmA.geometry.AbCdEf", "frmA.geometry.QwErTy", "Config.xml.backup"})
        scrivi(utente(nome), "x");
    {
        const platform::FileHold scrive(utente("frmA.geometry.QwErTy"));
        clsConfig seconda;
        ASSERT_TRUE(seconda.Init());
        EXPECT_EQ(elenco(utente(""), "frmA*"), (QStringList{u8("frmA.geometry"), u8("frmA.geometry.QwErTy")}));
    }
    clsConfig terza;
    ASSERT_TRUE(terza.Init());
    EXPECT_EQ(elenco(utente(""), "frmA*"), QStringList{u8("frmA.geometry")});
    EXPECT_TRUE(files::exists(utente("Config.xml.backup"))) << "somebody's own copy";
}

TEST_F(ConfigFolderTest, ANewerTemplateBringsItsCommandsAndNothingElse) {
    const auto cambia = [](QByteArray testo, const QList<std::pair<const char*, const char*>>& coppie) {
        for (const auto& [da, a] : coppie) {
            EXPECT_TRUE(testo.contains(da)) << da;
            testo.replace(da, a);
        }
        return testo;
    };
    // The first version that was delivered, as a practice made it its own.
    const QByteArray vecchia = cambia(*files::read(places::tests("/config/files/Config-prima-versione.xml")),
                                      {{"name=\"unicaScheda\">false", "name=\"unicaScheda\">true"},
                                       {"name=\"bollo\">2,00", "name=\"bollo\">1,81"},
                                       {"caption=\"Archivi\"", "caption=\"Magazzino\""},
                                       {"caption=\"Nuovo piano\"", "caption=\"Scrivi piano\""},
                                       {"id=\"CRVL0301\" endpoint=\"\" enabled=\"1\"", "id=\"CRVL0301\" enabled=\"0\""},
                                       {"<button id=\"CRVL0501\"", "<button id=\"Sua\""}});
    const QByteArray nuova = cambia(
        *files::read(places::data("/Config.xml")),
        {{"</services>", "<service id=\"CRVL0998\" enabled=\"1\"/><service id=\"CRVL0999\" "
                         "enabled=\"1\" patient=\"1\"><bibliography><link title=\"T\" "
                         "caption=\"C\" url=\"U\"/></bibliography></service></services>"},
         {"<group caption=\"Archivi\">", "<group caption=\"Archivi\"><button id=\"CRVL0999\" caption=\"Nuovo\"/>"},
         {"</groups>", "<group caption=\"Altro\"><button id=\"CRVL0998\"/></group></groups>"}});
    scrivi(sAppPath + u8("/Config.xml"), nuova);
    ASSERT_TRUE(QDir().mkpath(utente("")));
    scrivi(utente("Config.xml"), vecchia);
    ASSERT_TRUE(config_.Init());
    EXPECT_TRUE(config_.Avvisi().isEmpty());

    platform::XmlDocument prima;
    platform::XmlDocument dopo;
    ASSERT_TRUE(prima.loadBytes(vecchia) && dopo.loadFile(utente("Config.xml")));
    for (const char* parte : {"user", "tools", "parameters", "accise", "ragruppamentiMerciologici", "situazioniDenti"})
        EXPECT_EQ(markup(dopo, parte), markup(prima, parte)) << parte;
    QStringList bottoni = markup(prima, "/corvala/gui/groups/group/button");
    bottoni.append(u8("<button id=\"CRVL0999\" caption=\"Nuovo\"/>"));
    bottoni.append(u8("<button id=\"CRVL0998\"/>"));
    EXPECT_EQ(markup(dopo, "/corvala/gui/groups/group/button"), bottoni);
    EXPECT_EQ(dopo.select("//group[@caption='Magazzino']/button[@id='CRVL0999']").size(), 1u)
        << "beside the buttons that it stands with in the template";
    QStringList spenti;
    for (const clsItemService& servizio : config_.ListaServices())
        if (!servizio.Enabled) spenti << servizio.Key;
    EXPECT_EQ(spenti, QStringList{u8("CRVL0301")}) << "what was delivered off is on, what was switched off stays off";
    EXPECT_EQ(config_.BiblioService(config_.IDService(u8("CRVL0999"))), u8("T\tC;U"));
    EXPECT_TRUE(config_.PatientService(config_.IDService(u8("CRVL0999"))));
    const QStringList tenute = elenco(utente(""), "Config-*");
    EXPECT_EQ(tenute, QStringList{u8("Config-precedente-20260310-093000.xml")});
    EXPECT_EQ(files::read(utente("") + tenute.value(0)), vecchia);

    // What the practice now takes out or switches off stays so.
    platform::setClock(QDateTime(QDate(2026, 3, 11), QTime(9, 30)));
    const QByteArray sua =
        cambia(salvato(), {{"id=\"CRVL0101\" endpoint=\"\" enabled=\"1\"", "id=\"CRVL0101\" enabled=\"0\""},
                           {"<service id=\"CRVL0998\" enabled=\"1\"/>", ""}});
    scrivi(utente("Config.xml"), sua);
    clsConfig seconda;
    ASSERT_TRUE(seconda.Init());
    EXPECT_EQ(salvato(), sua);
    EXPECT_EQ(elenco(utente(""), "Config-*"), tenute);
}
