#include "config/clsConfig.h"
#include "config/clsListaReports.h"
#include "config/modListaReports.h"
#include "platform/FormRegistry.h"
#include "platform/ReportGrid.h"
#include "support/StudioConModulo.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <functional>

namespace {

/// The window of the reports on a running practice, worked as a person does.
class ListaReportsTest : public StudioConModulo {
protected:
    ListaReportsTest() { avvia(); }

    QString aggiungi(const char* cartella, const char* descrizione) {
        host::ItemDati item{
            {}, QString::fromUtf8(cartella), QString::fromUtf8(descrizione), QStringLiteral("<report/>")};
        EXPECT_TRUE(dati().Salva(item, false));
        return item.ID;
    }
    host::Dati& dati() { return oHost->Archivio().Dati(); }

    void apri(const std::function<void(QDialog&, platform::ReportGrid&)>& lavora) {
        bool aperta = false;
        QTimer::singleShot(0, qApp, [&] {
            auto* finestra = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!finestra) return;
            aperta = true;
            lavora(*finestra, *finestra->findChild<platform::ReportGrid*>(QStringLiteral("rcLista")));
            if (finestra->isVisible()) finestra->reject();
        });
        ImpostaReport(lista_);
        EXPECT_TRUE(aperta);
    }
    static int riga(const platform::ReportGrid& griglia, const QString& id) {
        for (int i = 0; i < griglia.rowCount(); ++i)
            if (griglia.rowRecord(i)->tag == id) return i;
        ADD_FAILURE() << "not in the list: " << id.toStdString();
        return 0;
    }
    static void clickDestro(platform::ReportGrid& griglia, const QString& id) {
        QTreeView* vista = griglia.view();
        const QModelIndex cella = vista->model()->index(riga(griglia, id), 0);
        QTest::mouseClick(vista->viewport(), Qt::RightButton, Qt::NoModifier, vista->visualRect(cella).center());
    }
    static QString utilizzi(const platform::ReportGrid& griglia) {
        QStringList righe;
        for (int i = 0; i < griglia.rowCount(); ++i)
            righe << griglia.rowRecord(i)->cell(0).value + u'=' + griglia.rowRecord(i)->cell(1).value;
        return righe.join(u';');
    }

    clsListaReports lista_;
};

const QString FATTURA = QStringLiteral("{54D96C47-35BA-45AE-AE9B-245B0B7D02E3}");

} // namespace

TEST_F(ListaReportsTest, AssignsReportsToEstimatesAndInvoices) {
    const QString nostra = aggiungi("Certificati/ODONTOIATRIA studio", "D'Angelo 100%");
    aggiungi("Certificati/Medicina", "Certificato di malattia");
    aggiungi("Lettere/Odontoiatria", "Lettera");
    oConfig->setPreventReportID(QString());
    oConfig->setFatturaReportID(FATTURA);
    dialoghi_.choice = QStringLiteral("Imposta come preventivo");
    apri([&](QDialog& finestra, platform::ReportGrid& griglia) {
        EXPECT_EQ(finestra.windowTitle(), QStringLiteral("Elenco Reports. Tessara 5000. CORVALA"));
        EXPECT_EQ(platform::FormRegistry::find(QStringLiteral("frmListaReports")), &finestra);
        EXPECT_EQ(utilizzi(griglia),
                  QStringLiteral("D'Angelo 100%=;Fattura=Fattura;Preventivo=;Riepilogo fatture emesse="));
        clickDestro(griglia, nostra);
        EXPECT_EQ(dialoghi_.menu,
                  (QStringList{QStringLiteral("Imposta come preventivo"), QStringLiteral("Imposta come fattura")}));
        EXPECT_EQ(oConfig->PreventReportID(), nostra);
        EXPECT_TRUE(utilizzi(griglia).startsWith(QStringLiteral("D'Angelo 100%=Preventivo;Fattura=Fattura")));
        dialoghi_.choice = QStringLiteral("Imposta come fattura");
        clickDestro(griglia, nostra);
        EXPECT_TRUE(utilizzi(griglia).startsWith(QStringLiteral("D'Angelo 100%=Preventivo, Fattura;Fattura=;")))
            << "one report may serve both";
        clickDestro(griglia, FATTURA);
        // By keyboard, on the row that has the focus; a dismissed menu changes nothing.
        griglia.setFocusedRecord(griglia.rowRecord(riga(griglia, nostra)));
        dialoghi_.choice = QStringLiteral("nessuna");
        QTest::keyClick(griglia.view(), Qt::Key_Return);
        EXPECT_EQ(oConfig->FatturaReportID(), FATTURA);
        EXPECT_TRUE(finestra.isVisible());
        QTest::keyClick(&finestra, Qt::Key_Escape);
        EXPECT_FALSE(finestra.isVisible());
    });
    EXPECT_TRUE(dialoghi_.messages.isEmpty());
    QFile file(cartellaModulo() + QStringLiteral("/Config.xml"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains(nostra.toUtf8())) << "not written through";
}

TEST_F(ListaReportsTest, TellsOfTheListInMemory) {
    apri([](QDialog&, platform::ReportGrid& griglia) { EXPECT_EQ(griglia.rowCount(), 3); });
    EXPECT_TRUE(dialoghi_.messages.isEmpty());
    aggiungi("Certificati/Odontoiatria", "Nuova");
    apri([](QDialog& finestra, platform::ReportGrid& griglia) {
        EXPECT_EQ(griglia.rowCount(), 3) << "an older list is what the message tells of";
        QTest::mouseClick(finestra.findChild<QWidget*>(QStringLiteral("cbChiudi")), Qt::LeftButton);
        EXPECT_FALSE(finestra.isVisible());
    });
    EXPECT_EQ(dialoghi_.messages, QStringList{QStringLiteral("Lista in memoria")});
    EXPECT_EQ(dialoghi_.values, QList<int>{64});
}

TEST_F(ListaReportsTest, SaysWhereReportsBelongWhenThereAreNone) {
    for (const host::ItemDati& item : dati().Lista(QStringLiteral("Certificati"), true))
        ASSERT_TRUE(dati().Elimina(item.ID));
    ImpostaReport(lista_);
    ASSERT_EQ(dialoghi_.messages.size(), 1);
    EXPECT_EQ(dialoghi_.messages[0], QStringLiteral("Non recuperata alcuna informazione utile!\r\nControllare che "
                                                    "esista una cartella certificati 'Odontoiatria'"));
    EXPECT_EQ(dialoghi_.values, QList<int>{48});
    EXPECT_EQ(dialoghi_.titles, QStringList{QStringLiteral("Tessara 5000. CORVALA")});
}
