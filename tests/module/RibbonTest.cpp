#include "support/StudioConModulo.h"

#include "config/clsConfig.h"
#include "desk/shell/Command.h"
#include "desk/shell/RibbonGroupBox.h"
#include "desk/shell/RibbonPage.h"
#include "host/modAggiorna.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"
#include "platform/WebAddress.h"
#include "support/Text.h"
#include "treatments/clsTrattamenti.h"

#include <QImage>
#include <QMainWindow>
#include <QMenu>
#include <QToolButton>

namespace {

class Ribbon : public StudioConModulo {
protected:
    /// Changes the text of the working configuration before a start.
    void configura(const char* da, const char* a) {
        parametro("refreshFinestre", QStringLiteral("0")); // seeds the file
        const QString file = cartellaModulo() + QStringLiteral("/Config.xml");
        QByteArray testo = *platform::files::read(file);
        ASSERT_TRUE(testo.contains(da)) << da;
        ASSERT_TRUE(platform::files::writeAtomically(file, testo.replace(da, a)));
    }
    desk::Command* comando(qint32 id) {
        return static_cast<desk::Command*>(desk_->host().Framework().FindRibbonControl(id));
    }
    desk::Command* comando(const char* key) { return comando(oConfig->IDService(QLatin1String(key))); }
    /// "Group: key key ..." for each group of a tab, as they stand in it.
    QStringList gruppi(const char* tab) {
        QStringList trovati;
        for (desk::RibbonPage* pagina : desk_->window()->findChildren<desk::RibbonPage*>()) {
            if (pagina->Caption() != QLatin1String(tab)) continue;
            for (const desk::RibbonGroupBox* gruppo : pagina->findChildren<desk::RibbonGroupBox*>()) {
                QStringList chiavi;
                for (const QToolButton* bottone : gruppo->findChildren<QToolButton*>())
                    chiavi << bottone->objectName();
                trovati << (gruppo->Caption() + QLatin1Char(':') + chiavi.join(QLatin1Char(' ')));
            }
        }
        return trovati;
    }
};

/// A window that others refresh, which writes down when.
class Sonda : public QObject {
    Q_OBJECT

public:
    Sonda(const char* nome, QStringList& registro)
        : registro_(registro) {
        setObjectName(QLatin1String(nome));
        platform::FormRegistry::add(this);
    }
    Q_INVOKABLE void RefreshPreventivi(const QString& id) { registro_ << QStringLiteral("preventivi") + id; }
    Q_INVOKABLE void RefreshFatture(const QString& id) { registro_ << QStringLiteral("fatture") + id; }
    Q_INVOKABLE void RefreshPagamenti(const QString& id) { registro_ << QStringLiteral("pagamenti") + id; }
    Q_INVOKABLE void RefreshTrattamenti(const QString& id) { registro_ << QStringLiteral("trattamenti") + id; }
    Q_INVOKABLE void RefreshGraficaPreventivi() { registro_ << QStringLiteral("gPreventivi"); }
    Q_INVOKABLE void RefreshGraficaFatture() { registro_ << QStringLiteral("gFatture"); }
    Q_INVOKABLE void RefreshGraficaPagamenti() { registro_ << QStringLiteral("gPagamenti"); }
    Q_INVOKABLE void RefreshGraficaTrattamenti() { registro_ << QStringLiteral("gTrattamenti"); }
    Q_INVOKABLE void plbRefresh() { registro_ << objectName(); }

private:
    QStringList& registro_;
};

} // namespace

TEST_F(Ribbon, TabMenuAndDeskButtonsStandAsLaidOut) {
    avvia();
    EXPECT_EQ(gruppi("Odontoiatria"), (QStringList{u8("Corvala Plugin:"), u8("Preventivi:CRVL0102 CRVL0101"),
                                                   u8("Trattamenti:CRVL0302 CRVL0303 CRVL0301"),
                                                   u8("Fatturazione:CRVL0202 CRVL0201 CRVL0901 CRVL0602 CRVL0601"),
                                                   u8("Paziente:CRVL0701 CRVL0702 CRVL0501 CRVL0502"),
                                                   u8("Archivi:CRVL0401 CRVL0402 CRVL0801 CRVL0802"),
                                                   u8("Strumenti:CRVL.main.refresh CRVL.main.setup CRVL.main.about")}));
    for (const QString& gruppo : gruppi("Odontoiatria")) {
        for (const QString& key : gruppo.section(QLatin1Char(':'), 1).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            SCOPED_TRACE(qPrintable(key));
            const desk::Command* trovato = comando(oConfig->IDService(key));
            EXPECT_FALSE(trovato->Caption().isEmpty() || trovato->tooltip().isEmpty());
            if (!key.startsWith(u8("CRVL0"))) continue;
            EXPECT_EQ(QImage(sAppPath + u8("/Styles/") + key + u8(".png")).size(), QSize(64, 64));
            EXPECT_TRUE(oConfig->UsableService(key));
            const bool pronto = key == u8("CRVL0301") || key == u8("CRVL0302");
            EXPECT_EQ(trovato->Enabled(), pronto) << "what has no window yet is grey";
        }
    }
    const struct {
        const char* key;
        const char* caption;
        const char* tooltip;
    } strumenti[] = {{"CRVL.main.refresh", "Aggiorna", "Aggiorna i dati visualizzati"},
                     {"CRVL.main.setup", "Opzioni", "Configurazione della procedura"},
                     {"CRVL.main.about", "About", "Informazioni sulla procedura"}};
    for (const auto& strumento : strumenti) {
        EXPECT_EQ(comando(strumento.key)->Caption(), u8(strumento.caption));
        EXPECT_EQ(comando(strumento.key)->tooltip(), u8(strumento.tooltip));
        EXPECT_FALSE(comando(strumento.key)->icon().isNull());
    }
    // The two desk buttons share one tooltip, misspelt as practices know it.
    for (const qint32 id : {idComandi.sintesi, idComandi.paradontale}) {
        EXPECT_EQ(comando(id)->tooltip(), u8("intesi di tutti gli intervernti effettuati"));
        EXPECT_EQ(comando(id)->Style(), host::StileBottone::IconaSopraDidascalia);
        EXPECT_FALSE(comando(id)->icon().isNull());
    }
    EXPECT_EQ(comando(idComandi.sintesi)->Caption(), u8("Sintesi Odontoiatrica"));
    EXPECT_EQ(comando(idComandi.paradontale)->Caption(), u8("Cartella Paradontale"));
    // Nine ids in a row, taken before the services are asked for theirs.
    const qint32 ids[] = {idComandi.gruppo,       idComandi.sintesi,        idComandi.paradontale,
                          idComandi.menu,         idComandi.menuPreventivi, idComandi.menuFatturazione,
                          idComandi.menuImmagini, idComandi.menuSintesi,    idComandi.menuParadontale};
    for (int i = 1; i < 9; ++i)
        EXPECT_GT(ids[i], ids[i - 1]);
    const auto* menu = desk_->window()->findChild<QMenu*>(QLatin1Char('I') + QString::number(idComandi.menu));
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->title(), u8("ODONTOIATRIA"));
    QStringList voci;
    for (const QAction* voce : menu->actions())
        voci << voce->text();
    EXPECT_EQ(voci, (QStringList{u8("Sintesi Odontoiatrica"), u8("Cartella Paradontale"), u8("Immagini"),
                                 u8("Preventivi"), u8("Fatturazione")}));
}

TEST_F(Ribbon, TheSingleSheetAndOddEntriesOfTheConfiguration) {
    parametro("unicaScheda", QStringLiteral("true"));
    configura("<group caption=\"Archivi\">",
              "<group caption=\"Archivi\"><button id=\"CRVL0999\" caption=\"Ignoto\"/><button/>");
    configura("<button id=\"CRVL0401\"", "<button style=\"99\" begingroup=\"si\" id=\"CRVL0401\"");
    avvia();
    EXPECT_EQ(gruppi("Odontoiatria").value(2), u8("Trattamenti:CRVL0303 CRVL0301"));
    EXPECT_EQ(comando("CRVL0303")->Caption(), u8("Apri"));
    EXPECT_EQ(comando("CRVL0303")->tooltip(), u8("Consulta il piano del paziente"));
    EXPECT_TRUE(comando("CRVL0303")->beginsGroup());
    EXPECT_EQ(comando("CRVL0302"), nullptr);
    apriRossi();
    EXPECT_TRUE(comando("CRVL0303")->Enabled()) << "the sheet opens for a patient without plans too";
    EXPECT_EQ(gruppi("Odontoiatria").value(5), u8("Archivi:CRVL0401 CRVL0402 CRVL0801 CRVL0802"));
    EXPECT_EQ(comando("CRVL0401")->Style(), host::StileBottone::IconaEDidascalia) << "a style that is none";
    EXPECT_FALSE(comando("CRVL0401")->beginsGroup()) << "only 1 begins a group";
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
    for (const bool mmg : {false, true}) {
        SCOPED_TRACE(mmg);
        parametro("utilizzoMMG", mmg ? u8("true") : u8("false"));
        avvia(crowd);
        for (const qint32 id : {4, 74}) {
            for (const host::RibbonControl* voce : comando(id)->CommandBarControls())
                EXPECT_EQ(voce->Visible(), mmg || !trimmed.contains(voce->Caption())) << qPrintable(voce->Caption());
        }
        for (const qint32 id : numbers + QList<qint32>{10})
            EXPECT_EQ(comando(id)->Visible(), mmg) << id;
        EXPECT_EQ(comando(12)->Style() == host::StileBottone::IconaSopraDidascalia, !mmg);
        EXPECT_TRUE(gruppi("Ambulatorio").last().startsWith(u8("Odontoiatria:")))
            << "the module's own group is always there";
    }
}

TEST_F(Ribbon, EveryRefresherRunsInItsTurn) {
    avvia();
    QStringList registro;
    const Sonda sonde[] = {{"frmMDIImmagini", registro},  {"frmMDISintesi", registro}, {"frmMDITrattamenti", registro},
                           {"frmMDIPagamenti", registro}, {"frmMDIFatture", registro}, {"frmMDIPreventivi", registro}};
    ASSERT_TRUE(desk_->pressCommand(u8("CRVL.main.refresh")));
    EXPECT_EQ(registro, (QStringList{u8("preventivi"), u8("fatture"), u8("pagamenti"), u8("trattamenti"),
                                     u8("frmMDISintesi"), u8("frmMDIImmagini")}));
    registro.clear();
    apriRossi();
    EXPECT_EQ(registro, (QStringList{u8("gPreventivi"), u8("gTrattamenti"), u8("gFatture"), u8("gPagamenti")}));
}

TEST_F(Ribbon, TheListFollowsTheFanOutAndMarksTheRecord) {
    avvia();
    apriRossi();
    ASSERT_TRUE(desk_->pressCommand(u8("CRVL0301")));
    auto* finestra = qobject_cast<QWidget*>(platform::FormRegistry::find(u8("frmMDITrattamenti")));
    ASSERT_NE(finestra, nullptr);
    const auto* griglia = finestra->findChild<platform::ReportGrid*>(u8("rcTrattamenti"));
    const int prima = griglia->recordCount();
    QString ids[2];
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(desk_->host().paziente()->corvala().Salva(
            ids[i], {u8("10/03/2026"), QStringLiteral("2026-900%1").arg(i), u8("Nuovo"), u8("TRT"), u8("<t/>")}));
    }
    RefreshTrattamenti(ids[0]);
    ASSERT_EQ(griglia->recordCount(), prima + 2);
    ASSERT_NE(griglia->focusedRecord(), nullptr);
    EXPECT_EQ(griglia->focusedRecord()->tag, ids[0]);
    ASSERT_TRUE(desk_->pressCommand(u8("CRVL.main.refresh")));
    EXPECT_EQ(griglia->focusedRecord()->tag, ids[0]) << "a refresh leaves the eye where it was";
    // Plans of the open patient stand out; without a patient nothing does.
    const auto grassetto = [&] {
        for (int i = 0; i < griglia->recordCount(); ++i) {
            if (griglia->record(i)->tag != ids[0]) continue;
            for (int c = 0; c < griglia->columnCount(); ++c)
                if (griglia->record(i)->cell(c).style().bold) return true;
        }
        return false;
    };
    EXPECT_TRUE(grassetto());
    ASSERT_TRUE(desk_->openPatientByTaxCode(u8("FNTGPP51M01L781C")));
    EXPECT_FALSE(grassetto());
}

TEST_F(Ribbon, TheWebPageGoesToTheOpenerAndOnlyWhenThereIsOne) {
    QStringList aperti;
    platform::installAddressOpener([&](const QString& indirizzo) {
        aperti << indirizzo;
        return true;
    });
    avvia();
    evento("execute", {oConfig->IDService(u8("CRVL.main.webinfo"))});
    EXPECT_TRUE(aperti.isEmpty());
    configura("webinfo=\"\"", "webinfo=\"https://www.example.org/corvala?a=1&amp;b=2\"");
    avvia();
    evento("execute", {oConfig->IDService(u8("CRVL.main.webinfo"))});
    evento("execute", {oConfig->IDService(u8("CRVL.main.userdata"))});
    EXPECT_EQ(aperti, QStringList{u8("https://www.example.org/corvala?a=1&b=2")});
    EXPECT_TRUE(dialoghi_.messages.isEmpty());
    platform::installAddressOpener({});
}

TEST_F(Ribbon, ThePatientsPlanFollowsThePatient) {
    avvia();
    EXPECT_TRUE(comando("CRVL0301")->Enabled());
    EXPECT_TRUE(comando("CRVL0302")->Enabled());
    EXPECT_FALSE(comando("CRVL0303")->Enabled());
    const auto scrivania = [this] { return comando(idComandi.sintesi); };
    EXPECT_FALSE(scrivania()->Enabled());
    apriRossi();
    EXPECT_FALSE(scrivania()->Enabled()) << "the summary has no window yet";
    EXPECT_FALSE(comando("CRVL0501")->Enabled());
    agganci.comandoConAzione = [](const QString&) { return true; };
    oConfig->RefreshGUI(true);
    EXPECT_TRUE(scrivania()->Enabled());
    EXPECT_TRUE(comando("CRVL0501")->Enabled());
    EXPECT_FALSE(comando("CRVL0303")->Enabled()) << "this patient has no plan";

    ASSERT_TRUE(desk_->openPatientByTaxCode(QStringLiteral("FNTGPP51M01L781C")));
    EXPECT_TRUE(comando("CRVL0303")->Enabled());
    oConfig->RefreshGUITrattamento();
    EXPECT_EQ(comando("CRVL0303")->Enabled(), agganci.contaTrattamentiAperti() > 0);
    desk_->closePatient();
    EXPECT_FALSE(comando("CRVL0303")->Enabled());
    EXPECT_FALSE(scrivania()->Enabled());
}

TEST_F(Ribbon, AListOpensOnceAndNeedsNoPatient) {
    avvia();
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0301")));
    QObject* prima = platform::FormRegistry::find(QStringLiteral("frmMDITrattamenti"));
    ASSERT_NE(prima, nullptr);
    auto* finestra = qobject_cast<QWidget*>(prima);
    EXPECT_EQ(finestra->windowTitle(), QStringLiteral("Tessara 5000. CORVALA: Elenco TRATTAMENTI"));
    EXPECT_FALSE(finestra->windowIcon().isNull());
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL0301")));
    int aperte = 0;
    for (const QObject* form : platform::FormRegistry::all()) {
        if (form->objectName() == QLatin1String("frmMDITrattamenti")) ++aperte;
    }
    EXPECT_EQ(aperte, 1);
}

TEST_F(Ribbon, TheModulesOwnCommands) {
    avvia();
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL.main.about")));
    const QString informazioni = platform::withoutMarkup(dialoghi_.messages.takeLast());
    EXPECT_TRUE(informazioni.startsWith(QStringLiteral("Tessara 5000 V6. Modulo Odontoiatrico\n\n")));
    EXPECT_TRUE(informazioni.contains(QStringLiteral("Percorso configurazione: ") + oConfig->FileName()));
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("CRVL.main.refresh")));
    evento("execute", {idComandi.menuFatturazione});
    EXPECT_TRUE(dialoghi_.messages.isEmpty());
    EXPECT_FALSE(comando(idComandi.menuFatturazione)->Enabled()) << "it has no window yet";
    evento("execute", {idComandi.menuImmagini});
    EXPECT_EQ(dialoghi_.messages.takeLast(), QStringLiteral("Selezionare prima un paziente"));
    EXPECT_TRUE(dialoghi_.messages.isEmpty());
}

#include "RibbonTest.moc"
