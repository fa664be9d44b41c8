// What can go wrong under the editor of a plan: bad records, other workstations, the database.
#include "EditorDiProva.h"
#include "catalogues/clsServizi.h"
#include "treatments/PannelloDenti.h"
#include "treatments/frmMDITrattamenti.h"
#include "treatments/modTrattamenti.h"

#include <QApplication>
#include <stdexcept>
#include <utility>

namespace {

const QString DOMANDA = QStringLiteral("Attenzione! Salvataggio non a buon fine! Vuoi rivedere i dati?");

class Guasti : public EditorDiProva {
protected:
    void esegui(const QString& sql) {
        if (!archivio_.onServer()) {
            QSqlDatabase altra = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("altra"));
            altra.setDatabaseName(archivio_.path());
            ASSERT_TRUE(altra.open());
            QSqlQuery comando(altra);
            EXPECT_TRUE(comando.exec(sql)) << comando.lastError().text().toStdString();
        }
        QSqlDatabase::removeDatabase(QStringLiteral("altra"));
    }
    /// A plan whose stored rows bear the same number twice.
    clsItemTrattamento pianoDoppio(const char* numero) {
        const clsItemTrattamento item = salvato(QStringLiteral("2026"), QLatin1String(numero));
        const QString memo =
            QStringLiteral("<trattamento anno=\"2026\" progressivo=\"%1\" data=\"10/03/2026\"><righi>"
                           "<rigo progressivo=\"01\" inizioLavori=\"01/02/2026\"/><rigo progressivo=\"01\"/></righi>"
                           "<descrizione>RG9wcGlv</descrizione></trattamento>")
                .arg(QLatin1String(numero));
        QString id = item.ID;
        EXPECT_TRUE(paziente().corvala().Salva(
            id, {item.Data, unisciIdrif1(item), item.descrizione, QStringLiteral("TRT"), memo}));
        trattamenti().Refresh();
        return item;
    }
};

} // namespace

TEST_F(Guasti, OneBadPlanHidesNoOther) {
    salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    const clsItemTrattamento doppio = pianoDoppio("0002");
    salvato(QStringLiteral("2026"), QStringLiteral("0003"));
    trattamenti().Refresh();
    ASSERT_EQ(trattamenti().Lista().size(), 3U);
    const clsItemTrattamento* letto = trattamenti().Lista().find(doppio.ID);
    ASSERT_NE(letto, nullptr);
    EXPECT_EQ(letto->descrizione, QStringLiteral("Doppio"));
    EXPECT_EQ(letto->lavoriaperti, 1);
    EXPECT_EQ(ContaTrattamentiAperti(), 1);
    platform::ReportGrid griglia;
    vista().refreshGrid(&griglia, doppio.ID);
    EXPECT_EQ(griglia.rowCount(), 3);
    EXPECT_EQ(griglia.focusedRecord()->tag, doppio.ID);
    frmMDITrattamenti elenco;
    EXPECT_EQ(elenco.findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti"))->rowCount(), 3);
    EXPECT_TRUE(dialoghi_.messaggi.isEmpty());
    EXPECT_THROW(trattamenti().Carica(doppio.ID), platform::DuplicateKey);
}

TEST_F(Guasti, TellsTheDoubledNumberAndLeavesTheRecordAsItWas) {
    const clsItemTrattamento doppio = pianoDoppio("0002");
    const QString prima = riga(QStringLiteral("2026-0002"))->m1;
    apri(doppio.ID);
    ASSERT_EQ(dialoghi_.messaggi.size(), 1);
    EXPECT_TRUE(dialoghi_.messaggi[0].startsWith(QStringLiteral("Attenzione! Riscontrati errori in lettura")));
    EXPECT_TRUE(dialoghi_.messaggi[0].contains(QStringLiteral("01"))) << dialoghi_.messaggi[0].toStdString();
    EXPECT_FALSE(trova<QPushButton>(QStringLiteral("cbConferma"))->isEnabled());
    premi(QStringLiteral("cbAnnulla"));
    EXPECT_FALSE(finestra_->isVisible());
    platform::ReportGrid griglia;
    vista().refreshGrid(&griglia, doppio.ID);
    vista().PopupExecute(10079, &griglia); // deletes
    ASSERT_EQ(dialoghi_.messaggi.size(), 2) << "the panel says nothing";
    EXPECT_EQ(dialoghi_.messaggi[1], dialoghi_.messaggi[0]);
    EXPECT_EQ(griglia.rowCount(), 1);
    EXPECT_EQ(riga(QStringLiteral("2026-0002"))->m1, prima);
}

TEST_F(Guasti, AsksWhatToDoWithAPlanThatAnotherWorkstationDeleted) {
    const clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    apri(item.ID);
    QTest::keyClicks(dato(2), QStringLiteral(" corretto"));
    ASSERT_TRUE(paziente().corvala().Elimina(item.ID));
    dialoghi_.risposta = platform::Answer::Yes;
    conferma();
    EXPECT_EQ(dialoghi_.messaggi, QStringList{DOMANDA});
    EXPECT_EQ(dialoghi_.valori, QList<int>{platform::MB_QUESTION});
    EXPECT_TRUE(finestra_->isVisible());
    EXPECT_EQ(dato(2)->text(), QStringLiteral("Piano 0001 corretto"));
    dialoghi_.risposta = platform::Answer::No;
    conferma();
    EXPECT_FALSE(finestra_->isVisible());
    EXPECT_TRUE(oHost->Framework().DialogCancel());
    EXPECT_FALSE(riga(QStringLiteral("2026-0001")));
}

TEST_F(Guasti, SavesAtTheSecondTryOnceTheDatabaseIsBack) {
    if (archivio_.onServer()) GTEST_SKIP() << "renames a table of the file";
    const clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    for (const bool nuovo : {false, true}) {
        SCOPED_TRACE(nuovo);
        dialoghi_.messaggi.clear();
        apri(nuovo ? QString() : item.ID);
        QTest::keyClicks(dato(2), QStringLiteral(" corretto"));
        dialoghi_.risposta = platform::Answer::Yes;
        esegui(QStringLiteral("alter table tblWorkspace rename to altrove"));
        conferma();
        esegui(QStringLiteral("alter table altrove rename to tblWorkspace"));
        ASSERT_FALSE(dialoghi_.messaggi.isEmpty());
        EXPECT_EQ(dialoghi_.messaggi[0], DOMANDA); // the desk may tell of the database on its own after it
        EXPECT_TRUE(finestra_->isVisible());
        conferma();
        EXPECT_FALSE(finestra_->isVisible());
        EXPECT_FALSE(oHost->Framework().DialogCancel());
        EXPECT_EQ(riga(nuovo ? QStringLiteral("2026-0002") : QStringLiteral("2026-0001"))->descrizione,
                  nuovo ? QStringLiteral(" corretto") : QStringLiteral("Piano 0001 corretto"));
    }
}

TEST_F(Guasti, ShowsThePlanBehindARowThatCouldNotBeSaved) {
    if (archivio_.onServer()) GTEST_SKIP() << "renames a table of the file";
    clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    item.righi.add(QStringLiteral("01"), {});
    item.righi[0].progressivo = QStringLiteral("01");
    ASSERT_TRUE(trattamenti().Salva(item));
    sIDTrattamento = item.ID;
    sRigoTrattamento = QStringLiteral("01");
    dialoghi_.risposta = platform::Answer::Yes; // look the data over again
    frmEditTrattamento piano;
    QTimer::singleShot(30, [&] {
        QWidget* rigo = QApplication::activeModalWidget();
        ASSERT_NE(rigo, nullptr);
        rigo->findChild<QLineEdit*>(QStringLiteral("tbDati(2)"))->setText(QStringLiteral("Non va perso"));
        esegui(QStringLiteral("alter table tblWorkspace rename to altrove"));
        QTimer::singleShot(30, [&] {
            esegui(QStringLiteral("alter table altrove rename to tblWorkspace"));
            EXPECT_EQ(QApplication::activeModalWidget(), &piano);
            piano.findChild<QPushButton*>(QStringLiteral("cbConferma"))->click();
        });
        rigo->findChild<QPushButton*>(QStringLiteral("cbAccetta"))->click();
    });
    EXPECT_EQ(piano.exec(), QDialog::Accepted);
    EXPECT_EQ(dialoghi_.messaggi.value(0), DOMANDA);
    EXPECT_EQ(trattamenti().Carica(item.ID)->righi[0].descrizione, QStringLiteral("Non va perso"));

    // A row that another workstation has deleted meanwhile: the plan opens as always.
    sIDTrattamento = item.ID;
    sRigoTrattamento = QStringLiteral("07");
    frmEditTrattamento altro;
    QTimer::singleShot(30, [&altro] {
        EXPECT_TRUE(altro.isVisible());
        altro.reject();
    });
    altro.exec();
}

TEST_F(Guasti, OpensAndSavesAPlanOfUnknownThings) {
    clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    const struct {
        const char *dente, *denti;
    } casi[] = {{"99", ""}, {"-1", ""}, {"boh", ""}, {"+", "7;77;boh;8"}, {"+", ""}, {"7", ""}};
    for (const auto& caso : casi) {
        clsItemRigoTrattamento rigo;
        rigo.progressivo = rigogriglia::numeroRigo(static_cast<int>(item.righi.size()) + 1);
        rigo.servizio = QStringLiteral("MAI_VISTO");
        rigo.dente = QLatin1String(caso.dente);
        rigo.denti = QLatin1String(caso.denti);
        rigo.inizio = QStringLiteral("31/02/2026");
        rigo.statuslavori = QStringLiteral("Prova|boh|boh\r\n||");
        item.righi.add(rigo.progressivo, rigo);
    }
    item.SituazioneOrale = QStringLiteral("7:55:sconosciuta;200:1:;boh;:::;3:2:nota");
    ASSERT_TRUE(trattamenti().Salva(item));
    apri(item.ID);
    ASSERT_EQ(righi()->rowCount(), 6);
    scegliRiga(3);
    conferma();
    EXPECT_TRUE(dialoghi_.messaggi.isEmpty()) << dialoghi_.messaggi.value(0).toStdString();
    EXPECT_FALSE(finestra_->isVisible());
    const auto riletto = trattamenti().Carica(item.ID);
    ASSERT_TRUE(riletto);
    ASSERT_EQ(riletto->righi.size(), 6U);
    for (std::size_t i = 0; i < riletto->righi.size(); ++i) {
        EXPECT_EQ(riletto->righi[i].servizio, QStringLiteral("MAI_VISTO")) << i;
        EXPECT_EQ(riletto->righi[i].statuslavori, item.righi[i].statuslavori) << i;
        EXPECT_EQ(riletto->righi[i].inizio, QStringLiteral("31/02/2026")) << i;
    }
    for (const std::size_t senza : {0U, 1U, 2U})
        EXPECT_EQ(riletto->righi[senza].dente, QString()) << senza;
    EXPECT_EQ(riletto->righi[3].denti, QStringLiteral("7;-1;-1;8")); // the row's price still counts four teeth
    EXPECT_EQ(riletto->righi[5].dente, QStringLiteral("7"));
    EXPECT_EQ(riletto->SituazioneOrale, QStringLiteral("3:2:nota;7:55:sconosciuta"));
}

TEST_F(Guasti, WorksInAPlanOfTwoThousandRows) {
    clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    for (int numero = 1; numero <= 2000; ++numero) {
        clsItemRigoTrattamento rigo;
        rigo.progressivo = rigogriglia::numeroRigo(numero);
        rigo.servizio = QStringLiteral("VISITA");
        rigo.descrizione = QString::number(numero);
        rigo.dente = QString::number(numero % 52);
        item.righi.add(rigo.progressivo, rigo);
    }
    ASSERT_TRUE(trattamenti().Salva(item));
    apri(item.ID);
    ASSERT_EQ(righi()->rowCount(), 2000);
    scrivi(1999, rigogriglia::INIZIO, QStringLiteral("01/03/2026"));
    scegliRiga(1999);
    tasto(Qt::Key_Up, Qt::ControlModifier | Qt::AltModifier);
    scegliRiga(0);
    premi(QStringLiteral("cbRighi(2)"));
    nuovoRigo(QStringLiteral("CORONA"));
    conferma();
    EXPECT_FALSE(finestra_->isVisible());
    const auto riletto = trattamenti().Carica(item.ID);
    ASSERT_TRUE(riletto);
    ASSERT_EQ(riletto->righi.size(), 2000U);
    EXPECT_EQ(riletto->righi[0].descrizione, QStringLiteral("2"));
    EXPECT_EQ(riletto->righi[1997].descrizione, QStringLiteral("2000"));
    EXPECT_EQ(riletto->righi[1997].progressivo, QStringLiteral("1998"));
    EXPECT_EQ(riletto->righi[1997].inizio, QStringLiteral("01/03/2026"));
    EXPECT_EQ(riletto->righi[1999].servizio, QStringLiteral("CORONA"));
}

TEST_F(Guasti, TellsInWhichPhaseTheChartFailedAndGoesOn) {
    oConfig->setEvidenziaBreve(true);
    // The catalogue of services falls away as when the share of its folder goes.
    clsServizi senzaCartella([]() -> QString { throw std::runtime_error("cartella sparita"); });
    clsServizi* precedente = std::exchange(oServizi, &senzaCartella);
    PannelloDenti pannello;
    pannello.aggiorna({{QStringLiteral("4.6"), QString(), QStringLiteral("IMPIANTO"), QStringLiteral("Impianto"),
                        QStringLiteral("01/03/2026"), QString()}});
    oServizi = precedente;
    EXPECT_EQ(dialoghi_.messaggi,
              QStringList{QStringLiteral("Errori inattesi (sistemazione icone servizi)!\r\n - fase: step 5.c\r\n"
                                         " - errore: cartella sparita")});
    EXPECT_EQ(dialoghi_.valori, QList<int>{platform::MB_WARNING});
    EXPECT_EQ(dialoghi_.titoli, QStringList{QStringLiteral("Tessara 5000. CORVALA")});
    // What was done before stands, and so do the marks, which are a pass of their own.
    EXPECT_EQ(pannello.dente(IndiceDaDente(QStringLiteral("4.6"))).strati[0].servizio, QStringLiteral("IMPIANTO"));
    EXPECT_EQ(pannello.dente(IndiceDaDente(QStringLiteral("4.6"))).stato, StatoDente::Aperto);
}

TEST_F(Guasti, TheListOfThePracticeComesBackWithTheDatabase) {
    if (archivio_.onServer()) GTEST_SKIP() << "renames a table of the file";
    salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    frmMDITrattamenti elenco;
    elenco.show();
    const auto* griglia = elenco.findChild<platform::ReportGrid*>(QStringLiteral("rcTrattamenti"));
    auto* filtra = elenco.findChild<QPushButton*>(QStringLiteral("cbFiltra"));
    for (const char* tabella : {"tblWorkspace", "tblPazienti"}) {
        SCOPED_TRACE(tabella);
        ASSERT_EQ(griglia->rowCount(), 1);
        esegui(QStringLiteral("alter table %1 rename to altrove").arg(QLatin1String(tabella)));
        QTest::mouseClick(filtra, Qt::LeftButton);
        EXPECT_FALSE(elenco.findChild<QWidget*>(QStringLiteral("pbAttesa"))->isVisible());
        esegui(QStringLiteral("alter table altrove rename to %1").arg(QLatin1String(tabella)));
        QTest::mouseClick(filtra, Qt::LeftButton);
        EXPECT_EQ(griglia->rowCount(), 1);
    }
}
