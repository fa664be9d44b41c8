#include "support/StudioConModulo.h"

#include "config/clsConfig.h"
#include "desk/shell/PanelPage.h"
#include "host/clsViewBase.h"
#include "module/modPannelli.h"
#include "periodontal/clsParadontale.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"

#include <QMainWindow>
#include <QTimer>

namespace {

class PluginTest : public StudioConModulo {};

/// A host that cannot answer anything.
class MutoHost : public host::Host {
public:
    host::Utente& Utente() override { cade(); }
    host::Paziente* paziente() override { cade(); }
    host::Framework& Framework() override { cade(); }
    host::Archivio& Archivio() override { cade(); }
    host::DB& DB() override { cade(); }
    host::API& API() override { cade(); }

private:
    [[noreturn]] static void cade() { throw host::HostError(QStringLiteral("il collegamento è caduto")); }
};

QTimer* timer1() {
    QObject* oggetti = platform::FormRegistry::find(QStringLiteral("frmOggetti"));
    return oggetti ? oggetti->findChild<QTimer*>(QStringLiteral("Timer1")) : nullptr;
}

} // namespace

TEST_F(PluginTest, StartsOnceAndTakesItsObjectsAwayAtTheEnd) {
    avvia();
    ASSERT_TRUE(avviato_) << qPrintable(desk_->moduleError());
    EXPECT_EQ(oHost, &desk_->host());
    const clsConfig* prima = oConfig;
    evento("REGISTRAZIONE", {QVariant()});
    EXPECT_EQ(oConfig, prima) << "a second start does not replace what the windows hold";
    EXPECT_TRUE(sLogFile.isEmpty());
    EXPECT_FALSE(timer1()->isActive()) << "no refresh is configured";

    evento("Fine");
    EXPECT_TRUE(plugin_->terminated());
    EXPECT_TRUE(plugin_->terminationReason().isEmpty());
    EXPECT_EQ(oHost, nullptr);
    EXPECT_EQ(oConfig, nullptr);
    EXPECT_NE(oViewTrattamenti, nullptr) << "the host still holds the panels";
    evento("registrazione", {QVariant()});
    EXPECT_EQ(oHost, nullptr) << "there is no way back";
    EXPECT_EQ(evento("mainribbonbar.returntab", {false}), QVariantList{false});
    desk_.reset();
    EXPECT_EQ(oViewTrattamenti, nullptr);
    EXPECT_EQ(timer1(), nullptr);
}

TEST_F(PluginTest, ASecondOneNeitherRevivesTheFirstNorLosesItsObjectsToIt) {
    avvia();
    evento("fine");
    auto secondo = std::make_unique<Plugin>();
    EXPECT_TRUE(plugin_->terminated()) << "a second one revives it";
    sRigoTrattamento = QStringLiteral("03");
    QVariantList args;
    evento("registrazione", {QVariant()});
    EXPECT_EQ(oHost, nullptr);
    secondo->evento(QStringLiteral("listapannelli"), nullptr, args = {QStringList()});
    EXPECT_EQ(args, QVariantList{QStringList()}) << "it has not begun";
    secondo->Init(&desk_->host(), QVariant());
    EXPECT_TRUE(sRigoTrattamento.isEmpty()) << "what the former run left behind";
    EXPECT_EQ(evento("mainribbonbar.returntab", {false}), QVariantList{false});
    desk_.reset(); // and the first one with it
    EXPECT_NE(oHost, nullptr);
    EXPECT_NE(oViewTrattamenti, nullptr);
    secondo.reset();
    EXPECT_EQ(oViewTrattamenti, nullptr);
}

TEST_F(PluginTest, ARefusedStartIsToldOnceAndLeavesTheDeskWithoutModule) {
    const struct {
        const char* file;
        const char* titolo;
    } casi[] = {{"Config.xml", ""}, {"Graphical.xml", "Tessara 5000. CORVALA"}};
    const QString modelli = sAppPath;
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.file);
        QTemporaryDir installazione;
        sAppPath = installazione.path();
        for (const char* file : {"Config.xml", "Graphical.xml"}) {
            const QString nome = QLatin1Char('/') + QLatin1String(file);
            ASSERT_TRUE(platform::files::copy(modelli + nome, sAppPath + nome));
        }
        ASSERT_TRUE(platform::files::writeAtomically(sAppPath + QLatin1Char('/') + QLatin1String(caso.file), "<rotto"));
        platform::files::remove(cartellaModulo() + QStringLiteral("/Config.xml"));
        dialoghi_.messages.clear();
        avvia();
        EXPECT_FALSE(avviato_);
        EXPECT_FALSE(desk_->hasModule());
        ASSERT_EQ(dialoghi_.messages.size(), 1);
        EXPECT_EQ(dialoghi_.values.last(), platform::MB_CRITICAL);
        EXPECT_EQ(dialoghi_.titles.last(), QLatin1String(caso.titolo));
        EXPECT_TRUE(desk_->moduleError().contains(dialoghi_.messages.last()));
        apriRossi(); // the desk works on
    }
}

TEST_F(PluginTest, ABrokenConfigurationIsToldAndTheModuleStarts) {
    avvia();
    ASSERT_TRUE(platform::files::writeAtomically(cartellaModulo() + QStringLiteral("/Config.xml"), ""));
    avvia();
    EXPECT_TRUE(avviato_);
    ASSERT_EQ(dialoghi_.messages.size(), 1);
    EXPECT_TRUE(dialoghi_.messages[0].startsWith(QStringLiteral("Il file delle impostazioni era danneggiato.")));
    EXPECT_EQ(dialoghi_.values, QList<int>{platform::MB_WARNING});
    EXPECT_EQ(dialoghi_.titles, QStringList{QStringLiteral("Tessara 5000. CORVALA")});
}

TEST_F(PluginTest, AnErrorInTheMiddleOfTheStartIsToldToo) {
    MutoHost muto;
    Plugin plugin;
    plugin.Init(&muto, QVariant());
    EXPECT_TRUE(plugin.terminated());
    EXPECT_EQ(dialoghi_.messages, QStringList{QStringLiteral("il collegamento è caduto")});
    EXPECT_EQ(dialoghi_.values, QList<int>{platform::MB_CRITICAL});
    EXPECT_EQ(plugin.terminationReason(), QStringLiteral("il collegamento è caduto"));
}

TEST_F(PluginTest, DebugNamesTheLogAndWritesNothing) {
    avvia();
    for (const char* valore : {"0", "si", "1"}) {
        SCOPED_TRACE(valore);
        desk_->host().Utente().Items().SetITEM(QStringLiteral("plgCORVALA.Debug"), QLatin1String(valore));
        avvia();
        const bool acceso = qstrcmp(valore, "1") == 0;
        EXPECT_EQ(sLogFile,
                  acceso ? desk_->host().Utente().LogDir() + QStringLiteral("/plgCORVALA_20260310.log") : QString());
    }
    EXPECT_FALSE(platform::files::exists(sLogFile));
}

TEST_F(PluginTest, GivesItsFivePanelsAndLeavesForeignOnesAlone) {
    avvia();
    const QStringList nomi = evento("ListaPannelli", {QStringList{QStringLiteral("Altro")}}).at(0).toStringList();
    EXPECT_EQ(nomi,
              (QStringList{QStringLiteral("Altro"), QStringLiteral("Corvala: Lista Preventivi"),
                           QStringLiteral("Corvala: Lista Trattamenti"), QStringLiteral("Corvala: Lista Fatture"),
                           QStringLiteral("Corvala: Lista Pagamenti"), QStringLiteral("Corvala: Lista Sondaggi")}));
    const qint32 tipi[] = {101012, 101014, 101013, 101015, 101018};
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE(qPrintable(nomi[i + 1]));
        const QVariantList risposta = evento("arcpannelli.daiparent", {nomi[i + 1], 7, QVariant()});
        EXPECT_EQ(risposta[1].toInt(), 0);
        auto* vista = risposta[2].value<host::View*>();
        ASSERT_NE(vista, nullptr);
        EXPECT_EQ(vista->TipoRecord(), tipi[i]);
        EXPECT_EQ(static_cast<clsViewBase*>(vista)->LikePannello(), tipi[i] != 101018);
    }
    const QVariantList estraneo{QStringLiteral("Altro"), 7, QVariant()};
    EXPECT_EQ(evento("arcpannelli.daiparent", estraneo), estraneo);
}

TEST_F(PluginTest, TheTimerRereadsTheLoadedPanels) {
    parametro("refreshFinestre", QStringLiteral("2"));
    avvia();
    apriRossi();
    ASSERT_TRUE(timer1()->isActive());
    const auto righe = [this](const char* pannello) {
        for (desk::PanelPage* pagina : desk_->window()->findChildren<desk::PanelPage*>()) {
            if (pagina->panel().name == QLatin1String(pannello)) return pagina->grid().recordCount();
        }
        return -1;
    };
    for (const char* t1 : {"FTT", "CPD"}) {
        QString id;
        ASSERT_TRUE(desk_->host().paziente()->corvala().Salva(
            id, {QStringLiteral("01/03/2026"), QStringLiteral("2026-0001"), QString(), QLatin1String(t1), {}}));
    }
    oParadontale->Refresh();
    const auto minuto = [] { QMetaObject::invokeMethod(timer1()->parent(), "Timer1_Timer"); };
    minuto();
    EXPECT_EQ(righe("Corvala: Lista Fatture"), 0);
    minuto();
    EXPECT_EQ(righe("Corvala: Lista Fatture"), 1) << "the list in memory is not what others wrote meanwhile";
    EXPECT_EQ(righe("Corvala: Lista Sondaggi"), 0) << "probings are left out of the refresh on purpose";
    oConfig->setMinuteRefresh(0);
    minuto();
    EXPECT_FALSE(timer1()->isActive());
}

TEST_F(PluginTest, AChangeOfPatientEmptiesTheLists) {
    avvia();
    apriRossi();
    platform::ReportGrid griglia;
    host::View* vista = VistaPannello(QStringLiteral("Corvala: Lista Fatture"));
    vista->refreshGrid(&griglia, QString());
    EXPECT_EQ(griglia.recordCount(), 0);
    QString ids[2];
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(desk_->host().paziente()->corvala().Salva(ids[i], {QStringLiteral("01/03/2026"),
                                                                       QStringLiteral("2026-000%1").arg(i + 1),
                                                                       QStringLiteral("Saldo"),
                                                                       QStringLiteral("FTT"),
                                                                       {}}));
    }
    vista->refreshGrid(&griglia, QString());
    EXPECT_EQ(griglia.recordCount(), 0) << "the list is kept until the patient changes";
    desk_->closePatient();
    apriRossi();
    vista->refreshGrid(&griglia, ids[0]);
    ASSERT_EQ(griglia.recordCount(), 2);
    ASSERT_NE(griglia.focusedRecord(), nullptr);
    EXPECT_EQ(griglia.focusedRecord()->tag, ids[0]);
    EXPECT_EQ(griglia.focusedRecord()->cell(0).value, QStringLiteral("2026-0001"));
    EXPECT_EQ(griglia.focusedRecord()->cell(1).value, QStringLiteral("01/03/2026"));
    EXPECT_EQ(griglia.rowRecord(0)->cell(0).value, QStringLiteral("2026-0002")) << "the newest comes first";
    desk_->closePatient();
    vista->refreshGrid(&griglia, QString());
    EXPECT_EQ(griglia.recordCount(), 0);
}
