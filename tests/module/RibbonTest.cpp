#include "support/ModuleFixture.h"

#include "config/clsConfig.h"
#include "desk/shell/Command.h"
#include "desk/shell/RibbonGroupBox.h"
#include "desk/shell/RibbonPage.h"
#include "host/Changes.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"
#include "platform/WebAddress.h"
#include "support/Text.h"
#include "treatments/modTrattamenti.h"

#include <QMainWindow>
#include <QMenu>
#include <QToolButton>

namespace {

class Ribbon : public ModuleFixture {
protected:
    /// Changes the text of the working configuration before a start.
    void configure(const char* from, const char* to) {
        setParameter("refreshFinestre", QStringLiteral("0")); // seeds the file
        const QString file = moduleFolder() + QStringLiteral("/Config.xml");
        QByteArray text = *platform::files::read(file);
        ASSERT_TRUE(text.contains(from)) << from;
        ASSERT_TRUE(platform::files::writeAtomically(file, text.replace(from, to)));
    }
    desk::Command* command(qint32 id) {
        return static_cast<desk::Command*>(desk_->host().Framework().FindRibbonControl(id));
    }
    desk::Command* command(const char* key) { return command(oConfig->IDService(QLatin1String(key))); }
    /// "Group: key key ..." for each group of a tab, as they stand in it.
    QStringList groups(const char* tab) {
        QStringList found;
        for (desk::RibbonPage* page : desk_->window()->findChildren<desk::RibbonPage*>()) {
            if (page->Caption() != QLatin1String(tab)) continue;
            for (const desk::RibbonGroupBox* group : page->findChildren<desk::RibbonGroupBox*>()) {
                QStringList keys;
                for (const QToolButton* button : group->findChildren<QToolButton*>())
                    keys << button->objectName();
                found << (group->Caption() + QLatin1Char(':') + keys.join(QLatin1Char(' ')));
            }
        }
        return found;
    }
};

/// A window that others refresh, which writes down when.
class Probe : public QObject {
    Q_OBJECT

public:
    Probe(const char* name, QStringList& log)
        : log_(log) {
        setObjectName(QLatin1String(name));
        platform::FormRegistry::add(this);
    }
    Q_INVOKABLE void RefreshPreventivi(const QString& id) { log_ << QStringLiteral("preventivi") + id; }
    Q_INVOKABLE void RefreshFatture(const QString& id) { log_ << QStringLiteral("fatture") + id; }
    Q_INVOKABLE void RefreshPagamenti(const QString& id) { log_ << QStringLiteral("pagamenti") + id; }
    Q_INVOKABLE void RefreshTrattamenti(const QString& id) { log_ << QStringLiteral("trattamenti") + id; }
    Q_INVOKABLE void RefreshGraficaPreventivi() { log_ << QStringLiteral("gPreventivi"); }
    Q_INVOKABLE void RefreshGraficaFatture() { log_ << QStringLiteral("gFatture"); }
    Q_INVOKABLE void RefreshGraficaPagamenti() { log_ << QStringLiteral("gPagamenti"); }
    Q_INVOKABLE void RefreshGraficaTrattamenti() { log_ << QStringLiteral("gTrattamenti"); }
    Q_INVOKABLE void plbRefresh() { log_ << objectName(); }

private:
    QStringList& log_;
};

} // namespace

TEST_F(Ribbon, EveryButtonHasAPictureAndExplainsItselfAndWhatHasNoWindowYetIsGrey) {
    start();
    QStringList ready;
    for (const QString& group : groups("Odontoiatria")) {
        for (const QString& key : group.section(QLatin1Char(':'), 1).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            SCOPED_TRACE(qPrintable(key));
            const desk::Command* found = command(oConfig->IDService(key));
            EXPECT_FALSE(found->Caption().isEmpty() || found->tooltip().isEmpty() || found->icon().isNull());
            if (found->Enabled()) ready << key;
        }
    }
    EXPECT_EQ(ready, (QStringList{u8("CRVL0302"), u8("CRVL0301"), u8("CRVL.main.refresh"), u8("CRVL.main.setup"),
                                  u8("CRVL.main.about")}));
    const auto* menu = desk_->window()->findChild<QMenu*>(QLatin1Char('I') + QString::number(commandIds.menu));
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().size(), 5);
    for (const qint32 id : {commandIds.summary, commandIds.periodontal})
        EXPECT_FALSE(command(id)->icon().isNull());
    // Practices know the two desk buttons by their tooltip, misspelt as it is.
    EXPECT_EQ(command(commandIds.summary)->tooltip(), u8("intesi di tutti gli intervernti effettuati"));
    EXPECT_GT(oConfig->IDService(u8("CRVL0101")), commandIds.menuPeriodontal) << "the fixed ids are taken first";
}

TEST_F(Ribbon, TheSingleSheetAndOddEntriesOfTheConfiguration) {
    setParameter("unicaScheda", QStringLiteral("true"));
    configure("<group caption=\"Archivi\">",
              "<group caption=\"Archivi\"><button id=\"CRVL0999\" caption=\"Ignoto\"/><button/>");
    configure("<button id=\"CRVL0401\"", "<button style=\"99\" begingroup=\"si\" id=\"CRVL0401\"");
    start();
    EXPECT_EQ(groups("Odontoiatria").value(2), u8("Trattamenti:CRVL0303 CRVL0301"));
    EXPECT_EQ(command("CRVL0303")->Caption(), u8("Apri"));
    EXPECT_EQ(command("CRVL0303")->tooltip(), u8("Consulta il piano del paziente"));
    EXPECT_TRUE(command("CRVL0303")->beginsGroup());
    EXPECT_EQ(command("CRVL0302"), nullptr);
    openRossi();
    EXPECT_TRUE(command("CRVL0303")->Enabled()) << "the sheet opens for a patient without plans too";
    EXPECT_EQ(groups("Odontoiatria").value(5), u8("Archivi:CRVL0401 CRVL0402 CRVL0801 CRVL0802"));
    EXPECT_EQ(command("CRVL0401")->Style(), host::StileBottone::IconaEDidascalia) << "a style that is none";
    EXPECT_FALSE(command("CRVL0401")->beginsGroup()) << "only 1 begins a group";
}

TEST_F(Ribbon, TheHostsOwnControlsAreTrimmedByNumberAndCaption) {
    const QStringList trimmed{u8("Accessi ADI/ADP/ADR"),
                              u8("Prestazioni PPIP"),
                              u8("Vaccinazioni"),
                              u8("Campagna Antinfluenzale"),
                              u8("Gestione Integrata"),
                              u8("Covid 19"),
                              u8("Pazienti Fragili"),
                              u8("Visite Domiciliari"),
                              u8("PDTA"),
                              u8("Patient Summary"),
                              u8("Fatture"),
                              u8("Spesa per paziente")};
    const QList<qint32> numbers{11, 20, 69, 70, 71, 279, 417, 418, 419, 420};
    // A host for all doctors has more commands than our desk.
    const auto crowd = [&](host::Framework& framework) {
        host::RibbonGroup* group = framework.InsertRibbonTab(u8("Medicina"))->InsertTabGroup(u8("Altro"));
        for (const qint32 id : numbers)
            group->InsertGroupButton({.id = id, .key = {}, .caption = u8("Altro"), .tooltip = {}});
        qint32 id = 2000;
        for (const qint32 menu : {4, 74})
            for (const QString& caption : trimmed + QStringList{u8("Resta")}) {
                auto* parent = static_cast<desk::Command*>(framework.FindRibbonControl(menu));
                parent->addEntry(new desk::Command({.id = ++id, .key = {}, .caption = caption, .tooltip = {}}, parent));
            }
    };
    for (const bool gpUse : {false, true}) {
        SCOPED_TRACE(gpUse);
        setParameter("utilizzoMMG", gpUse ? u8("true") : u8("false"));
        start(crowd);
        for (const qint32 id : {4, 74}) {
            for (const host::RibbonControl* entry : command(id)->CommandBarControls())
                EXPECT_EQ(entry->Visible(), gpUse || !trimmed.contains(entry->Caption()))
                    << qPrintable(entry->Caption());
        }
        for (const qint32 id : numbers + QList<qint32>{10})
            EXPECT_EQ(command(id)->Visible(), gpUse) << id;
        EXPECT_EQ(command(12)->Style() == host::StileBottone::IconaSopraDidascalia, !gpUse);
        EXPECT_TRUE(groups("Ambulatorio").last().startsWith(u8("Odontoiatria:")))
            << "the module's own group is always there";
    }
}

TEST_F(Ribbon, EveryRefresherRunsInItsTurn) {
    start();
    QStringList log;
    const Probe probes[] = {{"frmMDIImmagini", log},  {"frmMDISintesi", log}, {"frmMDITrattamenti", log},
                            {"frmMDIPagamenti", log}, {"frmMDIFatture", log}, {"frmMDIPreventivi", log}};
    ASSERT_TRUE(desk_->pressCommand(u8("CRVL.main.refresh")));
    EXPECT_EQ(log, (QStringList{u8("preventivi"), u8("fatture"), u8("pagamenti"), u8("trattamenti"),
                                u8("frmMDISintesi"), u8("frmMDIImmagini")}));
    log.clear();
    openRossi();
    EXPECT_EQ(log, (QStringList{u8("gPreventivi"), u8("gTrattamenti"), u8("gFatture"), u8("gPagamenti")}));
}

TEST_F(Ribbon, TheListFollowsTheFanOutAndMarksTheRecord) {
    start();
    openRossi();
    ASSERT_TRUE(desk_->pressCommand(u8("CRVL0301")));
    auto* window = qobject_cast<QWidget*>(platform::FormRegistry::find(u8("frmMDITrattamenti")));
    ASSERT_NE(window, nullptr);
    const auto* grid = window->findChild<platform::ReportGrid*>(u8("rcTrattamenti"));
    const int before = grid->recordCount();
    QString ids[2];
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(desk_->host().paziente()->corvala().Salva(
            ids[i], {u8("10/03/2026"), QStringLiteral("2026-900%1").arg(i), u8("Nuovo"), u8("TRT"), u8("<t/>")}));
    }
    announceChange(u8("TRT"), ids[0]);
    deliverChanges();
    ASSERT_EQ(grid->recordCount(), before + 2);
    ASSERT_NE(grid->focusedRecord(), nullptr);
    EXPECT_EQ(grid->focusedRecord()->tag, ids[0]);
    ASSERT_TRUE(desk_->pressCommand(u8("CRVL.main.refresh")));
    EXPECT_EQ(grid->focusedRecord()->tag, ids[0]) << "a refresh leaves the eye where it was";
    // Plans of the open patient stand out; without a patient nothing does.
    const auto bold = [&] {
        for (int i = 0; i < grid->recordCount(); ++i) {
            if (grid->record(i)->tag != ids[0]) continue;
            for (int c = 0; c < grid->columnCount(); ++c)
                if (grid->record(i)->cell(c).style().bold) return true;
        }
        return false;
    };
    EXPECT_TRUE(bold());
    ASSERT_TRUE(desk_->openPatientByTaxCode(u8("FNTGPP51M01L781C")));
    EXPECT_FALSE(bold());
}

TEST_F(Ribbon, TheWebPageGoesToTheOpenerAndOnlyWhenThereIsOne) {
    QStringList opened;
    platform::installAddressOpener([&](const QString& address) {
        opened << address;
        return true;
    });
    start();
    raiseEvent("execute", {oConfig->IDService(u8("CRVL.main.webinfo"))});
    EXPECT_TRUE(opened.isEmpty());
    configure("webinfo=\"\"", "webinfo=\"https://www.example.org/corvala?a=1&amp;b=2\"");
    start();
    raiseEvent("execute", {oConfig->IDService(u8("CRVL.main.webinfo"))});
    raiseEvent("execute", {oConfig->IDService(u8("CRVL.main.userdata"))});
    EXPECT_EQ(opened, QStringList{u8("https://www.example.org/corvala?a=1&b=2")});
    EXPECT_TRUE(dialogs_.messages.isEmpty());
    platform::installAddressOpener({});
}

TEST_F(Ribbon, ThePatientsPlanFollowsThePatient) {
    start();
    EXPECT_TRUE(command("CRVL0301")->Enabled());
    EXPECT_TRUE(command("CRVL0302")->Enabled());
    EXPECT_FALSE(command("CRVL0303")->Enabled());
    const auto deskButton = [this] { return command(commandIds.summary); };
    EXPECT_FALSE(deskButton()->Enabled());
    openRossi();
    EXPECT_FALSE(deskButton()->Enabled()) << "the summary has no window yet";
    EXPECT_FALSE(command("CRVL0501")->Enabled());
    hooks.commandHasAction = [](const QString&) { return true; };
    oConfig->RefreshGUI(true);
    EXPECT_TRUE(deskButton()->Enabled());
    EXPECT_TRUE(command("CRVL0501")->Enabled());
    EXPECT_FALSE(command("CRVL0303")->Enabled()) << "this patient has no plan";

    ASSERT_TRUE(desk_->openPatientByTaxCode(QStringLiteral("FNTGPP51M01L781C")));
    EXPECT_TRUE(command("CRVL0303")->Enabled());
    oConfig->RefreshGUITrattamento();
    EXPECT_EQ(command("CRVL0303")->Enabled(), ContaTrattamentiAperti() > 0);
    desk_->closePatient();
    EXPECT_FALSE(command("CRVL0303")->Enabled());
    EXPECT_FALSE(deskButton()->Enabled());
}

TEST_F(Ribbon, AListOpensOnceAndNeedsNoPatient) {
    start();
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0301")));
    QObject* before = platform::FormRegistry::find(QStringLiteral("frmMDITrattamenti"));
    ASSERT_NE(before, nullptr);
    auto* window = qobject_cast<QWidget*>(before);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Tessara 5000. CORVALA: Elenco TRATTAMENTI"));
    EXPECT_FALSE(window->windowIcon().isNull());
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0301")));
    int openLists = 0;
    for (const QObject* form : platform::FormRegistry::all()) {
        if (form->objectName() == QLatin1String("frmMDITrattamenti")) ++openLists;
    }
    EXPECT_EQ(openLists, 1);
}

TEST_F(Ribbon, TheModulesOwnCommands) {
    start();
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL.main.about")));
    const QString about = platform::withoutMarkup(dialogs_.messages.takeLast());
    EXPECT_TRUE(about.startsWith(QStringLiteral("Tessara 5000 V6. Modulo Odontoiatrico\n\n")));
    EXPECT_TRUE(about.contains(QStringLiteral("Percorso configurazione: ") + oConfig->FileName()));
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL.main.refresh")));
    raiseEvent("execute", {commandIds.menuInvoicing});
    EXPECT_TRUE(dialogs_.messages.isEmpty());
    EXPECT_FALSE(command(commandIds.menuInvoicing)->Enabled()) << "it has no window yet";
    raiseEvent("execute", {commandIds.menuImages});
    EXPECT_EQ(dialogs_.messages.takeLast(), QStringLiteral("Selezionare prima un paziente"));
    EXPECT_TRUE(dialogs_.messages.isEmpty());
}

#include "RibbonTest.moc"
