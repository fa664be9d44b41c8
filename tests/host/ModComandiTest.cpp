#include "host/modComandi.h"
#include "host/clsViewBase.h"
#include "host/context.h"
#include "platform/ReportGrid.h"
#include "support/ScriptedDialogs.h"

#include <QWidget>
#include <gtest/gtest.h>

namespace {

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
