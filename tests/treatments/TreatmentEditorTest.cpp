#include "treatments/frmEditTrattamento.h"

#include "EditorFixture.h"
#include "platform/Files.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"
#include "store/modLock.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/GridRow.h"
#include "treatments/TreatmentMemo.h"

#include <QApplication>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using platform::form::arrayName;
using namespace gridrow;

namespace {

class Editor : public EditorFixture {};

} // namespace

TEST_F(Editor, StoresANewPlanAsWorkedInTheWindow) {
    open(QString());
    EXPECT_EQ(field(0)->text(), QStringLiteral("2026"));
    EXPECT_EQ(field(1)->text(), QStringLiteral("0001"));
    QTest::keyClicks(field(2), QStringLiteral("Piano di prova"));
    find<QPlainTextEdit>(QStringLiteral("tbDati(7)"))->setPlainText(QStringLiteral("Una nota\ne un'altra"));
    newRow(QStringLiteral("VISITA"));
    newRow(QStringLiteral("CORONA"), QStringLiteral("+1.1;1.2"));
    type(0, START, QStringLiteral("1/3/2026"));
    type(0, END, QStringLiteral("02/03/2026"));
    type(1, OPERATOR, QStringLiteral("Marchetti dott. Paolo"));
    type(1, ASSISTANT, QStringLiteral("Conti Giulia"));
    type(1, NOTES, QStringLiteral("da rivedere"));
    EXPECT_EQ(find<QLineEdit>(QStringLiteral("tbTotale(0)"))->text(), QStringLiteral("60,00"));
    EXPECT_EQ(find<QLineEdit>(QStringLiteral("tbTotale(1)"))->text(), QStringLiteral("1400,00"));
    confirm();

    EXPECT_FALSE(window_->isVisible());
    EXPECT_FALSE(oHost->Framework().DialogCancel());
    EXPECT_TRUE(dialogs_.messages.isEmpty());
    const auto stored = storedRow(QStringLiteral("2026-0001"));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->descrizione, QStringLiteral("Piano di prova"));
    const char expected[] =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
        "<trattamento anno=\"2026\" progressivo=\"0001\" data=\"10/03/2026\" fatturaAnticipo=\"\" >\r\n"
        "\t<paziente codiceFiscale=\"RSSMRA80A01H501U\">Um9zc2kgTWFyaW8=</paziente>\r\n"
        "\t<medico codiceFiscale=\"MRCPLA68S03H501R\">TWFyY2hldHRpIGRvdHQuIFBhb2xv</medico>\r\n"
        "\t<righi>\r\n"
        "\t\t<rigo progressivo=\"01\" denti=\"\" servizio=\"VISITA\" descrizione=\"VmlzaXRhIG9kb250b2lhdHJpY2E=\" "
        "ragruppamento=\"01\" operatore=\"\" assistente=\"\" inizioLavori=\"01/03/2026\" fineLavori=\"02/03/2026\" "
        "statusLavori=\"\" fattura=\"\" prezzo=\"0,00\" fuoriPreventivo=\"0\" note=\"\" />\r\n"
        "\t\t<rigo progressivo=\"02\" denti=\"+7;6\" servizio=\"CORONA\" "
        "descrizione=\"Q29yb25hIGluIHppcmNvbmlhLWNlcmFtaWNh\" ragruppamento=\"07\" operatore=\"MRCPLA68S03H501R\" "
        "assistente=\"CNTGLI91B67H501L\" inizioLavori=\"\" fineLavori=\"\" "
        "statusLavori=\"UHJlcGFyYXppb25lDQpJbXByb250YQ0KUHJvdmENCkNlbWVudGF6aW9uZQ==\" fattura=\"\" prezzo=\"0,00\" "
        "fuoriPreventivo=\"0\" note=\"ZGEgcml2ZWRlcmU=\" />\r\n"
        "\t</righi>\r\n"
        "\t<descrizione>UGlhbm8gZGkgcHJvdmE=</descrizione>\r\n"
        "\t<annotazioni>VW5hIG5vdGENCmUgdW4nYWx0cmE=</annotazioni>\r\n"
        "\t<situazioneOrale></situazioneOrale>\r\n"
        "</trattamento>";
    EXPECT_EQ(stored->m1.toStdString(), std::string(expected));
}

TEST_F(Editor, NamesWhatKeepsThePlanFromBeingSaved) {
    struct Case {
        const char *year, *progressive, *message;
        int field;
    };
    const Case cases[] = {
        {" ", "1", "Attenzione! Anno di riferimento mancante", 0},
        {"2026", " ", "Attenzione! Progressivo mancante", 1},
        {"20AB", "1", "Attenzione! Anno di riferimento errato!", 0},
        {"26", "1", "Attenzione! Anno di riferimento errato!", 0},
        {"12026", "1", "Attenzione! Anno di riferimento errato!", 0},
        {"2026", "12A", "Attenzione! Progressivo di riferimento errato!", 1},
        {"2026", "0", "Attenzione! Progressivo di riferimento errato!", 1},
        {"2026", "-3", "Attenzione! Progressivo di riferimento errato!", 1},
        {"2026", "1,5", "Attenzione! Progressivo di riferimento errato!", 1},
        {"2026", "99999", "Attenzione! Progressivo di riferimento errato!", 1},
    };
    open(QString());
    for (const Case& each : cases) {
        SCOPED_TRACE(each.message);
        field(0)->setText(QLatin1String(each.year));
        field(1)->setText(QLatin1String(each.progressive));
        confirm();
        EXPECT_EQ(dialogs_.messages.value(0), QLatin1String(each.message));
        EXPECT_EQ(dialogs_.values.value(0), 48);
        EXPECT_EQ(dialogs_.titles.value(0), QStringLiteral("Tessara 5000. CORVALA"));
        EXPECT_EQ(QApplication::focusWidget(), field(each.field));
        EXPECT_TRUE(window_->isVisible());
        dialogs_.messages.clear();
    }
    field(0)->setText(QStringLiteral("2026"));
    field(1)->setText(QStringLiteral("12"));
    confirm();
    EXPECT_TRUE(storedRow(QStringLiteral("2026-0012"))); // a plan without rows or description is a plan

    // Numbers that earlier versions let through, and doubled ones, are no reason to refuse what is stored already.
    for (const char* number : {"99999", "0", "0012"}) {
        SCOPED_TRACE(number);
        const QString id = savedPlan(QStringLiteral("2025"), QLatin1String(number)).ID;
        database_.execute(QStringLiteral("update tblWorkspace set idrif1 = '2026-0012' where idrif1 = '2025-0012'"));
        open(id);
        field(2)->setText(QStringLiteral("Corretto"));
        confirm();
        EXPECT_FALSE(window_->isVisible());
        EXPECT_EQ(treatments().Carica(id)->descrizione, QStringLiteral("Corretto"));
    }
}

TEST_F(Editor, OpensReadOnlyWhatIsInUseAndLeavesTheOthersLock) {
    const QString id = savedPlan(QStringLiteral("2026"), QStringLiteral("0007")).ID;
    frmEditTrattamento first(id);
    EXPECT_TRUE(EsisteLock(QStringLiteral("Trattamento"), id));
    EXPECT_EQ(first.findChild<QPushButton*>(QStringLiteral("cbAnnulla"))->property("Tag").toString(), id);

    open(id);
    EXPECT_EQ(dialogs_.messages, QStringList{QStringLiteral("Attenzione! Trattamento in uso ad altro utente!\r\n"
                                                            "Eventuali modifiche verranno tralasciate!")});
    EXPECT_EQ(dialogs_.values, QList<int>{platform::MB_WARNING});
    for (const char* name : {"cbConferma", "cbRighi(0)", "cbRighi(2)", "cbAppunti(0)", "cbAppunti(2)", "cbFattura"})
        EXPECT_FALSE(find<QPushButton>(QLatin1String(name))->isEnabled()) << name;
    EXPECT_EQ(find<QPushButton>(QStringLiteral("cbRighi(1)"))->text(), QStringLiteral("dettagli"));
    EXPECT_EQ(find<QPushButton>(QStringLiteral("cbAppunti(1)"))->text(), QStringLiteral("dettagli"));
    EXPECT_EQ(find<QPushButton>(QStringLiteral("cbAnnulla"))->text(), QStringLiteral("Chiudi"));
    QTest::mouseClick(find<QWidget>(arrayName("imTooth", 7)), Qt::RightButton);
    EXPECT_EQ(dialogs_.menu, QStringList{QStringLiteral("Informazioni")}) << "no situations to choose";
    press(QStringLiteral("cbAnnulla"));
    EXPECT_FALSE(window_->isVisible());
    EXPECT_TRUE(EsisteLock(QStringLiteral("Trattamento"), id));

    QTest::keyClick(&first, Qt::Key_Escape);
    EXPECT_FALSE(EsisteLock(QStringLiteral("Trattamento"), id));
}

TEST_F(Editor, ReopensAStoredPlanAndSavesItUnchanged) {
    clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QStringLiteral("0007"));
    clsItemRigoTrattamento row;
    row.progressivo = QStringLiteral("01");
    row.servizio = QStringLiteral("CORONA");
    row.descrizione = QStringLiteral("A mano");
    row.dente = QStringLiteral("+");
    row.denti = QStringLiteral("7;8");
    row.inizio = QStringLiteral("01/03/2026");
    row.statuslavori = QStringLiteral("Preparazione|20260301\r\nImpronta");
    row.raggruppamento = QStringLiteral("99"); // struck off the list since
    row.operatore = QStringLiteral("SCONOSCIUTO");
    row.fattura = QStringLiteral("2026-0003");
    row.prezzo = 12.5F;
    row.fuoripreventivo = true;
    row.note = QStringLiteral("Nota");
    item.righi.add(row.progressivo, row);
    item.medico = QStringLiteral("X");
    item.Annotazioni = QStringLiteral("Uno\r\ndue");
    item.SituazioneOrale = QStringLiteral("7:3:Carie;20:9:");
    item.fatturaAnticipo = QStringLiteral("2026-0003");
    ASSERT_TRUE(treatments().Salva(item));
    const QString memo = storedRow(QStringLiteral("2026-0007"))->m1;

    open(item.ID);
    EXPECT_EQ(field(3)->text(), QStringLiteral("2026"));
    EXPECT_EQ(field(4)->text(), QStringLiteral("0003"));
    EXPECT_EQ(cell(0, TOOTH), QStringLiteral("+"));
    EXPECT_EQ(rows()->rowRecord(0)->cell(TOOTH).tag, QStringLiteral("1.1;2.1"));
    EXPECT_EQ(rows()->rowRecord(0)->cell(DESCRIPTION).style().background, QColor(255, 127, 127));
    EXPECT_TRUE(rows()->rowRecord(0)->cell(DESCRIPTION).style().bold);
    EXPECT_EQ(rows()->rowRecord(0)->cell(START).style().background, QColor(255, 233, 127));
    confirm();
    EXPECT_EQ(storedRow(QStringLiteral("2026-0007"))->m1.toStdString(), memo.toStdString());
}

TEST_F(Editor, CoversNewRowsByTheAdvanceInvoice) {
    open(QString());
    newRow(QStringLiteral("VISITA"));
    field(3)->setText(QStringLiteral("2026"));
    QTest::keyClicks(field(4), QStringLiteral("3"));
    QTest::keyClick(field(4), Qt::Key_Return);
    EXPECT_EQ(field(4)->text(), QStringLiteral("0003"));
    newRow(QStringLiteral("VISITA"));
    EXPECT_EQ(cell(0, INVOICE), QString());
    EXPECT_EQ(cell(1, INVOICE), QStringLiteral("2026-0003"));
    confirm();
    EXPECT_TRUE(storedRow(QStringLiteral("2026-0001"))->m1.contains(QStringLiteral("fatturaAnticipo=\"2026-0003\"")));
}

TEST_F(Editor, TiesChartAndRowsTogether) {
    open(QString());
    newRow(QStringLiteral("CORONA"), QStringLiteral("+1.1;1.2"));
    newRow(QStringLiteral("VISITA"), QStringLiteral("4.6"));
    newRow(QStringLiteral("VISITA"), QStringLiteral("9.9")); // no such tooth
    const auto tooth = [this](int index) { return find<QWidget>(arrayName("imTooth", index)); };
    QTest::mouseClick(tooth(6), Qt::LeftButton);
    EXPECT_TRUE(rows()->rowRecord(0)->cell(SERVICE).style().bold);
    EXPECT_FALSE(rows()->rowRecord(1)->cell(SERVICE).style().bold);
    type(0, NOTES, QStringLiteral("resta in grassetto"));
    EXPECT_TRUE(rows()->rowRecord(0)->cell(NOTES).style().bold);
    QTest::mouseClick(tooth(6), Qt::LeftButton);
    EXPECT_FALSE(rows()->rowRecord(0)->cell(SERVICE).style().bold);

    dialogs_.choice = colSituazioniDenti->find(QStringLiteral("3"))->descrizione;
    QTest::mouseClick(tooth(7), Qt::RightButton);
    ASSERT_EQ(dialogs_.menu.size(), 7);
    EXPECT_EQ(dialogs_.menu[0], QStringLiteral("Informazioni"));
    EXPECT_EQ(dialogs_.menu[1], QStringLiteral("-------------------"));
    confirm();
    clsItemTrattamento item;
    readTreatmentMemo(item, storedRow(QStringLiteral("2026-0001"))->m1);
    EXPECT_EQ(item.SituazioneOrale, QStringLiteral("7:3:"));
    EXPECT_EQ(item.righi[2].dente, QString());
    EXPECT_EQ(item.righi[2].denti, QString());
}

TEST_F(Editor, FitsASmallScreenAndKeepsTheTeethStillWhileItFills) {
    // On a screen 768 pixels high a title and the bar of the desktop take their part.
    constexpr int ROOM = 768 - 70;
    for (const bool beside : {false, true}) {
        SCOPED_TRACE(beside);
        oConfig->setEvidenziaBreve(beside);
        oConfig->setSaltaAllOcchio(beside);
        open({});
        EXPECT_LE(window_->minimumSizeHint().height(), ROOM);
        window_->resize(1366, ROOM);
        QTest::qWait(1);
        const QRect before = find<QWidget>(QStringLiteral("pbTooh(0)"))->geometry();
        for (const char* service : {"IMPIANTO", "CORONA", "CORMC", "CORIMP", "PONTE", "ESTRCHIR", "PROTMOB", "PROTPARZ",
                                    "SCHELETR", "ORTODON", "IGIENE", "SBIANC"})
            newRow(QString::fromLatin1(service));
        EXPECT_EQ(find<QWidget>(QStringLiteral("pbTooh(0)"))->geometry(), before);
        EXPECT_EQ(window_->height(), ROOM);
        for (const char* name : {"pbLavoriSeri(9)", "laInEvidenzaBreve(7)", "imSaltaAllOcchio(8)", "cbConferma"}) {
            const auto* part = find<QWidget>(QString::fromLatin1(name));
            const bool shown = beside || QLatin1String(name).startsWith(QLatin1String("pb")) ||
                               QLatin1String(name).startsWith(QLatin1String("cb"));
            EXPECT_EQ(part->isVisible(), shown) << name;
            const QRect place(part->mapTo(window_.get(), QPoint()), part->size());
            EXPECT_TRUE(!shown || window_->rect().contains(place)) << name;
        }
    }
}

TEST_F(Editor, StartsANewPlanWithAnEmptyRowWhereThePracticeWantsIt) {
    oConfig->setAutomaticoRigoVuoto(true);
    open(QString());
    QTest::qWait(5);
    EXPECT_EQ(rows()->rowCount(), 1);
    open(savedPlan(QStringLiteral("2026"), QStringLiteral("0007")).ID);
    QTest::qWait(5);
    EXPECT_EQ(rows()->rowCount(), 0);
}

TEST_F(Editor, OpensStraightOnARowAndFollowsItsAnswerUnseen) {
    clsItemTrattamento item = savedPlan(QStringLiteral("2026"), QStringLiteral("0007"));
    clsItemRigoTrattamento row;
    row.progressivo = QStringLiteral("01");
    row.servizio = QStringLiteral("VISITA");
    row.prezzo = 60;
    item.righi.add(row.progressivo, row);
    ASSERT_TRUE(treatments().Salva(item));
    for (const bool acceptRow : {false, true}) {
        QTimer::singleShot(30, [acceptRow] {
            QWidget* window = QApplication::activeModalWidget();
            ASSERT_NE(window, nullptr);
            EXPECT_EQ(window->objectName(), QStringLiteral("frmEditRigoTrattamento"));
            window->findChild<QLineEdit*>(QStringLiteral("tbDati(2)"))->setText(QStringLiteral("Nuovo testo"));
            const QString button = acceptRow ? QStringLiteral("cbAccetta") : QStringLiteral("cbAnnulla");
            window->findChild<QPushButton*>(button)->click();
        });
        const EditorResult result = ApriTrattamento(item.ID, QStringLiteral("01"));
        EXPECT_EQ(result.confirmed, acceptRow);
        EXPECT_EQ(result.id, item.ID);
        EXPECT_EQ(oHost->Framework().DialogCancel(), !acceptRow);
        EXPECT_FALSE(EsisteLock(QStringLiteral("Trattamento"), item.ID));
        const auto readBack = treatments().Carica(item.ID);
        ASSERT_TRUE(readBack);
        EXPECT_EQ(readBack->righi[0].descrizione, acceptRow ? QStringLiteral("Nuovo testo") : QString());
    }
}
