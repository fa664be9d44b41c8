// What can go wrong under the editor of a plan: bad records, other workstations, the database.
#include "EditorDiProva.h"
#include "catalogues/clsServizi.h"
#include "treatments/PannelloDenti.h"
#include "treatments/frmMDITrattamenti.h"
#include "treatments/modTrattamenti.h"

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
