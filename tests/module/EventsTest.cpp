#include "support/ModuleFixture.h"

#include "config/clsConfig.h"
#include "host/contract/Forms.h"
#include "host/contract/Prescrizione.h"
#include "platform/FormRegistry.h"
#include "platform/WebAddress.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QPoint>
#include <iterator>

namespace {

const char* const EVENTS[] = {"registrazione",
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

class DeskForm : public host::HostForm {
public:
    QString Name() const override { return QStringLiteral("frmAmbulatorio"); }
};

/// A window of the host with the name of the main one, but nothing of what a main window offers.
class FalseMainForm : public host::HostForm {
public:
    QString Name() const override { return QStringLiteral("frmMain"); }
};

class GivenPrescription : public host::Prescrizione {
public:
    GivenPrescription(int givenKind, const char* givenClass)
        : kind_(givenKind)
        , class_(QLatin1String(givenClass)) {}
    int tipo() const override { return kind_; }
    QString classe() const override { return class_; }
    void setClasse(const QString& className) override { class_ = className; }
    void setTipostampa(qint16 kind) override { tipostampa = kind; }
    int tipostampa = -1;

private:
    int kind_;
    QString class_;
};

class Events : public ModuleFixture {};

} // namespace

TEST_F(Events, ArgumentsOfTheWrongKindAreLeftAsTheyAre) {
    start();
    openRossi();
    const QVariant strangers[] = {QVariant(),
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
    for (const char* name : EVENTS) {
        for (const QVariant& stranger : strangers) {
            SCOPED_TRACE(testing::Message() << name << " with " << stranger.typeName());
            EXPECT_TRUE(raiseEvent(name).isEmpty());
            const QVariantList three{stranger, stranger, stranger};
            QVariantList expected = three;
            // The one event that writes without reading what stood there.
            if (qstrcmp(name, "mainribbonbar.returntab") == 0) expected[0] = true;
            EXPECT_EQ(raiseEvent(name, three), expected);
            EXPECT_FALSE(plugin_->terminated());
        }
    }
    EXPECT_TRUE(dialogs_.messages.isEmpty());
    EXPECT_EQ(raiseEvent("MainRibbonBar.ReturnTab", {false}), QVariantList{true}) << "names are read in any case";
    // A panel that is known, with less room than its answer needs.
    const QString panel = QStringLiteral("Corvala: Lista Preventivi");
    EXPECT_EQ(raiseEvent("arcpannelli.daiparent", {panel}), QVariantList{panel});
    EXPECT_EQ(raiseEvent("arcpannelli.daiparent", {panel, 7}), (QVariantList{panel, 0}));
    FalseMainForm falseForm;
    const qint32 summary = commandIds.summary;
    raiseEvent("form.load", {QVariant::fromValue<host::HostForm*>(&falseForm)});
    EXPECT_EQ(commandIds.summary, summary) << "the ribbon is built once, on the real window";
}

TEST_F(Events, PrescriptionsGoOnTheWhiteFormWhenThePracticeWantsIt) {
    const struct {
        const char* option;
        int kind;
        const char* className;
        const char* expectedClass;
        int expectedPrint;
    } cases[] = {
        {"true", 1, "A", "C", 1}, {"true", 1, "B", "B", 1}, {"true", 2, "A", "A", 1}, {"false", 1, "A", "A", -1}};
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.option << ' ' << each.kind << ' ' << each.className);
        setParameter("defaultFarmaciClasseC", QLatin1String(each.option));
        start();
        GivenPrescription prescription(each.kind, each.className);
        raiseEvent("prescrizione.add", {QVariant::fromValue<host::Prescrizione*>(&prescription)});
        EXPECT_EQ(prescription.classe(), QLatin1String(each.expectedClass));
        EXPECT_EQ(prescription.tipostampa, each.expectedPrint);
    }
}

TEST_F(Events, AModuleWithoutAHostIgnoresThem) {
    Plugin alone;
    for (const char* name : EVENTS) {
        SCOPED_TRACE(name);
        QVariantList args{QStringList(), 1, 2};
        alone.evento(QLatin1String(name), nullptr, args);
        EXPECT_EQ(args, (QVariantList{QStringList(), 1, 2}));
        EXPECT_FALSE(alone.terminated());
    }
    EXPECT_EQ(oHost, nullptr);
}

// Whatever an event keeps behind would be a thousand times in memory: the sanitizers count it, and the lists here.
TEST_F(Events, AThousandRoundsOfEveryEventLeaveNothingBehind) {
    start();
    openRossi();
    platform::installAddressOpener([](const QString&) { return true; });
    DeskForm deskForm;
    FalseMainForm falseForm;
    GivenPrescription prescription(1, "A");
    const QVariant deskLoaded = QVariant::fromValue<host::HostForm*>(&deskForm);
    const qint32 commands[] = {oConfig->IDService(QStringLiteral("CRVL.main.about")),
                               oConfig->IDService(QStringLiteral("CRVL.main.refresh")),
                               oConfig->IDService(QStringLiteral("CRVL.main.webinfo")),
                               oConfig->IDService(QStringLiteral("CRVL0301")),
                               commandIds.menuImages,
                               123456};
    const auto round = [&] {
        for (const char* name : EVENTS)
            raiseEvent(name, {QStringLiteral("estraneo"), 1, QVariant()});
        raiseEvent("form.load", {QVariant::fromValue<host::HostForm*>(&falseForm)});
        raiseEvent("form.load", {deskLoaded});
        raiseEvent("ambulatorio.ready");
        for (const qint32 command : commands)
            raiseEvent("execute", {command});
        raiseEvent("mainribbonbar.returntab", {false});
        raiseEvent("mainribbonbar.activetab", {QStringLiteral("Odontoiatria")});
        QVariantList names = raiseEvent("listapannelli", {QStringList()});
        for (const QString& name : names[0].toStringList())
            raiseEvent("arcpannelli.daiparent", {name, 7, QVariant()});
        raiseEvent("prescrizione.add", {QVariant::fromValue<host::Prescrizione*>(&prescription)});
        raiseEvent("registrazione", {QVariant()});
        raiseEvent("chiuditutto");
        dialogs_.messages.clear();
    };
    round();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const qsizetype forms = platform::FormRegistry::all().size();
    const qsizetype objects = desk_->window()->findChildren<QObject*>().size();
    const qsizetype topLevels = QApplication::topLevelWidgets().size();
    for (int i = 0; i < 1000; ++i)
        round();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(platform::FormRegistry::all().size(), forms);
    EXPECT_EQ(desk_->window()->findChildren<QObject*>().size(), objects);
    EXPECT_EQ(QApplication::topLevelWidgets().size(), topLevels);
    EXPECT_FALSE(plugin_->terminated());
    for (int i = 0; i < 1000; ++i)
        raiseEvent(i == 0 ? "fine" : EVENTS[static_cast<std::size_t>(i) % std::size(EVENTS)], {1, 2, 3});
    EXPECT_TRUE(plugin_->terminated());
    platform::installAddressOpener({});
}
