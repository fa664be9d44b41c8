// What people type into the cells of the rows: it is stored, or the cell says that it is not; and nothing takes it
// away.
#include "EditorDiProva.h"
#include "FinestraModale.h"
#include "catalogues/modServizi.h"
#include "chart/ToothChart.h"
#include "treatments/MemoTrattamento.h"
#include "treatments/RigheTrattamento.h"
#include "treatments/TotaliRighi.h"

#include <QApplication>

using platform::Notice;
using platform::form::arrayName;
using namespace rigogriglia;

namespace {

class CelleRighi : public EditorDiProva {
protected:
    const platform::ReportCellStyle& aspetto(int riga, int colonna) {
        return righi()->rowRecord(riga)->cell(colonna).style();
    }
    QString prezzo(int riga) { return righi()->rowRecord(riga)->cell(FATTURA).tag; }
    QString totale(int indice) { return trova<QLineEdit>(arrayName("tbTotale", indice))->text(); }
    QStringList disegnati() {
        QStringList denti;
        for (int indice = 0; indice < NUMERO_DENTI; ++indice) {
            if (!trova<QWidget>(arrayName("imTrt01", indice))->property("tag").toString().isEmpty())
                denti << DenteDaIndice(indice);
        }
        return denti;
    }
    clsItemTrattamento memorizzato() {
        clsItemTrattamento item;
        const auto scritta = riga(QStringLiteral("2026-0001"));
        EXPECT_TRUE(scritta);
        if (scritta) leggiMemoTrattamento(item, scritta->m1);
        return item;
    }
    /// Types into the cell and leaves the edit open; the field that has the keyboard.
    QWidget* comincia(int riga, int colonna, const char* testo) {
        finestra_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(finestra_.get()));
        righi()->editCell(righi()->rowRecord(riga), colonna);
        QWidget* campo = QApplication::focusWidget();
        QTest::keyClicks(campo, QLatin1String(testo));
        EXPECT_TRUE(righi()->isEditing());
        return campo;
    }
};

clsItemRigoTrattamento rigo(const char* servizio, const char* dente, const char* inizio = "", const char* fine = "") {
    clsItemRigoTrattamento rigo;
    rigo.servizio = QLatin1String(servizio);
    rigo.dente = QLatin1String(dente);
    rigo.inizio = QLatin1String(inizio);
    rigo.fine = QLatin1String(fine);
    rigo.prezzo = 10;
    return rigo;
}

} // namespace

TEST_F(CelleRighi, ReadTheTeethOrSayThatTheyAreNotStored) {
    const struct {
        const char *scritto, *cella, *suggerimento;
        const char *dente, *denti; ///< As the memo keeps them.
        const char* disegno;
    } casi[] = {
        {"16", "1.6", "", "2", "", "1.6"},
        {"1,6", "1.6", "", "2", "", "1.6"},
        {"1-6", "1.6", "", "2", "", "1.6"},
        {"1.6 2.6", "+", "Denti 1.6, 2.6", "+", "2;13", "1.6 2.6"},
        {"1.6;2.6", "+", "Denti 1.6, 2.6", "+", "2;13", "1.6 2.6"},
        {"1.6;9.9", "1.6;9.9", "Non è un dente: non verrà memorizzato", "", "", ""},
        {"1.9", "1.9", "Non è un dente: non verrà memorizzato", "", "", ""},
        {"sesto", "sesto", "Non è un dente: non verrà memorizzato", "", "", ""},
        {"+1.1;9.9", "+", "Denti 1.1, 9.9\nNon è un dente e non verrà memorizzato: 9.9", "+", "7;-1", "1.1"},
    };
    apri(QString());
    nuovoRigo(QStringLiteral("CORONA"));
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.scritto);
        scrivi(0, DENTE, QString::fromUtf8(caso.scritto));
        EXPECT_EQ(cella(0, DENTE), QLatin1String(caso.cella));
        EXPECT_EQ(aspetto(0, DENTE).tooltip, QString::fromUtf8(caso.suggerimento));
        EXPECT_EQ(aspetto(0, DENTE).notice == Notice::Error, QString::fromUtf8(caso.suggerimento).contains(u"Non è"));
        EXPECT_EQ(disegnati().join(u' '), QLatin1String(caso.disegno));
    }
    for (const auto& caso : casi)
        nuovoRigo(QStringLiteral("VISITA"), QString::fromUtf8(caso.scritto));
    // The list behind the "+" outlives an edit that leaves the "+" as it is.
    scrivi(5, DENTE, QStringLiteral("+ "));
    conferma();
    const clsItemTrattamento item = memorizzato();
    ASSERT_EQ(item.righi.size(), std::size(casi) + 1);
    for (std::size_t i = 0; i < std::size(casi); ++i) {
        EXPECT_EQ(item.righi[i + 1].dente, QLatin1String(casi[i].dente)) << casi[i].scritto;
        EXPECT_EQ(item.righi[i + 1].denti, QLatin1String(casi[i].denti)) << casi[i].scritto;
    }
}

TEST_F(CelleRighi, ReadTheDatesOrKeepTheFormerOnes) {
    const struct {
        const char *scritto, *cella, *suggerimento, *memorizzata;
    } casi[] = {
        {"020326", "02/03/2026", "", "02/03/2026"},
        {"2/3", "02/03/2026", "", "02/03/2026"},
        {"05012026", "05/01/2026", "", "05/01/2026"},
        {"domani", "domani", "Non è una data: resta memorizzato 05/01/2026", "05/01/2026"},
        {"31/02/2026", "31/02/2026", "Non è una data: resta memorizzato 05/01/2026", "05/01/2026"},
        {"", "", "", ""},
        {"1", "1", "Non è una data: non verrà memorizzata", ""},
    };
    apri(QString());
    nuovoRigo(QStringLiteral("VISITA"));
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.scritto);
        scrivi(0, INIZIO, QLatin1String(caso.scritto));
        EXPECT_EQ(cella(0, INIZIO), QLatin1String(caso.cella));
        EXPECT_EQ(aspetto(0, INIZIO).tooltip, QString::fromUtf8(caso.suggerimento));
        EXPECT_EQ(aspetto(0, INIZIO).notice, *caso.suggerimento ? Notice::Error : Notice::None);
        const bool iniziato = *caso.memorizzata != '\0';
        EXPECT_EQ(aspetto(0, INIZIO).background, iniziato ? QColor(255, 233, 127) : QColor(255, 127, 127));
        EXPECT_EQ(finestra_->findChild<RigheTrattamento*>()->righi()[0].inizio, QLatin1String(caso.memorizzata));
    }
    scrivi(0, INIZIO, QStringLiteral("10/03/2026"));
    for (const bool prima : {true, false}) {
        scrivi(0, FINE, prima ? QStringLiteral("9/3") : QStringLiteral("10/3"));
        EXPECT_EQ(aspetto(0, FINE).notice, prima ? Notice::Warning : Notice::None);
        EXPECT_EQ(aspetto(0, FINE).tooltip, prima ? QStringLiteral("La fine è prima dell'inizio") : QString());
    }
    // The row editor knows only what is stored; what it leaves alone stays as typed.
    scrivi(0, FINE, QStringLiteral("poi"));
    scrivi(0, DENTE, QStringLiteral("sesto"));
    const FinestraModale attesa("frmEditRigoTrattamento", [](QWidget& editor) {
        editor.findChild<QPushButton*>(QStringLiteral("cbAccetta"))->click();
    });
    scegliRiga(0);
    premi(arrayName("cbRighi", 1));
    EXPECT_EQ(cella(0, FINE), QStringLiteral("poi"));
    EXPECT_EQ(cella(0, DENTE), QStringLiteral("sesto"));
    conferma();
    EXPECT_EQ(memorizzato().righi[0].inizio, QStringLiteral("10/03/2026"));
    EXPECT_EQ(memorizzato().righi[0].fine, QStringLiteral("10/03/2026"));
}

TEST_F(CelleRighi, TakeTheServiceAsTheCatalogueSpellsAndPricesIt) {
    clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0001"));
    for (const char* fattura : {"", "2026-0003"}) {
        clsItemRigoTrattamento prezzato = rigo("CORONA", "7");
        prezzato.progressivo = numeroRigo(static_cast<int>(item.righi.size()) + 1);
        prezzato.statuslavori = QStringLiteral("Preparazione|20260301");
        prezzato.fattura = QLatin1String(fattura);
        item.righi.add(prezzato.progressivo, prezzato);
    }
    ASSERT_TRUE(trattamenti().Salva(item));
    apri(item.ID);
    scrivi(0, SERVIZIO, QStringLiteral("corona "));
    EXPECT_EQ(cella(0, SERVIZIO), QStringLiteral("CORONA"));
    EXPECT_EQ(prezzo(0), QStringLiteral("10,00"));
    EXPECT_EQ(righi()->rowRecord(0)->cell(NOTE).tag, QStringLiteral("Preparazione|20260301"));
    EXPECT_EQ(disegnati(), QStringList{QStringLiteral("1.1")});
    scrivi(0, SERVIZIO, QStringLiteral("MAI"));
    EXPECT_EQ(aspetto(0, SERVIZIO).notice, Notice::Warning);
    EXPECT_EQ(aspetto(0, SERVIZIO).tooltip, QStringLiteral("Il servizio non è nel catalogo"));
    EXPECT_EQ(prezzo(0), QStringLiteral("10,00"));
    for (const int riga : {0, 1}) {
        scrivi(riga, SERVIZIO, QStringLiteral("igiene"));
        EXPECT_EQ(cella(riga, SERVIZIO), QStringLiteral("IGIENE"));
        EXPECT_EQ(aspetto(riga, SERVIZIO).notice, Notice::None);
    }
    EXPECT_EQ(prezzo(0), QString());
    EXPECT_EQ(prezzo(1), QStringLiteral("10,00")) << "billed at that price";
    conferma();
    const clsItemTrattamento dopo = memorizzato();
    EXPECT_FLOAT_EQ(dopo.righi[0].prezzo, PrezzoServizio(QStringLiteral("IGIENE")));
    EXPECT_FLOAT_EQ(dopo.righi[1].prezzo, 10);
}

TEST_F(CelleRighi, SayThatANameOfNoOneIsNotStored) {
    apri(QString());
    nuovoRigo(QStringLiteral("VISITA"));
    for (const int colonna : {RAGGRUPPAMENTO, OPERATORE, ASSISTENTE}) {
        SCOPED_TRACE(colonna);
        scrivi(0, colonna, QStringLiteral("Nessuno"));
        EXPECT_EQ(cella(0, colonna), QStringLiteral("Nessuno"));
        EXPECT_EQ(aspetto(0, colonna).notice, Notice::Error);
        EXPECT_EQ(aspetto(0, colonna).tooltip, QString::fromUtf8("Non è nell'elenco: non verrà memorizzato"));
        scrivi(0, colonna, righi()->rowRecord(0)->cell(colonna).style().choices.last());
        EXPECT_EQ(aspetto(0, colonna).notice, Notice::None);
    }
}

TEST_F(CelleRighi, FinishAnEditBeforeACommandRuns) {
    apri(QString());
    nuovoRigo(QStringLiteral("VISITA"));
    nuovoRigo(QStringLiteral("CORONA"));
    const auto testo = [this](int riga) { return cella(riga, DESCRIZIONE); };
    const auto tastoNelCampo = [](QWidget* campo, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(campo, key, modifiers);
        QTest::qWait(5);
    };

    tastoNelCampo(comincia(1, DESCRIZIONE, "su"), Qt::Key_Up, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(testo(0), QStringLiteral("su"));
    EXPECT_EQ(cella(0, SERVIZIO), QStringLiteral("CORONA"));
    {
        const FinestraModale attesa("frmEditRigoTrattamento", [](QWidget& editor) {
            auto* descrizione = editor.findChild<QLineEdit*>(QStringLiteral("tbDati(2)"));
            EXPECT_EQ(descrizione->text(), QStringLiteral("quattro"));
            editor.findChild<QPushButton*>(QStringLiteral("cbAccetta"))->click();
        });
        tastoNelCampo(comincia(0, DESCRIZIONE, "quattro"), Qt::Key_F4);
    }
    EXPECT_EQ(testo(0), QStringLiteral("quattro"));
    {
        const FinestraModale attesa("frmZoomRighiTrattamento", [](QWidget& zoom) {
            auto* griglia = zoom.findChild<platform::ReportGrid*>();
            EXPECT_EQ(griglia->rowRecord(0)->cell(DESCRIZIONE).value, QStringLiteral("zoom"));
        });
        comincia(0, DESCRIZIONE, "zoom");
        trova<QPushButton>(arrayName("cbRighi", 3))->click(); // the keyboard is still in the cell
        QTest::qWait(60);
    }
    tastoNelCampo(comincia(0, SERVIZIO, "igiene"), Qt::Key_F3);
    EXPECT_EQ(cella(0, SERVIZIO), QStringLiteral("IGIENE")) << "with what follows from it";
    ASSERT_EQ(righi()->rowCount(), 3);
    EXPECT_TRUE(righi()->isEditing()) << "the new row waits for its service";
    EXPECT_EQ(righi()->focusedRecord(), righi()->rowRecord(2));

    comincia(1, DESCRIZIONE, "resta");
    tastoNelCampo(comincia(2, DESCRIZIONE, "via"), Qt::Key_F5);
    ASSERT_EQ(righi()->rowCount(), 2);
    EXPECT_EQ(testo(1), QStringLiteral("resta"));

    comincia(1, NOTE, "ultima");
    trova<QPushButton>(QStringLiteral("cbConferma"))->click();
    EXPECT_EQ(memorizzato().righi[1].note, QStringLiteral("ultima"));
}

TEST_F(CelleRighi, LeaveTheKeyboardWhereTheUserWent) {
    apri(QString());
    for (int i = 0; i < 3; ++i)
        nuovoRigo(QStringLiteral("VISITA"));
    finestra_->activateWindow();
    QTest::keyClick(comincia(0, SERVIZIO, "CORONA"), Qt::Key_Tab);
    QTest::qWait(5);
    EXPECT_TRUE(righi()->isEditing());
    EXPECT_EQ(righi()->focusedColumn(), DESCRIZIONE);
    righi()->finishEdit();

    // A click is a press and, a moment later, a release.
    auto* vista = righi()->view();
    comincia(0, DESCRIZIONE, "uno");
    const QPoint terza = vista->visualRect(vista->model()->index(2, DESCRIZIONE)).center();
    QTest::mousePress(vista->viewport(), Qt::LeftButton, {}, terza);
    QTest::qWait(5);
    QTest::mouseRelease(vista->viewport(), Qt::LeftButton, {}, terza);
    QTest::qWait(5);
    EXPECT_EQ(righi()->focusedRecord(), righi()->rowRecord(2));

    for (const bool altrove : {false, true}) {
        SCOPED_TRACE(altrove);
        comincia(0, SERVIZIO, "?coro");
        const FinestraModale ricerca("frmSceltaServizio", [](QWidget&) {});
        if (altrove)
            dato(2)->setFocus();
        else
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTest::qWait(5);
        EXPECT_EQ(righi()->isAncestorOf(finestra_->focusWidget()), !altrove);
        EXPECT_EQ(dato(2)->window()->focusWidget() == dato(2), altrove);
        EXPECT_EQ(righi()->focusedRecord(), righi()->rowRecord(0));
    }

    comincia(0, DESCRIZIONE, "fine");
    auto* conferma = trova<QPushButton>(QStringLiteral("cbConferma"));
    QTest::mousePress(conferma, Qt::LeftButton);
    QTest::qWait(5);
    QTest::mouseRelease(conferma, Qt::LeftButton);
    EXPECT_FALSE(finestra_->isVisible()) << "the first click counts";
    EXPECT_EQ(memorizzato().righi[0].descrizione, QStringLiteral("fine"));
}

TEST_F(CelleRighi, TellChartAndTotalsOfARowThatGoes) {
    apri(QString());
    nuovoRigo(QStringLiteral("CORONA"), QStringLiteral("1.1"));
    nuovoRigo(QStringLiteral("VISITA"));
    const QString tutti = totale(1);
    scegliRiga(0);
    premi(arrayName("cbRighi", 2));
    EXPECT_TRUE(disegnati().isEmpty());
    EXPECT_NE(totale(1), tutti);
    EXPECT_EQ(totale(1), QStringLiteral("60,00"));
    EXPECT_FALSE(finestra_->findChild<ToothChart*>()->isMarked(7));
}

TEST_F(CelleRighi, SumFinishedWorkOnlyWithBothDates) {
    const struct {
        const char *inizio, *fine;
        float terminati, daTerminare;
    } casi[] = {
        {"", "", 0, 20},
        {"01/03/2026", "", 0, 20},
        {"", "02/03/2026", 0, 20},
        {"01/03/2026", "02/03/2026", 20, 0},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(testing::Message() << caso.inizio << '-' << caso.fine);
        clsItemRigoTrattamento due = rigo("CORONA", "+", caso.inizio, caso.fine);
        due.denti = QStringLiteral("7;8");
        const TotaliRighi totali = calcolaTotali({due, rigo("", "7", caso.inizio, caso.fine)});
        EXPECT_FLOAT_EQ(totali.terminati, caso.terminati);
        EXPECT_FLOAT_EQ(totali.daTerminare, caso.daTerminare);
    }
}

TEST_F(CelleRighi, NameAToothOfAServiceOnce) {
    clsItemTrattamento item;
    const std::pair<const char*, const char*> righe[] = {{"CORONA", "7"}, {"CORONA", "7"}, {"VISITA", "9"}};
    for (const auto& [servizio, dente] : righe)
        item.righi.add(QString::number(item.righi.size()), rigo(servizio, dente));
    RigheTrattamento griglia;
    griglia.carica(item);
    EXPECT_EQ(griglia.dentiDelServizio(QStringLiteral("CORONA")), QStringLiteral("1.1"));
}

TEST_F(CelleRighi, OfferNoSituationsInAReadOnlyPlan) {
    const QString id = salvato(QStringLiteral("2026"), QStringLiteral("0007")).ID;
    sIDTrattamento = id;
    const frmEditTrattamento primo;
    apri(id);
    QTest::mouseClick(trova<QWidget>(arrayName("imTooth", 7)), Qt::RightButton);
    EXPECT_EQ(dialoghi_.menu, QStringList{QStringLiteral("Informazioni")});
}
