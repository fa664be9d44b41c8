#include "support/ModuleFixture.h"

#include "config/clsConfig.h"
#include "desk/shell/PanelPage.h"
#include "host/clsViewBase.h"
#include "host/contract/Forms.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/clsViewTrattamenti.h"

#include <QMainWindow>
#include <QTimer>

namespace {

class PluginTest : public ModuleFixture {};

/// A host that cannot answer anything.
class DumbHost : public host::Host {
public:
    host::Utente& Utente() override { fail(); }
    host::Paziente* paziente() override { fail(); }
    host::Framework& Framework() override { fail(); }
    host::Archivio& Archivio() override { fail(); }
    host::DB& DB() override { fail(); }
    host::API& API() override { fail(); }

private:
    [[noreturn]] static void fail() { throw host::HostError(QStringLiteral("il collegamento è caduto")); }
};

class DeskForm : public host::HostForm {
public:
    QString Name() const override { return QStringLiteral("frmAmbulatorio"); }
};

QTimer* timer1() {
    QObject* objects = platform::FormRegistry::find(QStringLiteral("frmOggetti"));
    return objects ? objects->findChild<QTimer*>(QStringLiteral("Timer1")) : nullptr;
}

} // namespace

TEST_F(PluginTest, StartsOnceAndTakesItsObjectsAwayAtTheEnd) {
    start();
    ASSERT_TRUE(started_) << qPrintable(desk_->moduleError());
    EXPECT_EQ(oHost, &desk_->host());
    const clsConfig* before = oConfig;
    raiseEvent("REGISTRAZIONE", {QVariant()});
    EXPECT_EQ(oConfig, before) << "a second start does not replace what the windows hold";
    EXPECT_TRUE(sLogFile.isEmpty());
    EXPECT_FALSE(timer1()->isActive()) << "no refresh is configured";

    raiseEvent("Fine");
    EXPECT_TRUE(plugin_->terminated());
    EXPECT_TRUE(plugin_->terminationReason().isEmpty());
    EXPECT_EQ(oHost, nullptr);
    EXPECT_EQ(oConfig, nullptr);
    EXPECT_NE(oViewTrattamenti, nullptr) << "the host still holds the panels";
    raiseEvent("registrazione", {QVariant()});
    EXPECT_EQ(oHost, nullptr) << "there is no way back";
    EXPECT_EQ(raiseEvent("mainribbonbar.returntab", {false}), QVariantList{false});
    desk_.reset();
    EXPECT_EQ(oViewTrattamenti, nullptr);
    EXPECT_EQ(timer1(), nullptr);
}

TEST_F(PluginTest, ASecondOneNeitherRevivesTheFirstNorLosesItsObjectsToIt) {
    start();
    raiseEvent("fine");
    auto second = std::make_unique<Plugin>();
    EXPECT_TRUE(plugin_->terminated()) << "a second one revives it";
    sIDTrattamento = QStringLiteral("03");
    QVariantList args;
    raiseEvent("registrazione", {QVariant()});
    EXPECT_EQ(oHost, nullptr);
    second->evento(QStringLiteral("listapannelli"), nullptr, args = {QStringList()});
    EXPECT_EQ(args, QVariantList{QStringList()}) << "it has not begun";
    second->Init(&desk_->host(), QVariant());
    EXPECT_TRUE(sIDTrattamento.isEmpty()) << "what the former run left behind";
    EXPECT_EQ(raiseEvent("mainribbonbar.returntab", {false}), QVariantList{false});
    desk_.reset(); // and the first one with it
    EXPECT_NE(oHost, nullptr);
    EXPECT_NE(oViewTrattamenti, nullptr);
    second.reset();
    EXPECT_EQ(oViewTrattamenti, nullptr);
}

TEST_F(PluginTest, ARefusedStartIsToldOnceAndLeavesTheDeskWithoutModule) {
    const struct {
        const char* file;
        const char* title;
    } cases[] = {{"Config.xml", ""}, {"Graphical.xml", "Tessara 5000. CORVALA"}};
    const QString templates = sAppPath;
    for (const auto& each : cases) {
        SCOPED_TRACE(each.file);
        QTemporaryDir installation;
        sAppPath = installation.path();
        for (const char* file : {"Config.xml", "Graphical.xml"}) {
            const QString name = QLatin1Char('/') + QLatin1String(file);
            ASSERT_TRUE(platform::files::copy(templates + name, sAppPath + name));
        }
        ASSERT_TRUE(platform::files::writeAtomically(sAppPath + QLatin1Char('/') + QLatin1String(each.file), "<rotto"));
        platform::files::remove(moduleFolder() + QStringLiteral("/Config.xml"));
        dialogs_.messages.clear();
        start();
        EXPECT_FALSE(started_);
        EXPECT_FALSE(desk_->hasModule());
        ASSERT_EQ(dialogs_.messages.size(), 1);
        EXPECT_EQ(dialogs_.values.last(), platform::MB_CRITICAL);
        EXPECT_EQ(dialogs_.titles.last(), QLatin1String(each.title));
        EXPECT_TRUE(desk_->moduleError().contains(dialogs_.messages.last()));
        openRossi(); // the desk works on
    }
}

TEST_F(PluginTest, ABrokenConfigurationIsToldAndTheModuleStarts) {
    start();
    ASSERT_TRUE(platform::files::writeAtomically(moduleFolder() + QStringLiteral("/Config.xml"), ""));
    start();
    EXPECT_TRUE(started_);
    ASSERT_EQ(dialogs_.messages.size(), 1);
    EXPECT_TRUE(dialogs_.messages[0].startsWith(QStringLiteral("Il file delle impostazioni era danneggiato.")));
    EXPECT_EQ(dialogs_.values, QList<int>{platform::MB_WARNING});
    EXPECT_EQ(dialogs_.titles, QStringList{QStringLiteral("Tessara 5000. CORVALA")});
}

TEST_F(PluginTest, AnErrorInTheMiddleOfTheStartIsToldToo) {
    DumbHost dumb;
    Plugin plugin;
    plugin.Init(&dumb, QVariant());
    EXPECT_TRUE(plugin.terminated());
    EXPECT_EQ(dialogs_.messages, QStringList{QStringLiteral("il collegamento è caduto")});
    EXPECT_EQ(dialogs_.values, QList<int>{platform::MB_CRITICAL});
    EXPECT_EQ(plugin.terminationReason(), QStringLiteral("il collegamento è caduto"));
}

TEST_F(PluginTest, DebugNamesTheLogAndWritesNothing) {
    start();
    for (const char* value : {"0", "si", "1"}) {
        SCOPED_TRACE(value);
        desk_->host().Utente().Items().SetITEM(QStringLiteral("plgCORVALA.Debug"), QLatin1String(value));
        start();
        const bool isOn = qstrcmp(value, "1") == 0;
        EXPECT_EQ(sLogFile,
                  isOn ? desk_->host().Utente().LogDir() + QStringLiteral("/plgCORVALA_20260310.log") : QString());
    }
    EXPECT_FALSE(platform::files::exists(sLogFile));
}

TEST_F(PluginTest, GivesItsFivePanelsAndLeavesForeignOnesAlone) {
    start();
    const QStringList names = raiseEvent("ListaPannelli", {QStringList{QStringLiteral("Altro")}}).at(0).toStringList();
    EXPECT_EQ(names,
              (QStringList{QStringLiteral("Altro"), QStringLiteral("Corvala: Lista Preventivi"),
                           QStringLiteral("Corvala: Lista Trattamenti"), QStringLiteral("Corvala: Lista Fatture"),
                           QStringLiteral("Corvala: Lista Pagamenti"), QStringLiteral("Corvala: Lista Sondaggi")}));
    const qint32 types[] = {101012, 101014, 101013, 101015, 101018};
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE(qPrintable(names[i + 1]));
        const QVariantList answer = raiseEvent("arcpannelli.daiparent", {names[i + 1], 7, QVariant()});
        EXPECT_EQ(answer[1].toInt(), 0);
        auto* view = answer[2].value<host::View*>();
        ASSERT_NE(view, nullptr);
        EXPECT_EQ(view->TipoRecord(), types[i]);
        EXPECT_EQ(static_cast<clsViewBase*>(view)->LikePannello(), types[i] != 101018);
    }
    const QVariantList stranger{QStringLiteral("Altro"), 7, QVariant()};
    EXPECT_EQ(raiseEvent("arcpannelli.daiparent", stranger), stranger);
}

TEST_F(PluginTest, TheTimerRereadsTheLoadedPanels) {
    setParameter("refreshFinestre", QStringLiteral("2"));
    start();
    openRossi();
    ASSERT_TRUE(timer1()->isActive());
    const auto rows = [this](const char* panel) {
        for (desk::PanelPage* page : desk_->window()->findChildren<desk::PanelPage*>()) {
            if (page->panel().name == QLatin1String(panel)) return page->grid().recordCount();
        }
        return -1;
    };
    for (const char* t1 : {"FTT", "CPD"}) {
        QString id;
        ASSERT_TRUE(desk_->host().paziente()->corvala().Salva(
            id, {QStringLiteral("01/03/2026"), QStringLiteral("2026-0001"), QString(), QLatin1String(t1), {}}));
    }
    DeskForm deskForm;
    raiseEvent("form.load", {QVariant::fromValue<host::HostForm*>(&deskForm)}); // all that is in memory is forgotten
    const auto minute = [] { QMetaObject::invokeMethod(timer1()->parent(), "Timer1_Timer"); };
    minute();
    EXPECT_EQ(rows("Corvala: Lista Fatture"), 0);
    minute();
    EXPECT_EQ(rows("Corvala: Lista Fatture"), 1) << "the list in memory is not what others wrote meanwhile";
    EXPECT_EQ(rows("Corvala: Lista Sondaggi"), 0) << "probings are left out of the refresh on purpose";
    oConfig->setMinuteRefresh(0);
    minute();
    EXPECT_FALSE(timer1()->isActive());
}

TEST_F(PluginTest, AChangeOfPatientEmptiesTheLists) {
    start();
    openRossi();
    platform::ReportGrid grid;
    auto* view = raiseEvent("arcpannelli.daiparent", {QStringLiteral("Corvala: Lista Fatture"), 0, QVariant()})
                     .at(2)
                     .value<host::View*>();
    view->refreshGrid(&grid, QString());
    EXPECT_EQ(grid.recordCount(), 0);
    QString ids[2];
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(desk_->host().paziente()->corvala().Salva(ids[i], {QStringLiteral("01/03/2026"),
                                                                       QStringLiteral("2026-000%1").arg(i + 1),
                                                                       QStringLiteral("Saldo"),
                                                                       QStringLiteral("FTT"),
                                                                       {}}));
    }
    view->refreshGrid(&grid, QString());
    EXPECT_EQ(grid.recordCount(), 0) << "the list is kept until the patient changes";
    desk_->closePatient();
    openRossi();
    view->refreshGrid(&grid, ids[0]);
    ASSERT_EQ(grid.recordCount(), 2);
    ASSERT_NE(grid.focusedRecord(), nullptr);
    EXPECT_EQ(grid.focusedRecord()->tag, ids[0]);
    EXPECT_EQ(grid.focusedRecord()->cell(0).value, QStringLiteral("2026-0001"));
    EXPECT_EQ(grid.focusedRecord()->cell(1).value, QStringLiteral("01/03/2026"));
    EXPECT_EQ(grid.rowRecord(0)->cell(0).value, QStringLiteral("2026-0002")) << "the newest comes first";
    desk_->closePatient();
    view->refreshGrid(&grid, QString());
    EXPECT_EQ(grid.recordCount(), 0);
}
