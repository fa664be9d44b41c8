#include "config/ReportList.h"
#include "config/clsConfig.h"
#include "config/modListaReports.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"
#include "support/ModuleFixture.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <functional>

namespace {

/// The window of the reports on a running practice, worked as a person does.
class ReportListTest : public ModuleFixture {
protected:
    ReportListTest() { start(); }

    QString add(const char* folder, const char* description) {
        host::ItemDati item{{}, QString::fromUtf8(folder), QString::fromUtf8(description), QStringLiteral("<report/>")};
        EXPECT_TRUE(freeData().Salva(item, false));
        return item.ID;
    }
    host::Dati& freeData() { return oHost->Archivio().Dati(); }

    void open(const std::function<void(QDialog&, platform::ReportGrid&)>& work) {
        bool isOpen = false;
        QTimer::singleShot(0, qApp, [&] {
            auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!window) return;
            isOpen = true;
            work(*window, *window->findChild<platform::ReportGrid*>(QStringLiteral("rcLista")));
            if (window->isVisible()) window->reject();
        });
        assignReports(list_);
        EXPECT_TRUE(isOpen);
    }
    static int row(const platform::ReportGrid& grid, const QString& id) {
        for (int i = 0; i < grid.rowCount(); ++i)
            if (grid.rowRecord(i)->tag == id) return i;
        ADD_FAILURE() << "not in the list: " << id.toStdString();
        return 0;
    }
    static void rightClick(platform::ReportGrid& grid, const QString& id) {
        QTreeView* view = grid.view();
        const QModelIndex cell = view->model()->index(row(grid, id), 0);
        QTest::mouseClick(view->viewport(), Qt::RightButton, Qt::NoModifier, view->visualRect(cell).center());
    }
    static QString uses(const platform::ReportGrid& grid) {
        QStringList rows;
        for (int i = 0; i < grid.rowCount(); ++i)
            rows << grid.rowRecord(i)->cell(0).value + u'=' + grid.rowRecord(i)->cell(1).value;
        return rows.join(u';');
    }

    ReportList list_;
};

const QString INVOICE = QStringLiteral("{54D96C47-35BA-45AE-AE9B-245B0B7D02E3}");

} // namespace

TEST_F(ReportListTest, AssignsReportsToEstimatesAndInvoices) {
    const QString ours = add("Certificati/ODONTOIATRIA studio", "D'Angelo 100%");
    add("Certificati/Medicina", "Certificato di malattia");
    add("Lettere/Odontoiatria", "Lettera");
    oConfig->setPreventReportID(QString());
    oConfig->setFatturaReportID(INVOICE);
    dialogs_.choice = QStringLiteral("Imposta come preventivo");
    open([&](QDialog& window, platform::ReportGrid& grid) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Elenco Reports. Tessara 5000. CORVALA"));
        EXPECT_EQ(platform::FormRegistry::find(QStringLiteral("frmListaReports")), &window);
        EXPECT_EQ(uses(grid), QStringLiteral("D'Angelo 100%=;Fattura=Fattura;Preventivo=;Riepilogo fatture emesse="));
        rightClick(grid, ours);
        EXPECT_EQ(dialogs_.menu,
                  (QStringList{QStringLiteral("Imposta come preventivo"), QStringLiteral("Imposta come fattura")}));
        EXPECT_EQ(oConfig->PreventReportID(), ours);
        EXPECT_TRUE(uses(grid).startsWith(QStringLiteral("D'Angelo 100%=Preventivo;Fattura=Fattura")));
        dialogs_.choice = QStringLiteral("Imposta come fattura");
        rightClick(grid, ours);
        EXPECT_TRUE(uses(grid).startsWith(QStringLiteral("D'Angelo 100%=Preventivo, Fattura;Fattura=;")))
            << "one report may serve both";
        rightClick(grid, INVOICE);
        // By keyboard, on the row that has the focus; a dismissed menu changes nothing.
        grid.setFocusedRecord(grid.rowRecord(row(grid, ours)));
        dialogs_.choice = QStringLiteral("nessuna");
        QTest::keyClick(grid.view(), Qt::Key_Return);
        EXPECT_EQ(oConfig->FatturaReportID(), INVOICE);
        EXPECT_TRUE(window.isVisible());
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_TRUE(dialogs_.messages.isEmpty());
    QFile file(moduleFolder() + QStringLiteral("/Config.xml"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains(ours.toUtf8())) << "not written through";
}

TEST_F(ReportListTest, TellsOfTheListInMemory) {
    open([](QDialog&, platform::ReportGrid& grid) { EXPECT_EQ(grid.rowCount(), 3); });
    EXPECT_TRUE(dialogs_.messages.isEmpty());
    add("Certificati/Odontoiatria", "Nuova");
    open([](QDialog& window, platform::ReportGrid& grid) {
        EXPECT_EQ(grid.rowCount(), 3) << "an older list is what the message tells of";
        QTest::mouseClick(window.findChild<QWidget*>(QStringLiteral("cbChiudi")), Qt::LeftButton);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(dialogs_.messages, QStringList{QStringLiteral("Lista in memoria")});
    EXPECT_EQ(dialogs_.values, QList<int>{64});
}

TEST_F(ReportListTest, SaysWhereReportsBelongWhenThereAreNone) {
    for (const host::ItemDati& item : freeData().Lista(QStringLiteral("Certificati"), true))
        ASSERT_TRUE(freeData().Elimina(item.ID));
    assignReports(list_);
    ASSERT_EQ(dialogs_.messages.size(), 1);
    EXPECT_EQ(dialogs_.messages[0], QStringLiteral("Non recuperata alcuna informazione utile!\r\nControllare che "
                                                   "esista una cartella certificati 'Odontoiatria'"));
    EXPECT_EQ(dialogs_.values, QList<int>{48});
    EXPECT_EQ(dialogs_.titles, QStringList{QStringLiteral("Tessara 5000. CORVALA")});
}
