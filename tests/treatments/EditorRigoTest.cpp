#include "StudioDiProva.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"
#include "treatments/frmEditRigoTrattamento.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using platform::form::arrayName;

namespace {

class EditorRigo : public FinestraDiProva<frmEditRigoTrattamento> {
protected:
    EditorRigo() {
        rigo_.progressivo = QStringLiteral("01");
        rigo_.servizio = QStringLiteral("CORONA");
        rigo_.descrizione = QStringLiteral("Corona");
        rigo_.dente = QStringLiteral("+");
        rigo_.denti = QStringLiteral("7;6;5");
        rigo_.raggruppamento = QStringLiteral("07");
        rigo_.prezzo = 10;
        rigo_.operatore = QStringLiteral("MRCPLA68S03H501R");
        rigo_.inizio = QStringLiteral("01/03/2026");
        rigo_.fine = QStringLiteral("05/03/2026");
        rigo_.statuslavori =
            QStringLiteral("Preparazione|2026030120260302\r\nImpronta|20260303\r\nProva|boh\r\nCementazione");
        rigo_.fattura = QStringLiteral("2026-0001");
        rigo_.note = QStringLiteral("Uno\r\ndue");
    }
    void apri() {
        finestra_ = std::make_unique<frmEditRigoTrattamento>();
        finestra_->carica(rigo_);
        finestra_->show();
        QTest::qWait(1);
    }
    QCheckBox* casella(const char* nome, int indice) { return trova<QCheckBox>(arrayName(nome, indice)); }
    QString testo(const QString& nome) { return trova<QLineEdit>(nome)->text(); }
    clsItemRigoTrattamento scritto() {
        clsItemRigoTrattamento rigo = rigo_;
        finestra_->scrivi(rigo);
        return rigo;
    }

    clsItemRigoTrattamento rigo_;
};

} // namespace

TEST_F(EditorRigo, GivesARowBackAsItWas) {
    rigo_.statuslavori = QStringLiteral("Preparazione|2026030120260302\r\nImpronta|20260303\r\nProva\r\nCementazione");
    for (const char* gruppo : {"07", "99"}) { // the second is no longer on the practice's list
        rigo_.raggruppamento = QLatin1String(gruppo);
        apri();
        const clsItemRigoTrattamento rigo = scritto();
        EXPECT_EQ(rigo.servizio, rigo_.servizio);
        EXPECT_EQ(rigo.descrizione, rigo_.descrizione);
        EXPECT_EQ(rigo.dente, rigo_.dente);
        EXPECT_EQ(rigo.denti, rigo_.denti);
        EXPECT_EQ(rigo.raggruppamento, rigo_.raggruppamento);
        EXPECT_EQ(rigo.operatore, rigo_.operatore);
        EXPECT_EQ(rigo.inizio, rigo_.inizio);
        EXPECT_EQ(rigo.fine, rigo_.fine);
        EXPECT_EQ(rigo.statuslavori, rigo_.statuslavori);
        EXPECT_EQ(rigo.note, rigo_.note);
        EXPECT_FLOAT_EQ(rigo.prezzo, rigo_.prezzo);
    }
    EXPECT_EQ(testo(QStringLiteral("tbDati(3)")), QStringLiteral("Marchetti dott. Paolo"));
    EXPECT_EQ(testo(QStringLiteral("tbTotali(1)")), QStringLiteral("30,00"));
}

TEST_F(EditorRigo, NeverKeepsAnEndWithoutAStart) {
    apri();
    EXPECT_TRUE(casella("cbStatusFIN", 0)->isVisible());
    EXPECT_FALSE(trova<QDateEdit>(QStringLiteral("dtpStatusFIN(1)"))->isVisible());
    EXPECT_FALSE(casella("cbStatusINI", 2)->isChecked()); // its stored date is none
    casella("cbStatusINI", 0)->click();
    EXPECT_FALSE(casella("cbStatusFIN", 0)->isChecked());
    EXPECT_FALSE(casella("cbStatusFIN", 0)->isVisible());
    casella("cbDate", 0)->click();
    EXPECT_FALSE(casella("cbDate", 1)->isVisible());
    const clsItemRigoTrattamento rigo = scritto();
    EXPECT_EQ(rigo.inizio, QString());
    EXPECT_EQ(rigo.fine, QString());
    EXPECT_EQ(rigo.statuslavori, QStringLiteral("Preparazione\r\nImpronta|20260303\r\nProva\r\nCementazione"));
}

TEST_F(EditorRigo, DropsTheStagesOfTheOldService) {
    apri();
    EXPECT_TRUE(trova<QWidget>(QStringLiteral("pbStatus(3)"))->isVisible());
    trova<QLineEdit>(QStringLiteral("tbDati(0)"))->setText(QStringLiteral("VISITA"));
    EXPECT_FALSE(trova<QWidget>(QStringLiteral("pbStatus(0)"))->isVisible());
    EXPECT_EQ(scritto().statuslavori, QString());
    trova<QLineEdit>(QStringLiteral("tbDati(0)"))->setText(QStringLiteral("CORONA"));
    EXPECT_EQ(scritto().statuslavori, QStringLiteral("Preparazione\r\nImpronta\r\nProva\r\nCementazione"));
}

TEST_F(EditorRigo, ReadsWhatIsTypedOnLeavingTheField) {
    const struct {
        int campo;
        const char *scritto, *mostrato, *avviso, *totale;
    } casi[] = {
        {5, "16", "1.6", "", "10,00"},
        {5, "1.6 2,6", "+1.6;2.6", "", "20,00"},
        {5, "1.9", "1.9", "Non è un dente: non verrà memorizzato", "10,00"},
        {5, "+1.1;9.9", "+1.1;9.9", "Non è un dente e non verrà memorizzato: 9.9", "20,00"},
        {5, "", "", "", "10,00"},
        {0, "corona", "CORONA", "", "10,00"},
        {0, "MAI", "MAI", "Il servizio non è nel catalogo", "10,00"},
        {0, "visita", "VISITA", "", "60,00"}, // another service at its price
    };
    rigo_.fattura.clear();
    apri();
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.scritto);
        auto* campo = trova<QLineEdit>(arrayName("tbDati", caso.campo));
        campo->setFocus();
        campo->selectAll();
        QTest::keyClick(campo, Qt::Key_Delete);
        QTest::keyClicks(campo, QLatin1String(caso.scritto));
        QTest::keyClick(campo, Qt::Key_Tab);
        EXPECT_EQ(campo->text(), QLatin1String(caso.mostrato));
        EXPECT_EQ(campo->toolTip(), QString::fromUtf8(caso.avviso));
        EXPECT_EQ(campo->palette().color(QPalette::Text) != QPalette().color(QPalette::Text), *caso.avviso != '\0');
        EXPECT_EQ(testo(QStringLiteral("tbTotali(1)")), QLatin1String(caso.totale));
    }
    rigo_.servizio = QStringLiteral("corona"); // as an old plan has it
    apri();
    const QString stadi = scritto().statuslavori;
    auto* servizio = trova<QLineEdit>(QStringLiteral("tbDati(0)"));
    servizio->setFocus();
    QTest::keyClick(servizio, Qt::Key_Tab);
    EXPECT_EQ(scritto().servizio, QStringLiteral("CORONA"));
    EXPECT_EQ(scritto().statuslavori, stadi) << "the same service keeps its stages";
    EXPECT_FLOAT_EQ(scritto().prezzo, 10);
}

TEST_F(EditorRigo, ShowsTheCataloguesPriceWhereTheRowHasNone) {
    rigo_.prezzo = 0;
    for (const char* fattura : {"", "2026-0001"}) {
        SCOPED_TRACE(fattura);
        const bool fatturato = *fattura != '\0';
        rigo_.fattura = QLatin1String(fattura);
        apri();
        auto* prezzo = trova<QLineEdit>(QStringLiteral("tbTotali(0)"));
        EXPECT_EQ(prezzo->text(), fatturato ? QStringLiteral("0,00") : QString());
        EXPECT_EQ(prezzo->placeholderText(), fatturato ? QStringLiteral("0,00") : QStringLiteral("700,00"));
        EXPECT_EQ(testo(QStringLiteral("tbTotali(1)")), fatturato ? QStringLiteral("0,00") : QStringLiteral("2100,00"));
        EXPECT_FLOAT_EQ(scritto().prezzo, 0);
        prezzo->setFocus();
        prezzo->selectAll();
        QTest::keyClicks(prezzo, QStringLiteral("cento"));
        QTest::keyClick(prezzo, Qt::Key_Return);
        EXPECT_EQ(prezzo->toolTip(), QStringLiteral("Non è un importo: non verrà memorizzato"));
    }
}

TEST_F(EditorRigo, LocksTheNoteOnDoubleClick) {
    apri();
    auto* note = trova<QPlainTextEdit>(QStringLiteral("tbDati(6)"));
    const QColor aperto = note->palette().color(QPalette::Base);
    QTest::mouseDClick(note->viewport(), Qt::LeftButton);
    EXPECT_TRUE(note->isReadOnly());
    EXPECT_NE(note->palette().color(QPalette::Base), aperto);
    QTest::mouseDClick(note->viewport(), Qt::LeftButton);
    EXPECT_FALSE(note->isReadOnly());
    EXPECT_EQ(note->palette().color(QPalette::Base), aperto);
}

TEST_F(EditorRigo, GoesOnByEnterAndEndsByItsButtons) {
    apri();
    auto* servizio = trova<QLineEdit>(QStringLiteral("tbDati(0)"));
    EXPECT_EQ(QApplication::focusWidget(), servizio);
    // From field to field, past the buttons of the searches.
    for (const char* prossimo : {"tbDati(2)", "tbDati(5)", "cbRaggrMerc"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), QLatin1String(prossimo));
    }
    trova<QLineEdit>(QStringLiteral("tbDati(4)"))->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("tbTotali(0)"));
    EXPECT_TRUE(finestra_->isVisible());
    QTest::keyClick(trova<QPushButton>(QStringLiteral("cbAccetta")), Qt::Key_Return);
    EXPECT_TRUE(finestra_->accettato());
    EXPECT_FALSE(finestra_->isVisible());
    apri();
    finestra_->setSolaLettura();
    EXPECT_FALSE(trova<QPushButton>(QStringLiteral("cbAccetta"))->isEnabled());
    EXPECT_EQ(trova<QPushButton>(QStringLiteral("cbAnnulla"))->text(), QStringLiteral("Chiudi"));
    QTest::keyClick(finestra_.get(), Qt::Key_Escape);
    EXPECT_FALSE(finestra_->accettato());
}
