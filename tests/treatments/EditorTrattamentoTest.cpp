#include "treatments/frmEditTrattamento.h"

#include "EditorDiProva.h"
#include "platform/Files.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"
#include "store/modLock.h"
#include "treatments/ApriTrattamento.h"
#include "treatments/MemoTrattamento.h"
#include "treatments/RigoInGriglia.h"

#include <QApplication>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using platform::form::arrayName;
using namespace rigogriglia;

namespace {

class Editor : public EditorDiProva {};

} // namespace

TEST_F(Editor, StoresANewPlanAsWorkedInTheWindow) {
    apri(QString());
    EXPECT_EQ(dato(0)->text(), QStringLiteral("2026"));
    EXPECT_EQ(dato(1)->text(), QStringLiteral("0001"));
    QTest::keyClicks(dato(2), QStringLiteral("Piano di prova"));
    trova<QPlainTextEdit>(QStringLiteral("tbDati(7)"))->setPlainText(QStringLiteral("Una nota\ne un'altra"));
    nuovoRigo(QStringLiteral("VISITA"));
    nuovoRigo(QStringLiteral("CORONA"), QStringLiteral("+1.1;1.2"));
    scrivi(0, INIZIO, QStringLiteral("1/3/2026"));
    scrivi(0, FINE, QStringLiteral("02/03/2026"));
    scrivi(1, OPERATORE, QStringLiteral("Marchetti dott. Paolo"));
    scrivi(1, ASSISTENTE, QStringLiteral("Conti Giulia"));
    scrivi(1, NOTE, QStringLiteral("da rivedere"));
    EXPECT_EQ(trova<QLineEdit>(QStringLiteral("tbTotale(0)"))->text(), QStringLiteral("60,00"));
    EXPECT_EQ(trova<QLineEdit>(QStringLiteral("tbTotale(1)"))->text(), QStringLiteral("1400,00"));
    conferma();

    EXPECT_FALSE(finestra_->isVisible());
    EXPECT_FALSE(oHost->Framework().DialogCancel());
    EXPECT_TRUE(dialoghi_.messages.isEmpty());
    const auto stored = riga(QStringLiteral("2026-0001"));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->descrizione, QStringLiteral("Piano di prova"));
    const char atteso[] =
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
    EXPECT_EQ(stored->m1.toStdString(), std::string(atteso));
}

TEST_F(Editor, NamesWhatKeepsThePlanFromBeingSaved) {
    struct Caso {
        const char *anno, *progressivo, *messaggio;
        int campo;
    };
    const Caso casi[] = {
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
    apri(QString());
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.messaggio);
        dato(0)->setText(QLatin1String(caso.anno));
        dato(1)->setText(QLatin1String(caso.progressivo));
        conferma();
        EXPECT_EQ(dialoghi_.messages.value(0), QLatin1String(caso.messaggio));
        EXPECT_EQ(dialoghi_.values.value(0), 48);
        EXPECT_EQ(dialoghi_.titles.value(0), QStringLiteral("Tessara 5000. CORVALA"));
        EXPECT_EQ(QApplication::focusWidget(), dato(caso.campo));
        EXPECT_TRUE(finestra_->isVisible());
        dialoghi_.messages.clear();
    }
    dato(0)->setText(QStringLiteral("2026"));
    dato(1)->setText(QStringLiteral("12"));
    conferma();
    EXPECT_TRUE(riga(QStringLiteral("2026-0012"))); // a plan without rows or description is a plan

    // Numbers that earlier versions let through, and doubled ones, are no reason to refuse what is stored already.
    for (const char* numero : {"99999", "0", "0012"}) {
        SCOPED_TRACE(numero);
        const QString id = salvato(QStringLiteral("2025"), QLatin1String(numero)).ID;
        archivio_.execute(QStringLiteral("update tblWorkspace set idrif1 = '2026-0012' where idrif1 = '2025-0012'"));
        apri(id);
        dato(2)->setText(QStringLiteral("Corretto"));
        conferma();
        EXPECT_FALSE(finestra_->isVisible());
        EXPECT_EQ(trattamenti().Carica(id)->descrizione, QStringLiteral("Corretto"));
    }
}

TEST_F(Editor, TakesTheNextNumberWhenItsOwnWasTakenMeanwhile) {
    apri(QString());
    const QString proposto = dato(1)->text();
    salvato(QStringLiteral("2026"), proposto);
    QTest::keyClicks(dato(2), QStringLiteral("Secondo"));
    conferma();
    EXPECT_TRUE(dialoghi_.messages.isEmpty());
    ASSERT_TRUE(riga(QStringLiteral("2026-0002")));
    EXPECT_EQ(riga(QStringLiteral("2026-0002"))->descrizione, QStringLiteral("Secondo"));
}

TEST_F(Editor, OpensReadOnlyWhatIsInUseAndLeavesTheOthersLock) {
    const QString id = salvato(QStringLiteral("2026"), QStringLiteral("0007")).ID;
    sIDTrattamento = id;
    frmEditTrattamento primo;
    EXPECT_TRUE(EsisteLock(QStringLiteral("Trattamento"), id));
    EXPECT_EQ(primo.findChild<QPushButton*>(QStringLiteral("cbAnnulla"))->property("Tag").toString(), id);

    apri(id);
    EXPECT_EQ(dialoghi_.messages, QStringList{QStringLiteral("Attenzione! Trattamento in uso ad altro utente!\r\n"
                                                             "Eventuali modifiche verranno tralasciate!")});
    EXPECT_EQ(dialoghi_.values, QList<int>{platform::MB_WARNING});
    for (const char* nome : {"cbConferma", "cbRighi(0)", "cbRighi(2)", "cbAppunti(0)", "cbAppunti(2)", "cbFattura"})
        EXPECT_FALSE(trova<QPushButton>(QLatin1String(nome))->isEnabled()) << nome;
    EXPECT_EQ(trova<QPushButton>(QStringLiteral("cbRighi(1)"))->text(), QStringLiteral("dettagli"));
    EXPECT_EQ(trova<QPushButton>(QStringLiteral("cbAppunti(1)"))->text(), QStringLiteral("dettagli"));
    EXPECT_EQ(trova<QPushButton>(QStringLiteral("cbAnnulla"))->text(), QStringLiteral("Chiudi"));
    premi(QStringLiteral("cbAnnulla"));
    EXPECT_FALSE(finestra_->isVisible());
    EXPECT_TRUE(EsisteLock(QStringLiteral("Trattamento"), id));

    QTest::keyClick(&primo, Qt::Key_Escape);
    EXPECT_FALSE(EsisteLock(QStringLiteral("Trattamento"), id));
}

TEST_F(Editor, ReopensAStoredPlanAndSavesItUnchanged) {
    clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0007"));
    clsItemRigoTrattamento rigo;
    rigo.progressivo = QStringLiteral("01");
    rigo.servizio = QStringLiteral("CORONA");
    rigo.descrizione = QStringLiteral("A mano");
    rigo.dente = QStringLiteral("+");
    rigo.denti = QStringLiteral("7;8");
    rigo.inizio = QStringLiteral("01/03/2026");
    rigo.statuslavori = QStringLiteral("Preparazione|20260301\r\nImpronta");
    rigo.raggruppamento = QStringLiteral("99"); // struck off the list since
    rigo.operatore = QStringLiteral("SCONOSCIUTO");
    rigo.fattura = QStringLiteral("2026-0003");
    rigo.prezzo = 12.5F;
    rigo.fuoripreventivo = true;
    rigo.note = QStringLiteral("Nota");
    item.righi.add(rigo.progressivo, rigo);
    item.medico = QStringLiteral("X");
    item.Annotazioni = QStringLiteral("Uno\r\ndue");
    item.SituazioneOrale = QStringLiteral("7:3:Carie;20:9:");
    item.fatturaAnticipo = QStringLiteral("2026-0003");
    ASSERT_TRUE(trattamenti().Salva(item));
    const QString memo = riga(QStringLiteral("2026-0007"))->m1;

    apri(item.ID);
    EXPECT_EQ(dato(3)->text(), QStringLiteral("2026"));
    EXPECT_EQ(dato(4)->text(), QStringLiteral("0003"));
    EXPECT_EQ(cella(0, DENTE), QStringLiteral("+"));
    EXPECT_EQ(righi()->rowRecord(0)->cell(DENTE).tag, QStringLiteral("1.1;2.1"));
    EXPECT_EQ(righi()->rowRecord(0)->cell(DESCRIZIONE).style().background, QColor(255, 127, 127));
    EXPECT_TRUE(righi()->rowRecord(0)->cell(DESCRIZIONE).style().bold);
    EXPECT_EQ(righi()->rowRecord(0)->cell(INIZIO).style().background, QColor(255, 233, 127));
    conferma();
    EXPECT_EQ(riga(QStringLiteral("2026-0007"))->m1.toStdString(), memo.toStdString());
}

TEST_F(Editor, CoversNewRowsByTheAdvanceInvoice) {
    apri(QString());
    nuovoRigo(QStringLiteral("VISITA"));
    dato(3)->setText(QStringLiteral("2026"));
    QTest::keyClicks(dato(4), QStringLiteral("3"));
    QTest::keyClick(dato(4), Qt::Key_Return);
    EXPECT_EQ(dato(4)->text(), QStringLiteral("0003"));
    nuovoRigo(QStringLiteral("VISITA"));
    EXPECT_EQ(cella(0, FATTURA), QString());
    EXPECT_EQ(cella(1, FATTURA), QStringLiteral("2026-0003"));
    conferma();
    EXPECT_TRUE(riga(QStringLiteral("2026-0001"))->m1.contains(QStringLiteral("fatturaAnticipo=\"2026-0003\"")));
}

TEST_F(Editor, TiesChartAndRowsTogether) {
    apri(QString());
    nuovoRigo(QStringLiteral("CORONA"), QStringLiteral("+1.1;1.2"));
    nuovoRigo(QStringLiteral("VISITA"), QStringLiteral("4.6"));
    nuovoRigo(QStringLiteral("VISITA"), QStringLiteral("9.9")); // no such tooth
    const auto dente = [this](int indice) { return trova<QWidget>(arrayName("imTooth", indice)); };
    QTest::mouseClick(dente(6), Qt::LeftButton);
    EXPECT_TRUE(righi()->rowRecord(0)->cell(SERVIZIO).style().bold);
    EXPECT_FALSE(righi()->rowRecord(1)->cell(SERVIZIO).style().bold);
    QTest::mouseClick(dente(6), Qt::LeftButton);
    EXPECT_FALSE(righi()->rowRecord(0)->cell(SERVIZIO).style().bold);

    dialoghi_.choice = colSituazioniDenti->find(QStringLiteral("3"))->descrizione;
    QTest::mouseClick(dente(7), Qt::RightButton);
    ASSERT_EQ(dialoghi_.menu.size(), 7);
    EXPECT_EQ(dialoghi_.menu[0], QStringLiteral("Informazioni"));
    EXPECT_EQ(dialoghi_.menu[1], QStringLiteral("-------------------"));
    conferma();
    clsItemTrattamento item;
    leggiMemoTrattamento(item, riga(QStringLiteral("2026-0001"))->m1);
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
        apri({});
        EXPECT_LE(finestra_->minimumSizeHint().height(), ROOM);
        finestra_->resize(1366, ROOM);
        QTest::qWait(1);
        const QRect before = trova<QWidget>(QStringLiteral("pbTooh(0)"))->geometry();
        for (const char* servizio : {"IMPIANTO", "CORONA", "CORMC", "CORIMP", "PONTE", "ESTRCHIR", "PROTMOB",
                                     "PROTPARZ", "SCHELETR", "ORTODON", "IGIENE", "SBIANC"})
            nuovoRigo(QString::fromLatin1(servizio));
        EXPECT_EQ(trova<QWidget>(QStringLiteral("pbTooh(0)"))->geometry(), before);
        EXPECT_EQ(finestra_->height(), ROOM);
        for (const char* nome : {"pbLavoriSeri(9)", "laInEvidenzaBreve(7)", "imSaltaAllOcchio(8)", "cbConferma"}) {
            const auto* parte = trova<QWidget>(QString::fromLatin1(nome));
            const bool shown = beside || QLatin1String(nome).startsWith(QLatin1String("pb")) ||
                               QLatin1String(nome).startsWith(QLatin1String("cb"));
            EXPECT_EQ(parte->isVisible(), shown) << nome;
            const QRect place(parte->mapTo(finestra_.get(), QPoint()), parte->size());
            EXPECT_TRUE(!shown || finestra_->rect().contains(place)) << nome;
        }
    }
}

TEST_F(Editor, StartsANewPlanWithAnEmptyRowWhereThePracticeWantsIt) {
    oConfig->setAutomaticoRigoVuoto(true);
    apri(QString());
    QTest::qWait(5);
    EXPECT_EQ(righi()->rowCount(), 1);
    apri(salvato(QStringLiteral("2026"), QStringLiteral("0007")).ID);
    QTest::qWait(5);
    EXPECT_EQ(righi()->rowCount(), 0);
}

TEST_F(Editor, OpensStraightOnARowAndFollowsItsAnswerUnseen) {
    clsItemTrattamento item = salvato(QStringLiteral("2026"), QStringLiteral("0007"));
    clsItemRigoTrattamento rigo;
    rigo.progressivo = QStringLiteral("01");
    rigo.servizio = QStringLiteral("VISITA");
    rigo.prezzo = 60;
    item.righi.add(rigo.progressivo, rigo);
    ASSERT_TRUE(trattamenti().Salva(item));
    for (const bool accetta : {false, true}) {
        sRigoTrattamento = QStringLiteral("01");
        QTimer::singleShot(30, [accetta] {
            QWidget* finestra = QApplication::activeModalWidget();
            ASSERT_NE(finestra, nullptr);
            EXPECT_EQ(finestra->objectName(), QStringLiteral("frmEditRigoTrattamento"));
            finestra->findChild<QLineEdit*>(QStringLiteral("tbDati(2)"))->setText(QStringLiteral("Nuovo testo"));
            const QString bottone = accetta ? QStringLiteral("cbAccetta") : QStringLiteral("cbAnnulla");
            finestra->findChild<QPushButton*>(bottone)->click();
        });
        ApriTrattamento(item.ID);
        EXPECT_TRUE(sRigoTrattamento.isEmpty());
        EXPECT_EQ(oHost->Framework().DialogCancel(), !accetta);
        EXPECT_FALSE(EsisteLock(QStringLiteral("Trattamento"), item.ID));
        const auto riletto = trattamenti().Carica(item.ID);
        ASSERT_TRUE(riletto);
        EXPECT_EQ(riletto->righi[0].descrizione, accetta ? QStringLiteral("Nuovo testo") : QString());
    }
}
