#include "DeskFixture.h"

#include "desk/shell/ChildWindows.h"
#include "desk/shell/CommandList.h"
#include "desk/shell/DeskCommands.h"
#include "desk/shell/MainMenu.h"
#include "desk/shell/PatientDesk.h"
#include "desk/shell/ShowModally.h"
#include "platform/FormRegistry.h"

#include <QAction>
#include <QHideEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QSet>
#include <QTabBar>
#include <utility>

using desk::ChildWindows;
using desk::PatientDesk;

namespace {

void settle() {
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

/// The area with three windows: the patient's desk, as it were, and two lists.
class DeskChildWindows : public testing::Test {
protected:
    DeskChildWindows() {
        area.resize(600, 400);
        area.show();
        patient = open(QStringLiteral("Rossi Mario"));
        first = open(QStringLiteral("Tessara 5000. CORVALA: Elenco TRATTAMENTI"));
        second = open(QStringLiteral("Tessara 5000. CORVALA: Elenco FATTURE"));
    }
    QWidget* open(const QString& caption) {
        auto* form = new QWidget;
        form->setWindowTitle(caption);
        area.adopt(form);
        form->show();
        settle();
        return form;
    }
    QStringList tabsShown() {
        QStringList captions;
        auto* bar = area.findChild<QTabBar*>();
        for (int tab = 0; tab < bar->count(); ++tab)
            if (bar->isTabVisible(tab)) captions += bar->tabText(tab);
        return bar->isVisible() ? captions : QStringList();
    }
    QWidget* inFront() { return area.activeSubWindow() ? area.activeSubWindow()->widget() : nullptr; }

    ChildWindows area;
    QPointer<QWidget> patient, first, second;
};

} // namespace

TEST_F(DeskChildWindows, PutsAwayOneWindowWithItsTabAlsoAfterTabsWereDragged) {
    const QString name = QStringLiteral("Rossi Mario");
    const QStringList lists{QStringLiteral("Elenco TRATTAMENTI"), QStringLiteral("Elenco FATTURE")};
    EXPECT_EQ(tabsShown(), QStringList{name} + lists);
    area.putAway(patient);
    EXPECT_EQ(tabsShown(), lists);
    EXPECT_FALSE(patient->isVisible());
    area.bringForward(patient);
    EXPECT_EQ(tabsShown(), QStringList{name} + lists);
    EXPECT_EQ(inFront(), patient);

    area.findChild<QTabBar*>()->moveTab(0, 2);
    area.putAway(patient);
    EXPECT_EQ(tabsShown(), lists);
    EXPECT_TRUE(first && second);
    area.bringForward(patient);
    EXPECT_EQ(tabsShown(), lists + QStringList{name});

    area.closeCaption(first->windowTitle());
    area.closeCaption(second->windowTitle());
    area.putAway(patient);
    settle();
    EXPECT_TRUE(tabsShown().isEmpty()) << "a bar without tabs still shows";
}

TEST_F(DeskChildWindows, FindsAWindowByItsWholeCaptionWhileItIsOpen) {
    EXPECT_FALSE(area.bringForward(QStringLiteral("Elenco TRATTAMENTI"))) << "the tab's short text is no caption";
    const QString caption = first->windowTitle();
    EXPECT_TRUE(area.bringForward(caption));
    EXPECT_EQ(inFront(), first);
    second->setWindowTitle(QStringLiteral("Tessara 5000. CORVALA: Elenco PREVENTIVI"));
    EXPECT_EQ(tabsShown().last(), QStringLiteral("Elenco PREVENTIVI"));

    area.closeCaption(caption);
    EXPECT_FALSE(area.bringForward(caption)) << "a window that closes is taken for an open one";
    settle();
    EXPECT_TRUE(first.isNull());
    QWidget* again = open(caption);
    EXPECT_TRUE(area.bringForward(caption));
    EXPECT_EQ(inFront(), again);
}

TEST_F(DeskChildWindows, ClosesAllButThePatientAndDeletesWhatWasDiscarded) {
    EXPECT_TRUE(area.closeAll(patient));
    settle();
    EXPECT_TRUE(patient && !first && !second);
    area.discard(patient);
    EXPECT_TRUE(area.subWindowList().isEmpty());
    EXPECT_TRUE(patient) << "callers may still be in it";
    area.deleteAll();
    EXPECT_FALSE(patient);
}

TEST(ShowModally, AWindowPutDownAsAnIconIsNotTakenForClosed) {
    auto* form = new QWidget; // no dialog, as a module may hand one out
    bool wasUp = false;
    QTimer::singleShot(0, form, [form] {
        QHideEvent asIcon;
        QSpontaneKeyEvent::setSpontaneous(&asIcon);
        qApp->notify(form, &asIcon);
    });
    QTimer::singleShot(50, form, [&] {
        wasUp = true;
        form->close();
    });
    EXPECT_TRUE(desk::showModally(form));
    EXPECT_TRUE(wasUp);
    settle();
    EXPECT_FALSE(desk::showModally(new QObject(qApp))) << "what is no window cannot be shown";
}

class DeskOfPatients : public DeskFixture {
protected:
    void SetUp() override {
        attach();
        desk_->window()->show();
        ASSERT_TRUE(desk_->openPatient(rossi_));
        addRecord(QStringLiteral("di Rossi"));
        ASSERT_TRUE(desk_->openPatient(verdi_));
        addRecord(QStringLiteral("di Verdi"));
        desk_->closePatient();
        run_.events.clear();
    }
    QString shownName() { return control<QLabel>("laNome")->text(); }
    QStringList shownRecords() {
        QStringList texts;
        const auto* grid = control<platform::ReportGrid>("pannello(Prova: Lista Prova)");
        for (int row = 0; row < grid->rowCount(); ++row)
            texts += grid->rowRecord(row)->cell(0).value;
        return texts;
    }
};

TEST_F(DeskOfPatients, OneServesPatientAfterPatientAndIsKnownOnlyWhileOneIsOpen) {
    const QPointer<PatientDesk> first(control<PatientDesk>("frmAmbulatorio"));
    EXPECT_EQ(platform::FormRegistry::find(QStringLiteral("frmAmbulatorio")), nullptr);
    ASSERT_TRUE(desk_->openPatient(rossi_));
    EXPECT_EQ(platform::FormRegistry::find(QStringLiteral("frmAmbulatorio")), first);
    EXPECT_EQ(shownRecords(), QStringList{QStringLiteral("di Rossi")});
    EXPECT_TRUE(control<QWidget>("pannello(Prova: Lista Prova)")->isAncestorOf(desk_->window()->focusWidget()))
        << "the keyboard does not begin in a list";
    ASSERT_TRUE(desk_->openPatient(verdi_));
    EXPECT_EQ(control<PatientDesk>("frmAmbulatorio"), first);
    EXPECT_EQ(shownRecords(), QStringList{QStringLiteral("di Verdi")});
    EXPECT_EQ(shownName(), QStringLiteral("Verdi Nicolò"));

    // Other panels need another desk, and the old one must not stay about.
    framework().setLayoutPredefinito(
        QStringLiteral("<Layout><Panel caption='Prova: Lista Prova' side='right'/></Layout>"));
    ASSERT_TRUE(desk_->openPatient(rossi_));
    settle();
    EXPECT_TRUE(first.isNull());
    EXPECT_EQ(desk_->window()->findChildren<PatientDesk*>().size(), 1);
    EXPECT_EQ(shownRecords(), QStringList{QStringLiteral("di Rossi")});
}

// The module may open another patient, or close it, while it is told of this one.
TEST_F(DeskOfPatients, APatientWhoGivesWayWhileOpeningIsNotShownOverTheNext) {
    bool gaveWay = false;
    run_.whenTold = [&](const QString& event) {
        if (event == QLatin1String("form.load frmAmbulatorio") && !std::exchange(gaveWay, true)) {
            EXPECT_TRUE(desk_->openPatient(verdi_));
        }
    };
    ASSERT_TRUE(desk_->openPatient(rossi_));
    EXPECT_EQ(desk_->host().paziente()->ID(), verdi_);
    EXPECT_EQ(run_.events.count(QStringLiteral("ambulatorio.ready")), 1);
    EXPECT_EQ(shownName(), QStringLiteral("Verdi Nicolò"));
    EXPECT_EQ(shownRecords(), QStringList{QStringLiteral("di Verdi")});
    ASSERT_TRUE(desk_->pressCommand(QStringLiteral("Appunti")));
    whenModal("frmEditAppunto", [](QWidget& editor) {
        QTest::keyClicks(editor.findChild<QWidget*>(QStringLiteral("tbTesto")), QStringLiteral("di chi"));
        press(editor, "cbConferma");
    });
    QTest::mouseClick(control<QWidget>("cbNuovoAppunto"), Qt::LeftButton);
    EXPECT_EQ(desk_->host().paziente()->Appunti().Lista().size(), 1) << "the note went to the patient who gave way";

    desk_->closePatient();
    run_.events.clear();
    run_.whenTold = [this](const QString& event) {
        if (event == QLatin1String("form.load frmAmbulatorio")) desk_->closePatient();
    };
    desk_->openPatient(rossi_);
    EXPECT_EQ(run_.events.count(QStringLiteral("ambulatorio.ready")), 0);
    EXPECT_FALSE(control<PatientDesk>("frmAmbulatorio")->isVisible());
    EXPECT_TRUE(shownRecords().isEmpty());
}

class DeskMainMenu : public DeskFixture {
protected:
    QAction* entry(const QString& caption) {
        for (QAction* action : desk_->window()->menuBar()->findChildren<QAction*>())
            if (action->text() == caption) return action;
        ADD_FAILURE() << caption.toStdString();
        return nullptr;
    }
};

TEST_F(DeskMainMenu, EntriesFollowTheirCommands) {
    const QStringList needPatient{QStringLiteral("Chiudi paziente"), QStringLiteral("Dati anagrafici"),
                                  QStringLiteral("Diario clinico"), QStringLiteral("Appunti")};
    const auto expectEnabled = [&](bool enabled) {
        for (const QString& caption : needPatient)
            EXPECT_EQ(entry(caption)->isEnabled(), enabled) << caption.toStdString();
        EXPECT_TRUE(entry(QStringLiteral("Cerca paziente"))->isEnabled());
    };
    expectEnabled(false);
    ASSERT_TRUE(desk_->openPatient(rossi_));
    expectEnabled(true);
    entry(QStringLiteral("Chiudi paziente"))->trigger();
    EXPECT_EQ(desk_->host().paziente(), nullptr);
    expectEnabled(false);

    attach();
    run_.events.clear();
    QAction* estimates = entry(QStringLiteral("Preventivi"));
    EXPECT_EQ(qobject_cast<QMenu*>(estimates->parent())->title(), QStringLiteral("ODONTOIATRIA"));
    estimates->trigger();
    EXPECT_EQ(run_.events, QStringList{QStringLiteral("execute 70011")});
    framework().FindRibbonControl(70011)->setEnabled(false);
    EXPECT_FALSE(estimates->isEnabled());
    framework().FindRibbonControl(70011)->setVisible(false);
    EXPECT_FALSE(estimates->isVisible());
}

TEST_F(DeskMainMenu, NoTwoEntriesShareAShortcutAndStrayOnesAreLeftOut) {
    QStringList shortcuts;
    for (const QAction* action : desk_->window()->menuBar()->findChildren<QAction*>())
        if (!action->shortcut().isEmpty()) shortcuts += action->shortcut().toString();
    EXPECT_GE(shortcuts.size(), 8);
    EXPECT_EQ(QSet<QString>(shortcuts.cbegin(), shortcuts.cend()).size(), shortcuts.size());

    QMenuBar bar;
    desk::CommandList commands;
    desk::MainMenu menu(bar, commands);
    menu.addMenu(QStringLiteral("M1"), QStringLiteral("Uno"));
    menu.addModuleEntry(QStringLiteral("I80001"), QStringLiteral("Prima & dopo"), QStringLiteral("M1"));
    menu.addModuleEntry(QStringLiteral("I80002"), QStringLiteral("Sperduta"), QStringLiteral("M9"));
    EXPECT_EQ(commands.find(80002), nullptr);
    ASSERT_NE(commands.find(80001), nullptr);
    const auto* entries = bar.findChild<QMenu*>(QStringLiteral("M1"));
    ASSERT_EQ(entries->actions().size(), 1);
    EXPECT_EQ(entries->actions().first()->text(), QStringLiteral("Prima && dopo")) << "& is no shortcut here";
}
