#include "host/modComandi.h"
#include "host/clsViewBase.h"
#include "host/context.h"
#include "host/modAggiorna.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"
#include "support/ScriptedDialogs.h"

#include <QWidget>
#include <gtest/gtest.h>

namespace {

/// Stands in the list of open windows under any name and writes down how it is refreshed.
class HeardWindow : public QWidget {
    Q_OBJECT

public:
    explicit HeardWindow(const char* name) {
        setObjectName(QLatin1String(name));
        platform::FormRegistry::add(this);
    }
    QStringList calls;

    Q_INVOKABLE void RefreshPreventivi(const QString& id) { calls << QStringLiteral("P:") + id; }
    Q_INVOKABLE void RefreshFatture(const QString& id) { calls << QStringLiteral("F:") + id; }
    Q_INVOKABLE void RefreshPagamenti(const QString& id) { calls << QStringLiteral("G:") + id; }
    Q_INVOKABLE void RefreshTrattamenti(const QString& id) { calls << QStringLiteral("T:") + id; }
    Q_INVOKABLE void RefreshGraficaPreventivi() { calls << QStringLiteral("gP"); }
    Q_INVOKABLE void RefreshGraficaFatture() { calls << QStringLiteral("gF"); }
    Q_INVOKABLE void RefreshGraficaPagamenti() { calls << QStringLiteral("gG"); }
    Q_INVOKABLE void RefreshGraficaTrattamenti() { calls << QStringLiteral("gT"); }
    Q_INVOKABLE void plbRefresh() { calls << QStringLiteral("plb"); }
};

class MenuHost : public host::PopupBar {
public:
    void RemoveItem(int command) override { commands.removeAll(command); }
    void AddItem(int command, const QString&) override { commands << command; }
    QList<int> commands{80, 77, 78, 79, 5};
};

class PatientlessList : public clsViewBase {
public:
    qint32 TipoRecord() const override { return 1; }

protected:
    void buildColumns(platform::ReportGrid& grid) override {
        grid.addColumn({QStringLiteral("Data"), 80});
        grid.addColumn({QStringLiteral("Progressivo"), 80});
    }
    void fill(platform::ReportGrid&) override { FAIL() << "no patient is open"; }
};

} // namespace

TEST(ModAggiorna, EachRoutineReachesItsWindowAndNoOther) {
    RefreshTrattamenti(QStringLiteral("1")); // none open: nothing happens
    const struct {
        const char* form;
        std::function<void()> routine;
        const char* call;
    } cases[] = {
        {"frmMDIPreventivi", [] { RefreshPreventivi(QStringLiteral("7")); }, "P:7"},
        {"frmMDIFatture", [] { RefreshFatture(QStringLiteral("7")); }, "F:7"},
        {"frmMDIPagamenti", [] { RefreshPagamenti(QStringLiteral("7")); }, "G:7"},
        {"frmMDITrattamenti", [] { RefreshTrattamenti(QString()); }, "T:"},
        {"frmMDIPreventivi", RefreshGraficaPreventivi, "gP"},
        {"frmMDIFatture", RefreshGraficaFatture, "gF"},
        {"frmMDIPagamenti", RefreshGraficaPagamenti, "gG"},
        {"frmMDITrattamenti", RefreshGraficaTrattamenti, "gT"},
        {"frmMDISintesi", RefreshSintesi, "plb"},
        {"frmMDIImmagini", RefreshImmagini, "plb"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.form);
        HeardWindow own(each.form);
        HeardWindow other("frmMDIPrimaNotaMagazzino");
        each.routine();
        EXPECT_EQ(own.calls, QStringList{QLatin1String(each.call)});
        EXPECT_TRUE(other.calls.isEmpty());
    }
}

TEST(ModComandi, DispatchesByServiceThenByFixedIdAndIgnoresTheRest) {
    ScriptedDialogs dialogs;
    QStringList done;
    Commands commands([](qint32 id) { return id == 100 ? QStringLiteral("CRVL0301") : QString(); });
    commands.add(QStringLiteral("CRVL0301"), [&] { done << QStringLiteral("elenco"); });
    commands.add(QStringLiteral("CRVL0201"), [&] { done << QStringLiteral("fatture"); });
    commands.EseguiComando(0); // before the ribbon is built all fixed ids are 0
    commandIds = {1, 2, 3, 4, 5, 6, 7, 8, 9};

    commands.EseguiComando(100);
    commands.EseguiComando(6);
    commands.EseguiComando(1); // the group and the menu are no commands
    commands.EseguiComando(4);
    commands.EseguiComando(12345);
    EXPECT_EQ(done, (QStringList{QStringLiteral("elenco"), QStringLiteral("fatture")}));
    commands.EseguiComando(5); // without an action it is grey, and a host that asks all the same hears nothing
    EXPECT_TRUE(dialogs.messages.isEmpty());

    for (const qint32 id : {2, 8, 3, 9, 7}) {
        SCOPED_TRACE(id);
        commands.EseguiComando(id);
        EXPECT_EQ(dialogs.messages.takeLast(), QStringLiteral("Selezionare prima un paziente"));
        EXPECT_EQ(dialogs.titles.last(), QStringLiteral("Tessara 5000"));
        EXPECT_EQ(dialogs.values.last(), 64);
    }
    commandIds = {};
}

TEST(ClsViewBase, SetsTheHostsGridUpOnceAndSurvivesIt) {
    ScriptedDialogs dialogs;
    PatientlessList list;
    list.RefreshPannello(); // no grid seen yet
    {
        platform::ReportGrid grid;
        list.refreshGrid(&grid, QStringLiteral("x"));
        list.RefreshPannello();
        EXPECT_EQ(grid.columnCount(), 2);
        MenuHost menu;
        list.Popup(menu, &grid);
        EXPECT_EQ(menu.commands, QList<int>{5});
    }
    list.RefreshPannello(); // the grid has gone with its panel
    QWidget other;
    list.refreshGrid(&other, QString());
    EXPECT_FALSE(list.Elimina(QStringLiteral("42")));
    EXPECT_EQ(dialogs.messages, QStringList{QStringLiteral("Cancello 42")});
}

#include "ModComandiTest.moc"
