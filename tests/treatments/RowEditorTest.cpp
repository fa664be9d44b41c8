#include "TreatmentFixture.h"
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

class RowEditor : public WindowFixture<frmEditRigoTrattamento> {
protected:
    RowEditor() {
        row_.progressivo = QStringLiteral("01");
        row_.servizio = QStringLiteral("CORONA");
        row_.descrizione = QStringLiteral("Corona");
        row_.dente = QStringLiteral("+");
        row_.denti = QStringLiteral("7;6;5");
        row_.raggruppamento = QStringLiteral("07");
        row_.prezzo = 10;
        row_.operatore = QStringLiteral("MRCPLA68S03H501R");
        row_.inizio = QStringLiteral("01/03/2026");
        row_.fine = QStringLiteral("05/03/2026");
        row_.statuslavori =
            QStringLiteral("Preparazione|2026030120260302\r\nImpronta|20260303\r\nProva|boh\r\nCementazione");
        row_.fattura = QStringLiteral("2026-0001");
        row_.note = QStringLiteral("Uno\r\ndue");
    }
    void open() {
        window_ = std::make_unique<frmEditRigoTrattamento>();
        window_->load(row_);
        window_->show();
        QTest::qWait(1);
    }
    QCheckBox* checkBox(const char* name, int index) { return find<QCheckBox>(arrayName(name, index)); }
    QString text(const QString& name) { return find<QLineEdit>(name)->text(); }
    clsItemRigoTrattamento written() {
        clsItemRigoTrattamento row = row_;
        window_->write(row);
        return row;
    }

    clsItemRigoTrattamento row_;
};

} // namespace

TEST_F(RowEditor, GivesARowBackAsItWas) {
    row_.statuslavori = QStringLiteral("Preparazione|2026030120260302\r\nImpronta|20260303\r\nProva\r\nCementazione");
    for (const char* group : {"07", "99"}) { // the second is no longer on the practice's list
        row_.raggruppamento = QLatin1String(group);
        open();
        // Nothing is taken over from the row but what the window has no field for.
        clsItemRigoTrattamento back;
        back.progressivo = row_.progressivo;
        back.fattura = row_.fattura;
        back.raggruppamento = row_.raggruppamento == QLatin1String("99") ? row_.raggruppamento : QString();
        window_->write(back);
        EXPECT_TRUE(back == row_) << group;
    }
    EXPECT_EQ(text(QStringLiteral("tbDati(3)")), QStringLiteral("Marchetti dott. Paolo"));
    EXPECT_EQ(text(QStringLiteral("tbTotali(1)")), QStringLiteral("30,00"));
}

TEST_F(RowEditor, NeverKeepsAnEndWithoutAStart) {
    open();
    EXPECT_TRUE(checkBox("cbStatusFIN", 0)->isVisible());
    EXPECT_FALSE(find<QDateEdit>(QStringLiteral("dtpStatusFIN(1)"))->isVisible());
    EXPECT_FALSE(checkBox("cbStatusINI", 2)->isChecked()); // its stored date is none
    checkBox("cbStatusINI", 0)->click();
    EXPECT_FALSE(checkBox("cbStatusFIN", 0)->isChecked());
    EXPECT_FALSE(checkBox("cbStatusFIN", 0)->isVisible());
    checkBox("cbDate", 0)->click();
    EXPECT_FALSE(checkBox("cbDate", 1)->isVisible());
    const clsItemRigoTrattamento row = written();
    EXPECT_EQ(row.inizio, QString());
    EXPECT_EQ(row.fine, QString());
    EXPECT_EQ(row.statuslavori, QStringLiteral("Preparazione\r\nImpronta|20260303\r\nProva\r\nCementazione"));
}

TEST_F(RowEditor, DropsTheStagesOfTheOldService) {
    open();
    EXPECT_TRUE(find<QWidget>(QStringLiteral("pbStatus(3)"))->isVisible());
    find<QLineEdit>(QStringLiteral("tbDati(0)"))->setText(QStringLiteral("VISITA"));
    EXPECT_FALSE(find<QWidget>(QStringLiteral("pbStatus(0)"))->isVisible());
    EXPECT_EQ(written().statuslavori, QString());
    find<QLineEdit>(QStringLiteral("tbDati(0)"))->setText(QStringLiteral("CORONA"));
    EXPECT_EQ(written().statuslavori, QStringLiteral("Preparazione\r\nImpronta\r\nProva\r\nCementazione"));
}

TEST_F(RowEditor, ReadsWhatIsTypedOnLeavingTheField) {
    const struct {
        int field;
        const char *written, *shown, *notice, *total;
    } cases[] = {
        {5, "16", "1.6", "", "10,00"},
        {5, "1.6 2,6", "+1.6;2.6", "", "20,00"},
        {5, "1.9", "1.9", "Non è un dente: non verrà memorizzato", "10,00"},
        {5, "+1.1;9.9", "+1.1;9.9", "Non è un dente e non verrà memorizzato: 9.9", "20,00"},
        {5, "", "", "", "10,00"},
        {0, "corona", "CORONA", "", "10,00"},
        {0, "MAI", "MAI", "Il servizio non è nel catalogo", "10,00"},
        {0, "visita", "VISITA", "", "60,00"}, // another service at its price
    };
    row_.fattura.clear();
    open();
    for (const auto& each : cases) {
        SCOPED_TRACE(each.written);
        auto* field = find<QLineEdit>(arrayName("tbDati", each.field));
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, QLatin1String(each.written));
        QTest::keyClick(field, Qt::Key_Tab);
        EXPECT_EQ(field->text(), QLatin1String(each.shown));
        EXPECT_EQ(field->toolTip(), QString::fromUtf8(each.notice));
        EXPECT_EQ(field->palette().color(QPalette::Text) != QPalette().color(QPalette::Text), *each.notice != '\0');
        EXPECT_EQ(text(QStringLiteral("tbTotali(1)")), QLatin1String(each.total));
    }
    row_.servizio = QStringLiteral("corona"); // as an old plan has it
    open();
    const QString stages = written().statuslavori;
    auto* service = find<QLineEdit>(QStringLiteral("tbDati(0)"));
    service->setFocus();
    QTest::keyClick(service, Qt::Key_Tab);
    EXPECT_EQ(written().servizio, QStringLiteral("CORONA"));
    EXPECT_EQ(written().statuslavori, stages) << "the same service keeps its stages";
    EXPECT_EQ(written().prezzo, 10);
}

TEST_F(RowEditor, ShowsTheCataloguesPriceWhereTheRowHasNone) {
    row_.prezzo = 0;
    for (const char* invoice : {"", "2026-0001"}) {
        SCOPED_TRACE(invoice);
        const bool isInvoiced = *invoice != '\0';
        row_.fattura = QLatin1String(invoice);
        open();
        auto* price = find<QLineEdit>(QStringLiteral("tbTotali(0)"));
        EXPECT_EQ(price->text(), isInvoiced ? QStringLiteral("0,00") : QString());
        EXPECT_EQ(price->placeholderText(), isInvoiced ? QStringLiteral("0,00") : QStringLiteral("700,00"));
        EXPECT_EQ(text(QStringLiteral("tbTotali(1)")), isInvoiced ? QStringLiteral("0,00") : QStringLiteral("2100,00"));
        EXPECT_EQ(written().prezzo, 0);
        price->setFocus();
        price->selectAll();
        QTest::keyClicks(price, QStringLiteral("cento"));
        QTest::keyClick(price, Qt::Key_Return);
        EXPECT_EQ(price->toolTip(), QStringLiteral("Non è un importo: non verrà memorizzato"));
    }
}

TEST_F(RowEditor, LocksTheNoteOnDoubleClick) {
    open();
    auto* notes = find<QPlainTextEdit>(QStringLiteral("tbDati(6)"));
    const QColor unlocked = notes->palette().color(QPalette::Base);
    QTest::mouseDClick(notes->viewport(), Qt::LeftButton);
    EXPECT_TRUE(notes->isReadOnly());
    EXPECT_NE(notes->palette().color(QPalette::Base), unlocked);
    QTest::mouseDClick(notes->viewport(), Qt::LeftButton);
    EXPECT_FALSE(notes->isReadOnly());
    EXPECT_EQ(notes->palette().color(QPalette::Base), unlocked);
}

TEST_F(RowEditor, GoesOnByEnterAndEndsByItsButtons) {
    open();
    auto* service = find<QLineEdit>(QStringLiteral("tbDati(0)"));
    EXPECT_EQ(QApplication::focusWidget(), service);
    // From field to field, past the buttons of the searches.
    for (const char* next : {"tbDati(2)", "tbDati(5)", "cbRaggrMerc"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), QLatin1String(next));
    }
    find<QLineEdit>(QStringLiteral("tbDati(4)"))->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("tbTotali(0)"));
    EXPECT_TRUE(window_->isVisible());
    QTest::keyClick(find<QPushButton>(QStringLiteral("cbAccetta")), Qt::Key_Return);
    EXPECT_TRUE(window_->isAccepted());
    EXPECT_FALSE(window_->isVisible());
    open();
    window_->setReadOnly();
    EXPECT_FALSE(find<QPushButton>(QStringLiteral("cbAccetta"))->isEnabled());
    EXPECT_EQ(find<QPushButton>(QStringLiteral("cbAnnulla"))->text(), QStringLiteral("Chiudi"));
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isAccepted());
}
