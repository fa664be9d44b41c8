#include "treatments/TreatmentMemo.h"

#include "platform/XmlDocument.h"
#include "support/ServiceFile.h"
#include "treatments/TreatmentState.h"
#include "treatments/WorkStages.h"
#include "treatments/clsItemTrattamento.h"

#include <gtest/gtest.h>

namespace {

// One finished row on a tooth, one open row on two; line ends and blanks as stored plans have them.
const char MEMO[] =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
    "<trattamento anno=\"2024\" progressivo=\"0007\" data=\"05/01/2024\" fatturaAnticipo=\"2024-0003\" >\r\n"
    "\t<paziente codiceFiscale=\"RSSMRA80A01H501U\">Um9zc2kgTWFyaW8=</paziente>\r\n"
    "\t<medico codiceFiscale=\"VRDNNA70A41H501X\">VmVyZGkgZG90dC4gQW5uYQ==</medico>\r\n"
    "\t<righi>\r\n"
    "\t\t<rigo progressivo=\"01\" denti=\"7\" servizio=\"CORONA\" descrizione=\"Q29yb25h\" ragruppamento=\"PR\" "
    "operatore=\"VRDNNA70A41H501X\" assistente=\"BNCLRA90A41H501Z\" inizioLavori=\"05/01/2024\" "
    "fineLavori=\"12/01/2024\" statusLavori=\"SW1wcm9udGF8MjAyNDAxMDUNClByb3Zh\" fattura=\"2024-0010\" "
    "prezzo=\"1250,50\" fuoriPreventivo=\"1\" note=\"Y2l0dOA=\" />\r\n"
    "\t\t<rigo progressivo=\"02\" denti=\"+7;8\" servizio=\"OTTURAZ\" descrizione=\"T3R0dXJhemlvbmU=\" "
    "ragruppamento=\"\" operatore=\"\" assistente=\"\" inizioLavori=\"12/01/2024\" fineLavori=\"\" statusLavori=\"\" "
    "fattura=\"\" prezzo=\"80,00\" fuoriPreventivo=\"0\" note=\"\" />\r\n"
    "\t</righi>\r\n"
    "\t<descrizione>UmlhYmlsaXRhemlvbmUg6CBwafk=</descrizione>\r\n"
    "\t<annotazioni>Tm90YQ0Kc2Vjb25kYQ==</annotazioni>\r\n"
    "\t<situazioneOrale>NzozOkNhcmll</situazioneOrale>\r\n"
    "</trattamento>";

clsItemRigoTrattamento crown() {
    clsItemRigoTrattamento row;
    row.progressivo = QStringLiteral("01");
    row.dente = QStringLiteral("7");
    row.servizio = QStringLiteral("CORONA");
    row.descrizione = QStringLiteral("Corona");
    row.raggruppamento = QStringLiteral("PR");
    row.operatore = QStringLiteral("VRDNNA70A41H501X");
    row.assistente = QStringLiteral("BNCLRA90A41H501Z");
    row.inizio = QStringLiteral("05/01/2024");
    row.fine = QStringLiteral("12/01/2024");
    row.statuslavori = QStringLiteral("Impronta|20240105\r\nProva");
    row.fattura = QStringLiteral("2024-0010");
    row.prezzo = 1250.5F;
    row.fuoripreventivo = true;
    row.note = QStringLiteral("città");
    return row;
}

clsItemTrattamento plan() {
    clsItemTrattamento item;
    item.anno = QStringLiteral("2024");
    item.progressivo = QStringLiteral("0007");
    item.Data = QStringLiteral("05/01/2024");
    item.fatturaAnticipo = QStringLiteral("2024-0003");
    item.cliente = QStringLiteral("RSSMRA80A01H501U");
    item.descrizionecliente = QStringLiteral("Rossi Mario");
    item.medico = QStringLiteral("VRDNNA70A41H501X");
    item.descrizionemedico = QStringLiteral("Verdi dott. Anna");
    item.descrizione = QStringLiteral("Riabilitazione è più");
    item.Annotazioni = QStringLiteral("Nota\r\nseconda");
    item.SituazioneOrale = QStringLiteral("7:3:Carie");
    item.righi.add(QStringLiteral("01"), crown());
    clsItemRigoTrattamento filling;
    filling.progressivo = QStringLiteral("02");
    filling.dente = QStringLiteral("+");
    filling.denti = QStringLiteral("7;8");
    filling.servizio = QStringLiteral("OTTURAZ");
    filling.descrizione = QStringLiteral("Otturazione");
    filling.inizio = QStringLiteral("12/01/2024");
    filling.prezzo = 80.0F;
    item.righi.add(QStringLiteral("02"), filling);
    return item;
}

/// With a catalogue in which a crown costs 50 and a visit 30.
class TreatmentMemo : public testing::Test {
protected:
    TreatmentMemo() {
        catalogue_.putEntries(ServiceFile::entry("CORONA").replace("60,00", "50,00") +
                              ServiceFile::entry("VISITA").replace("60,00", "30,00"));
    }
    ServiceFile catalogue_;
};

clsItemTrattamento loaded(const QString& memo) {
    clsItemTrattamento item;
    readTreatmentMemo(item, memo);
    return item;
}

QString withRows(const QString& rows, const QString& other = {}) {
    return QStringLiteral("<trattamento anno='2024' progressivo='0001' data='01/02/2024'><righi>") + rows +
           QStringLiteral("</righi>") + other + QStringLiteral("</trattamento>");
}

} // namespace

TEST_F(TreatmentMemo, WritesTheStoredLayoutByteForByte) {
    EXPECT_EQ(writeTreatmentMemo(plan()).toStdString(), std::string(MEMO));
}

TEST_F(TreatmentMemo, ReadsWhatItWrote) {
    const clsItemTrattamento item = loaded(QString::fromLatin1(MEMO));
    EXPECT_EQ(writeTreatmentMemo(item).toStdString(), std::string(MEMO));
    EXPECT_EQ(item.descrizione, QStringLiteral("Riabilitazione è più"));
    ASSERT_EQ(item.righi.size(), 2U);
    EXPECT_EQ(item.righi[0].note, QStringLiteral("città"));
    EXPECT_EQ(item.righi[0].prezzo, 1250.5F);
    EXPECT_EQ(item.righi[0].kprogressivo, QStringLiteral("0007"));
    EXPECT_EQ(item.righi[1].dente, QStringLiteral("+"));
    EXPECT_EQ(item.righi[1].denti, QStringLiteral("7;8"));
    EXPECT_TRUE(item.righi.contains(QStringLiteral("02")));
    EXPECT_EQ(item.lavori, 2);
    EXPECT_EQ(item.lavoriaperti, 1);
    EXPECT_EQ(item.lavorifiniti, 1);
}

TEST_F(TreatmentMemo, KeepsValuesThatWouldBreakTheMemo) {
    const QString difficult = QStringLiteral("a\"b<c>&'d\te\xE9");
    clsItemTrattamento item = plan();
    item.cliente = difficult;
    item.righi.clear();
    clsItemRigoTrattamento row = crown();
    row.servizio = difficult;
    row.fattura = QStringLiteral("x\u0001y"); // no XML document can hold this character
    row.note = QStringLiteral("€ 5 \u2013 \u4E2D");
    item.righi.add(row.progressivo, row);
    const clsItemTrattamento readBack = loaded(writeTreatmentMemo(item));
    EXPECT_EQ(readBack.cliente, difficult);
    ASSERT_EQ(readBack.righi.size(), 1U);
    EXPECT_EQ(readBack.righi[0].servizio, difficult);
    EXPECT_EQ(readBack.righi[0].fattura, QStringLiteral("xy"));
    EXPECT_EQ(readBack.righi[0].note, QStringLiteral("€ 5 \u2013 ?")); // Base64 fields are single bytes
}

TEST_F(TreatmentMemo, AppliesThePriceRule) {
    struct Case {
        const char* attributes;
        float price;
    };
    const Case cases[] = {
        {"servizio='CORONA' prezzo='0,00' fattura=''", 50.0F},
        {"servizio='CORONA' prezzo='0,00' fattura='2024-0001'", 0.0F},
        {"servizio='CORONA' fattura='2024-0001'", 50.0F},
        {"servizio='CORONA' prezzo='12.50' fattura=''", 12.5F},
        {"servizio='CORONA' prezzo='molto' fattura=''", 50.0F},
        {"servizio='' prezzo='0,00' fattura=''", 0.0F},
        {"servizio='IGNOTO' prezzo='0,00' fattura=''", 0.0F},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.attributes);
        const auto item =
            loaded(withRows(QStringLiteral("<rigo progressivo='01' %1/>").arg(QLatin1String(each.attributes))));
        ASSERT_EQ(item.righi.size(), 1U);
        EXPECT_EQ(item.righi[0].prezzo, each.price);
    }
}

TEST_F(TreatmentMemo, ReadsTheSpellingOfOlderMemosAndWritesOnlyTheRightOne) {
    const auto item =
        loaded(withRows(QStringLiteral("<rigo progressivo='01' prezzo='1,00' assitente='ABC'/>"
                                       "<rigo progressivo='02' prezzo='1,00' assistente='' assitente='ABC'/>"
                                       "<rigo progressivo='03' prezzo='1,00'/>")));
    ASSERT_EQ(item.righi.size(), 3U);
    EXPECT_EQ(item.righi[0].assistente, QStringLiteral("ABC"));
    EXPECT_EQ(item.righi[1].assistente, QString());
    EXPECT_EQ(item.righi[2].assistente, QString());
    EXPECT_EQ(item.fatturaAnticipo, QString());
    const QString memo = writeTreatmentMemo(item);
    EXPECT_TRUE(memo.contains(QStringLiteral("assistente=\"ABC\"")));
    EXPECT_FALSE(memo.contains(QStringLiteral("assitente")));
}

TEST_F(TreatmentMemo, DescribesAPlanWithoutDescriptionByItsRows) {
    const QString rows =
        QStringLiteral("<rigo progressivo='1' descrizione='QQ=='/><rigo progressivo='2' descrizione=''/>"
                       "<rigo progressivo='3' descrizione='Qg=='/>");
    EXPECT_EQ(loaded(withRows(rows, QStringLiteral("<descrizione></descrizione>"))).descrizione,
              QStringLiteral("A\r\nB"));
    EXPECT_EQ(loaded(withRows(rows, QStringLiteral("<descrizione>UGlhbm8=</descrizione>"))).descrizione,
              QStringLiteral("Piano"));
}

TEST_F(TreatmentMemo, LeavesThePlanAloneWhenTheMemoIsBroken) {
    const char* broken[] = {"",
                            "<trattamento",
                            "<trattamento anno='1'><righi></trattamento>",
                            "<preventivo anno='1'/>",
                            "<trattamento anno='1' anno='2'/>",
                            "<trattamento anno='1'>a & b</trattamento>"};
    for (const char* memo : broken) {
        SCOPED_TRACE(memo);
        clsItemTrattamento item = plan();
        readTreatmentMemo(item, QLatin1String(memo));
        EXPECT_EQ(item.anno, QStringLiteral("2024"));
        EXPECT_EQ(item.righi.size(), 2U);
        EXPECT_EQ(item.fatturaAnticipo, QStringLiteral("2024-0003"));
    }
}

TEST_F(TreatmentMemo, RefusesTwoRowsOfOneNumber) {
    clsItemTrattamento item;
    EXPECT_THROW(readTreatmentMemo(item, withRows(QStringLiteral("<rigo progressivo='01'/><rigo progressivo=' 01'/>"))),
                 platform::DuplicateKey);
    EXPECT_EQ(item.righi.size(), 1U);
}

TEST(TreatmentState, TellsHowFarAPlanHasCome) {
    struct Case {
        qint16 work, open, finished;
        const char* text;
        int icon;
    };
    const Case cases[] = {
        {0, 0, 0, "", 0},
        {3, 0, 3, "FINITO", 3},
        {3, 0, 0, "Da iniziare", 5},
        {2, 2, 0, "Aperti 2 lavori", 2},
        {5, 2, 0, "Aperti 2 lavori. Restano da iniziare 3 lavori", 2},
        {5, 2, 1, "1 lavori finiti. Ci sono 2 lavori aperti. Restano da iniziare 2 lavori", 2},
        {3, 1, 2, "2 lavori finiti. Ci sono 1 lavori aperti", 2},
        {4, 0, 1, "1 lavori finiti. Restano da iniziare 3 lavori", 5},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.text);
        clsItemTrattamento item;
        item.lavori = each.work;
        item.lavoriaperti = each.open;
        item.lavorifiniti = each.finished;
        const TreatmentState state = treatmentState(item);
        EXPECT_EQ(state.text, QLatin1String(each.text));
        EXPECT_EQ(state.icon, each.icon);
    }
}

TEST(WorkStages, ReadsAndWritesTheLinesOfARow) {
    const auto stages = workstages::read(
        QStringLiteral("Impronta|2024010520240112\r\nProva|20240110\r\nCottura\r\nConsegna|2024\r\nQuinto"));
    ASSERT_EQ(stages.size(), 4);
    EXPECT_EQ(stages[0].start, QDate(2024, 1, 5));
    EXPECT_EQ(stages[0].end, QDate(2024, 1, 12));
    EXPECT_EQ(stages[1].start, QDate(2024, 1, 10));
    EXPECT_FALSE(stages[1].end.isValid());
    EXPECT_FALSE(stages[2].start.isValid());
    EXPECT_FALSE(stages[3].start.isValid());
    EXPECT_EQ(workstages::write(stages),
              QStringLiteral("Impronta|2024010520240112\r\nProva|20240110\r\nCottura\r\nConsegna"));
    EXPECT_EQ(workstages::write({}), QString());
    EXPECT_EQ(workstages::names(QStringLiteral("  A\r\nB\r\nC\r\nD\r\nE ")).join(QLatin1Char(',')),
              QStringLiteral("A,B,C,D"));
    EXPECT_TRUE(workstages::names(QString()).isEmpty());
}
