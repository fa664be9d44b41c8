#include "EditorDiProva.h"
#include "FinestraModale.h"
#include "chart/ToothChart.h"
#include "treatments/MemoTrattamento.h"
#include "treatments/modSituazioneDente.h"

#include <QComboBox>
#include <QLabel>

using platform::ReportGrid;
using platform::form::arrayName;
using namespace rigogriglia;

namespace {

template <class T>
T* in(QWidget& finestra, const char* nome) {
    T* trovato = finestra.findChild<T*>(QLatin1String(nome));
    EXPECT_NE(trovato, nullptr) << nome;
    return trovato;
}

QStringList testi(const ReportGrid& griglia) {
    QStringList righe;
    for (int riga = 0; riga < griglia.rowCount(); ++riga) {
        QStringList celle;
        for (int colonna = 0; colonna < griglia.columnCount(); ++colonna)
            celle << griglia.rowRecord(riga)->cell(colonna).value;
        righe << celle.join(u'|');
    }
    return righe;
}

class Dente : public EditorDiProva {
protected:
    static clsItemRigoTrattamento rigo(const char* numero, const char* servizio, const char* dente,
                                       const char* denti = "") {
        clsItemRigoTrattamento rigo;
        rigo.progressivo = QLatin1String(numero);
        rigo.servizio = QLatin1String(servizio);
        rigo.descrizione = QLatin1String("Lavoro ") + QLatin1String(numero);
        rigo.dente = QLatin1String(dente);
        rigo.denti = QLatin1String(denti);
        return rigo;
    }
    clsItemTrattamento piano(const char* numero, const QList<clsItemRigoTrattamento>& righi,
                             const char* situazione = "") {
        clsItemTrattamento item = salvato(QStringLiteral("2026"), QLatin1String(numero));
        item.SituazioneOrale = QLatin1String(situazione);
        for (const clsItemRigoTrattamento& rigo : righi)
            item.righi.add(rigo.progressivo, rigo);
        EXPECT_TRUE(trattamenti().Salva(item));
        trattamenti().Refresh();
        return item;
    }
    /// "Informazioni" in the menu of a tooth.
    void informazioni(int indice, std::function<void(QWidget&)> lavoro) {
        const FinestraModale attesa("frmEditDente", std::move(lavoro));
        dialoghi_.choice = QStringLiteral("Informazioni");
        QTest::mouseClick(trova<QWidget>(arrayName("imTooth", indice)), Qt::RightButton);
    }
    QString situazioneSalvata(const char* numero) {
        clsItemTrattamento item;
        leggiMemoTrattamento(item, riga(QLatin1String(numero))->m1);
        return item.SituazioneOrale;
    }
};

} // namespace

TEST_F(Dente, TakesSituationAndTextWithoutTearingItsNeighboursApart) {
    apri(piano("0001", {}, "6:2:dolente;8:3:").ID);
    informazioni(7, [](QWidget& finestra) {
        EXPECT_EQ(in<QLabel>(finestra, "laDente(0)")->text(), QStringLiteral("1.1"));
        auto* situazione = in<QComboBox>(finestra, "cbSituazione");
        EXPECT_EQ(situazione->currentIndex(), -1);
        EXPECT_EQ(situazione->count(), int(colSituazioniDenti->size()));
        EXPECT_TRUE(in<QLineEdit>(finestra, "tbDati")->text().isEmpty());
        situazione->setCurrentIndex(situazione->findData(QStringLiteral("4")));
        in<QLineEdit>(finestra, "tbDati")->setText(QStringLiteral("alle 10:30; 9:1:no"));
        in<QPushButton>(finestra, "cbConferma")->click();
    });
    EXPECT_EQ(trova<QWidget>(arrayName("imTooth", 7))->toolTip(), QStringLiteral("alle 10:30, 9:1:no"));
    conferma();
    EXPECT_EQ(situazioneSalvata("2026-0001"), QStringLiteral("6:2:dolente;7:4:alle 10:30, 9:1:no;8:3:"));
}

TEST_F(Dente, KeepsWhatItHasWhenTheWindowIsCancelledAndLosesAllWhenEmptied) {
    apri(piano("0001", {}, "7:3:a:b").ID);
    informazioni(7, [](QWidget& finestra) {
        EXPECT_EQ(in<QComboBox>(finestra, "cbSituazione")->currentData().toString(), QStringLiteral("3"));
        EXPECT_EQ(in<QLineEdit>(finestra, "tbDati")->text(), QStringLiteral("a:b")); // as another program wrote it
        in<QLineEdit>(finestra, "tbDati")->setText(QStringLiteral("altro"));
        in<QPushButton>(finestra, "cbAnnulla")->click();
    });
    EXPECT_EQ(trova<QWidget>(arrayName("imTooth", 7))->property("tag").toString(), QStringLiteral("7:3:a:b"));
    informazioni(7, [](QWidget& finestra) {
        in<QPushButton>(finestra, "cbNessuna")->click();
        in<QLineEdit>(finestra, "tbDati")->clear();
        in<QPushButton>(finestra, "cbConferma")->click();
    });
    EXPECT_EQ(trova<QWidget>(arrayName("imTooth", 7))->property("tag").toString(), QString());
    conferma();
    EXPECT_EQ(situazioneSalvata("2026-0001"), QString());
}

TEST_F(Dente, ShowsWhatThePlansDidToIt) {
    piano("0001", {rigo("01", "VISITA", "7"), rigo("02", "CORONA", "+", "7;8"), rigo("03", "IGIENE", "8")},
          "8:3:;7:2:dolente:molto");
    piano("0002", {rigo("01", "VISITA", "17"), rigo("02", "CORONA", "+", "17;70")});
    const clsItemTrattamento ultimo = piano("0003", {rigo("01", "IGIENE", "7")}, "7:77:ignota");
    apri(ultimo.ID);
    informazioni(7, [](QWidget& finestra) {
        auto* piani = in<ReportGrid>(finestra, "rcTrattamenti");
        auto* lavori = in<ReportGrid>(finestra, "rcRighi");
        EXPECT_EQ(testi(*piani), (QStringList{QStringLiteral("2026-0001|10/03/2026|Cariato|dolente:molto"),
                                              QStringLiteral("2026-0003|10/03/2026||ignota")}));
        EXPECT_EQ(piani->focusedRecord(), piani->rowRecord(1)); // the plan that is open
        EXPECT_EQ(testi(*lavori), QStringList{QStringLiteral("IGIENE|Lavoro 01")});
        EXPECT_EQ(in<QComboBox>(finestra, "cbSituazione")->currentIndex(), -1);
        piani->setFocusedRecord(piani->rowRecord(0));
        EXPECT_EQ(testi(*lavori),
                  (QStringList{QStringLiteral("VISITA|Lavoro 01"), QStringLiteral("CORONA|Lavoro 02")}));
    });
    informazioni(30, [](QWidget& finestra) { EXPECT_EQ(in<ReportGrid>(finestra, "rcTrattamenti")->rowCount(), 0); });
}

TEST_F(Dente, ZoomsTheRowsAndMarksTheirTeethBehind) {
    apri(piano("0001", {rigo("01", "VISITA", "20"), rigo("02", "CORONA", "+", "7;6")}).ID);
    const FinestraModale attesa("frmZoomRighiTrattamento", [this](QWidget& zoom) {
        EXPECT_EQ(in<QLabel>(zoom, "laTitoloForm")->text(), QStringLiteral("TRATTAMENTO 2026-0001"));
        auto* griglia = in<ReportGrid>(zoom, "rcRighi");
        ASSERT_EQ(griglia->rowCount(), 2);
        for (int cella = NUMERO; cella <= NOTE; ++cella) {
            EXPECT_EQ(griglia->rowRecord(1)->cell(cella).value, righi()->rowRecord(1)->cell(cella).value) << cella;
            EXPECT_EQ(griglia->rowRecord(1)->cell(cella).tag, righi()->rowRecord(1)->cell(cella).tag) << cella;
        }
        const auto segnati = [this] {
            QStringList denti;
            const auto* tavola = finestra_->findChild<ToothChart*>();
            for (int indice = 0; indice < NUMERO_DENTI; ++indice)
                if (tavola->isMarked(indice)) denti << DenteDaIndice(indice);
            return denti.join(u' ');
        };
        griglia->setFocusedRecord(griglia->rowRecord(0));
        EXPECT_EQ(segnati(), DenteDaIndice(20));
        griglia->setFocusedRecord(griglia->rowRecord(1));
        EXPECT_EQ(segnati(), QStringLiteral("1.2 1.1"));
        griglia->rowRecord(1)->cell(DESCRIZIONE).value = QStringLiteral("cambiata");
        griglia->rowRecord(1)->cell(DESCRIZIONE).setBackground(Qt::blue);
        QTest::mouseClick(in<QPushButton>(zoom, "cbChiudi"), Qt::LeftButton);
    });
    premi(arrayName("cbRighi", 3));
    QTest::qWait(60);
    EXPECT_EQ(cella(1, DESCRIZIONE), QStringLiteral("Lavoro 02"));
    EXPECT_NE(righi()->rowRecord(1)->cell(DESCRIZIONE).style().background, QColor(Qt::blue));
}
