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

    static QStringList list(const QString& folder, const char* pattern) { return files::list(folder, u8(pattern)); }
    static QFile::Permissions permissions(const QString& path) {
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
    EXPECT_EQ(config_.FileName(), userFile("Config.xml"));
    EXPECT_EQ(config_.DBPAth(), userFile("DB/"));
    EXPECT_TRUE(saved().contains(userFile("DB/").toUtf8()));
    EXPECT_EQ(files::read(userFile("DB/TabellaServizi.xml")), QByteArray("<servizi></servizi>"));

    write(userFile("DB/TabellaServizi.xml"), "<servizi>suoi</servizi>");
    config_.setDBPAth(QStringLiteral("/condivisa/DB/"));
    clsConfig second;
    ASSERT_TRUE(second.Init());
    EXPECT_EQ(second.DBPAth(), QStringLiteral("/condivisa/DB/"));
    EXPECT_EQ(files::read(userFile("DB/TabellaServizi.xml")), QByteArray("<servizi>suoi</servizi>"));
}

TEST_F(ConfigFolderTest, WithoutBothCataloguesTheDatabaseStaysInTheInstallFolder) {
    files::remove(sAppPath + QStringLiteral("/DB/TabellaArticoli.xml"));
    ASSERT_TRUE(config_.Init());
    EXPECT_EQ(config_.DBPAth(), sAppPath + QStringLiteral("\\DB\\"));
    EXPECT_TRUE(saved().contains("[app.path]"));
}

const char* const NO_DOCUMENT[] = {"", "<corvala><user>", "<corvala/><corvala/>",
                                   "<!DOCTYPE corvala [<!ENTITY a 'b'>]><corvala/>"};

TEST_F(ConfigFolderTest, ABrokenTemplateIsNoConfiguration) {
    const QString pattern = sAppPath + u8("/Config.xml");
    for (const char* text : NO_DOCUMENT) {
        SCOPED_TRACE(text);
        write(pattern, text);
        for (const bool firstStart : {true, false}) {
            files::remove(userFile("Config.xml"));
            if (!firstStart) write(userFile("Config.xml"), text);
            clsConfig config;
            EXPECT_FALSE(config.Init());
            EXPECT_EQ(config.LastError(), u8("Non è stato possibile caricare il file di configurazione"));
            EXPECT_EQ(files::exists(userFile("Config.xml")), !firstStart);
        }
    }
    files::remove(pattern);
    files::remove(userFile("Config.xml"));
    EXPECT_FALSE(config_.Init()) << "no template and no working file";
}

TEST_F(ConfigFolderTest, ABrokenWorkingCopyIsKeptAsideAndSeededAgain) {
    ASSERT_TRUE(config_.Init());
    const QString aside = userFile("Config-danneggiato-20260310-093000.xml");
    for (const char* text : NO_DOCUMENT) {
        SCOPED_TRACE(text);
        write(userFile("Config.xml"), text);
        clsConfig config;
        ASSERT_TRUE(config.Init());
        EXPECT_EQ(files::read(aside), QByteArray(text));
        ASSERT_EQ(config.Notices().size(), 1);
        EXPECT_TRUE(config.Notices().first().contains(aside));
        EXPECT_EQ(config.DBPAth(), userFile("DB/"));
        config.setBolloPlafon(u8("80,00"));
        clsConfig other;
        ASSERT_TRUE(other.Init());
        EXPECT_EQ(other.BolloPlafon(), u8("80,00"));
        EXPECT_TRUE(other.Notices().isEmpty());
    }
}

TEST_F(ConfigFolderTest, ABrokenCatalogueIsKeptAsideAndSeededAgain) {
    ASSERT_TRUE(config_.Init());
    const QString shared = folder_.filePath(u8("condivisa"));
    ASSERT_TRUE(files::createFolder(shared));
    const QString services = shared + u8("/tabellaServizi.xml");
    write(shared + u8("/TabellaArticoli.xml"), "<articoli>suoi</articoli>");
    write(services, "");
    ASSERT_TRUE(QFile::setPermissions(services, OWNERS | OTHERS));
    config_.setDBPAth(shared); // without a separator at its end
    clsConfig second;
    ASSERT_TRUE(second.Init());
    ASSERT_EQ(second.Notices().size(), 1);
    EXPECT_TRUE(second.Notices().first().contains(u8("TabellaServizi.xml")));
    EXPECT_EQ(files::read(services), QByteArray("<servizi></servizi>"));
    EXPECT_EQ(permissions(services), OWNERS | OTHERS) << "the others go on reading it";
    EXPECT_EQ(files::read(shared + u8("/tabellaServizi-danneggiato-20260310-093000.xml")), QByteArray());
    EXPECT_EQ(files::read(shared + u8("/TabellaArticoli.xml")), QByteArray("<articoli>suoi</articoli>"));
    clsConfig third;
    ASSERT_TRUE(third.Init());
    EXPECT_TRUE(third.Notices().isEmpty());
}

TEST_F(ConfigFolderTest, AFirstStartThatFoundNoRoomBeginsAnew) {
    for (const char* large : {"/Config.xml", "/DB/TabellaArticoli.xml", "/DB/TabellaServizi.xml"}) {
        SCOPED_TRACE(large);
        QDir(userFile("")).removeRecursively();
        const QString path = sAppPath + QLatin1String(large);
        const QByteArray wholeNumber = *files::read(path);
        write(path, QByteArray(wholeNumber).insert(wholeNumber.lastIndexOf("</"), QByteArray(10000, ' ')));
        {
            const FullDisk disk(8000);
            clsConfig config;
            EXPECT_FALSE(config.Init());
            EXPECT_TRUE(config.LastError().startsWith(u8("Non è stato possibile salvare il file di configurazione")));
            EXPECT_FALSE(files::exists(userFile("Config.xml"))) << "it would name the program's own folder for ever";
        }
        clsConfig config;
        ASSERT_TRUE(config.Init());
        EXPECT_EQ(config.DBPAth(), userFile("DB/"));
        write(path, wholeNumber);
    }
}

TEST_F(ConfigFolderTest, OnlyTheOwnerReadsTheFolderUnlessItsDataAreShared) {
    for (const bool shared : {false, true}) {
        SCOPED_TRACE(shared);
        ASSERT_TRUE(QDir().mkpath(userFile("DB")));
        for (const char* name : {"Config.xml", "frmMDITrattamenti.geometry", "DB/TabellaServizi.xml"}) {
            write(userFile(name), name == QByteArray("Config.xml") ? MODEL : "<x/>");
            ASSERT_TRUE(QFile::setPermissions(userFile(name), OWNERS | OTHERS));
        }
        const QFile::Permissions folder = OWNERS | OTHERS | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
        ASSERT_TRUE(QFile::setPermissions(userFile(""), folder));
        ASSERT_TRUE(QFile::setPermissions(userFile("DB"), shared ? folder | QFile::WriteGroup : folder));
        clsConfig config;
        ASSERT_TRUE(config.Init());
        for (const QString& name : list(userFile(""), "*"))
            EXPECT_EQ(permissions(userFile("") + name), OWNERS) << name.toStdString();
        EXPECT_EQ(permissions(userFile("")), shared ? OWNERS | OTHERS : OWNERS) << "the way to what is shared stays";
        EXPECT_EQ(permissions(userFile("DB/TabellaServizi.xml")), OWNERS | OTHERS);
    }
}

TEST_F(ConfigFolderTest, OnlyWhatAKilledProgramLeftOfAGeometryIsRemoved) {
    ASSERT_TRUE(config_.Init());
    for (const char* name : {"frmA.geometry", "frmA.geometry.AbCdEf", "frmA.geometry.QwErTy", "Config.xml.backup"})
        write(userFile(name), "x");
    {
        const platform::FileHold writing(userFile("frmA.geometry.QwErTy"));
        clsConfig second;
        ASSERT_TRUE(second.Init());
        EXPECT_EQ(list(userFile(""), "frmA*"), (QStringList{u8("frmA.geometry"), u8("frmA.geometry.QwErTy")}));
    }
    clsConfig third;
    ASSERT_TRUE(third.Init());
    EXPECT_EQ(list(userFile(""), "frmA*"), QStringList{u8("frmA.geometry")});
    EXPECT_TRUE(files::exists(userFile("Config.xml.backup"))) << "somebody's own copy";
}

TEST_F(ConfigFolderTest, ANewerTemplateBringsItsCommandsAndNothingElse) {
    const auto edited = [](QByteArray text, const QList<std::pair<const char*, const char*>>& pairs) {
        for (const auto& [from, to] : pairs) {
            EXPECT_TRUE(text.contains(from)) << from;
            text.replace(from, to);
        }
        return text;
    };
    // The first version that was delivered, as a practice made it its own.
    const QByteArray older = edited(*files::read(places::tests("/config/files/Config-prima-versione.xml")),
                                    {{"name=\"unicaScheda\">false", "name=\"unicaScheda\">true"},
                                     {"name=\"bollo\">2,00", "name=\"bollo\">1,81"},
                                     {"caption=\"Archivi\"", "caption=\"Magazzino\""},
                                     {"caption=\"Nuovo piano\"", "caption=\"Scrivi piano\""},
                                     {"id=\"CRVL0301\" endpoint=\"\" enabled=\"1\"", "id=\"CRVL0301\" enabled=\"0\""},
                                     {"<button id=\"CRVL0501\"", "<button id=\"Sua\""}});
    const QByteArray newer = edited(
        *files::read(places::data("/Config.xml")),
        {{"</services>", "<service id=\"CRVL0998\" enabled=\"1\"/><service id=\"CRVL0999\" "
                         "enabled=\"1\" patient=\"1\"><bibliography><link title=\"T\" "
                         "caption=\"C\" url=\"U\"/></bibliography></service></services>"},
         {"<group caption=\"Archivi\">", "<group caption=\"Archivi\"><button id=\"CRVL0999\" caption=\"Nuovo\"/>"},
         {"</groups>", "<group caption=\"Altro\"><button id=\"CRVL0998\"/></group></groups>"}});
    write(sAppPath + u8("/Config.xml"), newer);
    ASSERT_TRUE(QDir().mkpath(userFile("")));
    write(userFile("Config.xml"), older);
    ASSERT_TRUE(config_.Init());
    EXPECT_TRUE(config_.Notices().isEmpty());

    platform::XmlDocument before;
    platform::XmlDocument after;
    ASSERT_TRUE(before.loadBytes(older) && after.loadFile(userFile("Config.xml")));
    for (const char* part : {"user", "tools", "parameters", "accise", "ragruppamentiMerciologici", "situazioniDenti"})
        EXPECT_EQ(markup(after, part), markup(before, part)) << part;
    QStringList buttons = markup(before, "/corvala/gui/groups/group/button");
    buttons.append(u8("<button id=\"CRVL0999\" caption=\"Nuovo\"/>"));
    buttons.append(u8("<button id=\"CRVL0998\"/>"));
    EXPECT_EQ(markup(after, "/corvala/gui/groups/group/button"), buttons);
    EXPECT_EQ(after.select("//group[@caption='Magazzino']/button[@id='CRVL0999']").size(), 1u)
        << "beside the buttons that it stands with in the template";
    QStringList switchedOff;
    for (const clsItemService& service : config_.ListaServices())
        if (!service.Enabled) switchedOff << service.Key;
    EXPECT_EQ(switchedOff, QStringList{u8("CRVL0301")})
        << "what was delivered off is on, what was switched off stays off";
    EXPECT_EQ(config_.BiblioService(config_.IDService(u8("CRVL0999"))), u8("T\tC;U"));
    EXPECT_TRUE(config_.PatientService(config_.IDService(u8("CRVL0999"))));
    const QStringList kept = list(userFile(""), "Config-*");
    EXPECT_EQ(kept, QStringList{u8("Config-precedente-20260310-093000.xml")});
    EXPECT_EQ(files::read(userFile("") + kept.value(0)), older);

    // What the practice now takes out or switches off stays so.
    platform::setClock(QDateTime(QDate(2026, 3, 11), QTime(9, 30)));
    const QByteArray theirs =
        edited(saved(), {{"id=\"CRVL0101\" endpoint=\"\" enabled=\"1\"", "id=\"CRVL0101\" enabled=\"0\""},
                         {"<service id=\"CRVL0998\" enabled=\"1\"/>", ""}});
    write(userFile("Config.xml"), theirs);
    clsConfig second;
    ASSERT_TRUE(second.Init());
    EXPECT_EQ(saved(), theirs);
    EXPECT_EQ(list(userFile(""), "Config-*"), kept);
}
