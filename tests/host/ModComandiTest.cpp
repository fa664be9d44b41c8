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
class Finestra : public QWidget {
    Q_OBJECT

public:
    explicit Finestra(const char* nome) {
        setObjectName(QLatin1String(nome));
        platform::FormRegistry::add(this);
    }
    QStringList chiamate;

    Q_INVOKABLE void RefreshPreventivi(const QString& id) { chiamate << QStringLiteral("P:") + id; }
    Q_INVOKABLE void RefreshFatture(const QString& id) { chiamate << QStringLiteral("F:") + id; }
    Q_INVOKABLE void RefreshPagamenti(const QString& id) { chiamate << QStringLiteral("G:") + id; }
    Q_INVOKABLE void RefreshTrattamenti(const QString& id) { chiamate << QStringLiteral("T:") + id; }
    Q_INVOKABLE void RefreshGraficaPreventivi() { chiamate << QStringLiteral("gP"); }
    Q_INVOKABLE void RefreshGraficaFatture() { chiamate << QStringLiteral("gF"); }
    Q_INVOKABLE void RefreshGraficaPagamenti() { chiamate << QStringLiteral("gG"); }
    Q_INVOKABLE void RefreshGraficaTrattamenti() { chiamate << QStringLiteral("gT"); }
    Q_INVOKABLE void plbRefresh() { chiamate << QStringLiteral("plb"); }
};

class MenuHost : public host::PopupBar {
public:
    void RemoveItem(int command) override { comandi.removeAll(command); }
    void AddItem(int command, const QString&) override { comandi << command; }
    QList<int> comandi{80, 77, 78, 79, 5};
};

class Lista : public clsViewBase {
public:
    qint32 TipoRecord() const override { return 1; }

protected:
    void costruisciColonne(platform::ReportGrid& grid) override {
        grid.addColumn({QStringLiteral("Data"), 80});
        grid.addColumn({QStringLiteral("Progressivo"), 80});
    }
    void riempi(platform::ReportGrid&) override { FAIL() << "no patient is open"; }
};

} // namespace

TEST(ModAggiorna, EachRoutineReachesItsWindowAndNoOther) {
    RefreshTrattamenti(QStringLiteral("1")); // none open: nothing happens
    const struct {
        const char* form;
        std::function<void()> routine;
        const char* chiamata;
    } casi[] = {
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
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.form);
        Finestra sua(caso.form);
        Finestra altra("frmMDIPrimaNotaMagazzino");
        caso.routine();
        EXPECT_EQ(sua.chiamate, QStringList{QLatin1String(caso.chiamata)});
        EXPECT_TRUE(altra.chiamate.isEmpty());
    }
}

TEST(ModComandi, DispatchesByServiceThenByFixedIdAndIgnoresTheRest) {
    ScriptedDialogs dialoghi;
    QStringList eseguiti;
    Comandi comandi([](qint32 id) { return id == 100 ? QStringLiteral("CRVL0301") : QString(); });
    comandi.add(QStringLiteral("CRVL0301"), [&] { eseguiti << QStringLiteral("elenco"); });
    comandi.add(QStringLiteral("CRVL0201"), [&] { eseguiti << QStringLiteral("fatture"); });
    comandi.EseguiComando(0); // before the ribbon is built all fixed ids are 0
    idComandi = {1, 2, 3, 4, 5, 6, 7, 8, 9};

    comandi.EseguiComando(100);
    comandi.EseguiComando(6);
    comandi.EseguiComando(1); // the group and the menu are no commands
    comandi.EseguiComando(4);
    comandi.EseguiComando(12345);
    EXPECT_EQ(eseguiti, (QStringList{QStringLiteral("elenco"), QStringLiteral("fatture")}));
    comandi.EseguiComando(5); // without an action it is grey, and a host that asks all the same hears nothing
    EXPECT_TRUE(dialoghi.messages.isEmpty());

    for (const qint32 id : {2, 8, 3, 9, 7}) {
        SCOPED_TRACE(id);
        comandi.EseguiComando(id);
        EXPECT_EQ(dialoghi.messages.takeLast(), QStringLiteral("Selezionare prima un paziente"));
        EXPECT_EQ(dialoghi.titles.last(), QStringLiteral("Tessara 5000"));
        EXPECT_EQ(dialoghi.values.last(), 64);
    }
    idComandi = {};
}

TEST(ClsViewBase, SetsTheHostsGridUpOnceAndSurvivesIt) {
    ScriptedDialogs dialoghi;
    Lista lista;
    lista.RefreshPannello(); // no grid seen yet
    {
        platform::ReportGrid griglia;
        lista.refreshGrid(&griglia, QStringLiteral("x"));
        lista.RefreshPannello();
        EXPECT_EQ(griglia.columnCount(), 2);
        MenuHost menu;
        lista.Popup(menu, &griglia);
        EXPECT_EQ(menu.comandi, QList<int>{5});
    }
    lista.RefreshPannello(); // the grid has gone with its panel
    QWidget altro;
    lista.refreshGrid(&altro, QString());
    EXPECT_FALSE(lista.Elimina(QStringLiteral("42")));
    EXPECT_EQ(dialoghi.messages, QStringList{QStringLiteral("Cancello 42")});
}

#include "ModComandiTest.moc"
