#include "support/StudioConModulo.h"

#include "config/clsConfig.h"
#include "host/contract/Forms.h"
#include "host/contract/Prescrizione.h"
#include "module/modPannelli.h"
#include "platform/FormRegistry.h"
#include "platform/WebAddress.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QPoint>
#include <iterator>

namespace {

const char* const EVENTI[] = {"registrazione",
                              "ambulatorio.ready",
                              "form.load",
                              "chiuditutto",
                              "execute",
                              "mainribbonbar.returntab",
                              "mainribbonbar.activetab",
                              "listapannelli",
                              "arcpannelli.daiparent",
                              "prescrizione.add",
                              "Sconosciuto",
                              ""};

class Ambulatorio : public host::HostForm {
public:
    QString Name() const override { return QStringLiteral("frmAmbulatorio"); }
};

/// A window of the host with the name of the main one, but nothing of what a main window offers.
class FalsoPrincipale : public host::HostForm {
public:
    QString Name() const override { return QStringLiteral("frmMain"); }
};

class Ricetta : public host::Prescrizione {
public:
    Ricetta(int tipoRicetta, const char* classeRicetta)
        : tipo_(tipoRicetta)
        , classe_(QLatin1String(classeRicetta)) {}
    int tipo() const override { return tipo_; }
    QString classe() const override { return classe_; }
    void setClasse(const QString& classe) override { classe_ = classe; }
    void setTipostampa(qint16 tipo) override { tipostampa = tipo; }
    int tipostampa = -1;

private:
    int tipo_;
    QString classe_;
};

class Eventi : public StudioConModulo {};

} // namespace

TEST_F(Eventi, ArgumentsOfTheWrongKindAreLeftAsTheyAre) {
    avvia();
    apriRossi();
    const QVariant estranei[] = {QVariant(),
                                 QVariant(-1),
                                 QVariant(2147483648.0),
                                 QVariant(QString()),
                                 QVariant(QStringLiteral("L'Aquila \"100%\" \U0001F9B7")),
                                 QVariant(QString(500, QLatin1Char('x'))),
                                 QVariant(QByteArray("\xff\x00", 2)),
                                 QVariant(QPoint(1, 2)),
                                 QVariant(QVariantList{1, QStringLiteral("due")}),
                                 QVariant::fromValue<QObject*>(desk_->window()),
                                 QVariant::fromValue<host::HostForm*>(nullptr),
                                 QVariant::fromValue<host::Prescrizione*>(nullptr)};
    for (const char* nome : EVENTI) {
        for (const QVariant& estraneo : estranei) {
            SCOPED_TRACE(testing::Message() << nome << " with " << estraneo.typeName());
            EXPECT_TRUE(evento(nome).isEmpty());
            const QVariantList tre{estraneo, estraneo, estraneo};
            QVariantList attesi = tre;
            // The one event that writes without reading what stood there.
            if (qstrcmp(nome, "mainribbonbar.returntab") == 0) attesi[0] = true;
            EXPECT_EQ(evento(nome, tre), attesi);
            EXPECT_FALSE(plugin_->terminated());
        }
    }
    EXPECT_TRUE(dialoghi_.messages.isEmpty());
    EXPECT_EQ(evento("MainRibbonBar.ReturnTab", {false}), QVariantList{true}) << "names are read in any case";
    // A panel that is known, with less room than its answer needs.
    const QString pannello = NomiPannelli().first();
    EXPECT_EQ(evento("arcpannelli.daiparent", {pannello}), QVariantList{pannello});
    EXPECT_EQ(evento("arcpannelli.daiparent", {pannello, 7}), (QVariantList{pannello, 0}));
    FalsoPrincipale falso;
    const qint32 sintesi = idComandi.sintesi;
    evento("form.load", {QVariant::fromValue<host::HostForm*>(&falso)});
    EXPECT_EQ(idComandi.sintesi, sintesi) << "the ribbon is built once, on the real window";
}

TEST_F(Eventi, PrescriptionsGoOnTheWhiteFormWhenThePracticeWantsIt) {
    const struct {
        const char* opzione;
        int tipo;
        const char* classe;
        const char* classeAttesa;
        int stampaAttesa;
    } casi[] = {
        {"true", 1, "A", "C", 1}, {"true", 1, "B", "B", 1}, {"true", 2, "A", "A", 1}, {"false", 1, "A", "A", -1}};
    for (const auto& caso : casi) {
        SCOPED_TRACE(testing::Message() << caso.opzione << ' ' << caso.tipo << ' ' << caso.classe);
        parametro("defaultFarmaciClasseC", QLatin1String(caso.opzione));
        avvia();
        Ricetta ricetta(caso.tipo, caso.classe);
        evento("prescrizione.add", {QVariant::fromValue<host::Prescrizione*>(&ricetta)});
        EXPECT_EQ(ricetta.classe(), QLatin1String(caso.classeAttesa));
        EXPECT_EQ(ricetta.tipostampa, caso.stampaAttesa);
    }
}

TEST_F(Eventi, AModuleWithoutAHostIgnoresThem) {
    Plugin solo;
    for (const char* nome : EVENTI) {
        SCOPED_TRACE(nome);
        QVariantList args{QStringList(), 1, 2};
        solo.evento(QLatin1String(nome), nullptr, args);
        EXPECT_EQ(args, (QVariantList{QStringList(), 1, 2}));
        EXPECT_FALSE(solo.terminated());
    }
    EXPECT_EQ(oHost, nullptr);
}

// Whatever an event keeps behind would be a thousand times in memory: the sanitizers count it, and the lists here.
TEST_F(Eventi, AThousandRoundsOfEveryEventLeaveNothingBehind) {
    avvia();
    apriRossi();
    platform::installAddressOpener([](const QString&) { return true; });
    Ambulatorio ambulatorio;
    FalsoPrincipale falso;
    Ricetta ricetta(1, "A");
    const QVariant scrivania = QVariant::fromValue<host::HostForm*>(&ambulatorio);
    const qint32 comandi[] = {oConfig->IDService(QStringLiteral("CRVL.main.about")),
                              oConfig->IDService(QStringLiteral("CRVL.main.refresh")),
                              oConfig->IDService(QStringLiteral("CRVL.main.webinfo")),
                              oConfig->IDService(QStringLiteral("CRVL0301")),
                              idComandi.menuImmagini,
                              123456};
    const auto giro = [&] {
        for (const char* nome : EVENTI)
            evento(nome, {QStringLiteral("estraneo"), 1, QVariant()});
        evento("form.load", {QVariant::fromValue<host::HostForm*>(&falso)});
        evento("form.load", {scrivania});
        evento("ambulatorio.ready");
        for (const qint32 comando : comandi)
            evento("execute", {comando});
        evento("mainribbonbar.returntab", {false});
        evento("mainribbonbar.activetab", {QStringLiteral("Odontoiatria")});
        QVariantList nomi = evento("listapannelli", {QStringList()});
        for (const QString& nome : nomi[0].toStringList())
            evento("arcpannelli.daiparent", {nome, 7, QVariant()});
        evento("prescrizione.add", {QVariant::fromValue<host::Prescrizione*>(&ricetta)});
        evento("registrazione", {QVariant()});
        evento("chiuditutto");
        dialoghi_.messages.clear();
    };
    giro();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const qsizetype finestre = platform::FormRegistry::all().size();
    const qsizetype oggetti = desk_->window()->findChildren<QObject*>().size();
    const qsizetype aperte = QApplication::topLevelWidgets().size();
    for (int i = 0; i < 1000; ++i)
        giro();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(platform::FormRegistry::all().size(), finestre);
    EXPECT_EQ(desk_->window()->findChildren<QObject*>().size(), oggetti);
    EXPECT_EQ(QApplication::topLevelWidgets().size(), aperte);
    EXPECT_FALSE(plugin_->terminated());
    for (int i = 0; i < 1000; ++i)
        evento(i == 0 ? "fine" : EVENTI[static_cast<std::size_t>(i) % std::size(EVENTI)], {1, 2, 3});
    EXPECT_TRUE(plugin_->terminated());
    platform::installAddressOpener({});
}
