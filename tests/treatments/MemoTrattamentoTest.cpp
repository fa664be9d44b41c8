#include "treatments/MemoTrattamento.h"

#include "platform/XmlDocument.h"
#include "support/ServiceFile.h"
#include "treatments/StadiLavoro.h"
#include "treatments/StatoTrattamento.h"
#include "treatments/TotaliRighi.h"
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

clsItemRigoTrattamento corona() {
    clsItemRigoTrattamento rigo;
    rigo.progressivo = QStringLiteral("01");
    rigo.dente = QStringLiteral("7");
    rigo.servizio = QStringLiteral("CORONA");
    rigo.descrizione = QStringLiteral("Corona");
    rigo.raggruppamento = QStringLiteral("PR");
    rigo.operatore = QStringLiteral("VRDNNA70A41H501X");
    rigo.assistente = QStringLiteral("BNCLRA90A41H501Z");
    rigo.inizio = QStringLiteral("05/01/2024");
    rigo.fine = QStringLiteral("12/01/2024");
    rigo.statuslavori = QStringLiteral("Impronta|20240105\r\nProva");
    rigo.fattura = QStringLiteral("2024-0010");
    rigo.prezzo = 1250.5F;
    rigo.fuoripreventivo = true;
    rigo.note = QStringLiteral("città");
    return rigo;
}

clsItemTrattamento piano() {
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
    item.righi.add(QStringLiteral("01"), corona());
    clsItemRigoTrattamento otturazione;
    otturazione.progressivo = QStringLiteral("02");
    otturazione.dente = QStringLiteral("+");
    otturazione.denti = QStringLiteral("7;8");
    otturazione.servizio = QStringLiteral("OTTURAZ");
    otturazione.descrizione = QStringLiteral("Otturazione");
    otturazione.inizio = QStringLiteral("12/01/2024");
    otturazione.prezzo = 80.0F;
    item.righi.add(QStringLiteral("02"), otturazione);
    return item;
}

/// With a catalogue in which a crown costs 50 and a visit 30.
class MemoTrattamento : public testing::Test {
protected:
    MemoTrattamento() {
        catalogo_.putEntries(ServiceFile::entry("CORONA").replace("60,00", "50,00") +
                             ServiceFile::entry("VISITA").replace("60,00", "30,00"));
    }
    ServiceFile catalogo_;
};
using TotaliDeiRighi = MemoTrattamento;

clsItemTrattamento letto(const QString& memo) {
    clsItemTrattamento item;
    leggiMemoTrattamento(item, memo);
    return item;
}

QString conRighi(const QString& righi, const QString& altro = {}) {
    return QStringLiteral("<trattamento anno='2024' progressivo='0001' data='01/02/2024'><righi>") + righi +
           QStringLiteral("</righi>") + altro + QStringLiteral("</trattamento>");
}

} // namespace

TEST_F(MemoTrattamento, WritesTheStoredLayoutByteForByte) {
    EXPECT_EQ(scriviMemoTrattamento(piano()).toStdString(), std::string(MEMO));
}

TEST_F(MemoTrattamento, ReadsWhatItWrote) {
    const clsItemTrattamento item = letto(QString::fromLatin1(MEMO));
    EXPECT_EQ(scriviMemoTrattamento(item).toStdString(), std::string(MEMO));
    EXPECT_EQ(item.descrizione, QStringLiteral("Riabilitazione è più"));
    ASSERT_EQ(item.righi.size(), 2U);
    EXPECT_EQ(item.righi[0].note, QStringLiteral("città"));
    EXPECT_FLOAT_EQ(item.righi[0].prezzo, 1250.5F);
    EXPECT_EQ(item.righi[0].kprogressivo, QStringLiteral("0007"));
    EXPECT_EQ(item.righi[1].dente, QStringLiteral("+"));
    EXPECT_EQ(item.righi[1].denti, QStringLiteral("7;8"));
    EXPECT_TRUE(item.righi.contains(QStringLiteral("02")));
    EXPECT_EQ(item.lavori, 2);
    EXPECT_EQ(item.lavoriaperti, 1);
    EXPECT_EQ(item.lavorifiniti, 1);
}

TEST_F(MemoTrattamento, KeepsValuesThatWouldBreakTheMemo) {
    const QString difficile = QStringLiteral("a\"b<c>&'d\te\xE9");
    clsItemTrattamento item = piano();
    item.cliente = difficile;
    item.righi.clear();
    clsItemRigoTrattamento rigo = corona();
    rigo.servizio = difficile;
    rigo.fattura = QStringLiteral("x\u0001y"); // no XML document can hold this character
    rigo.note = QStringLiteral("€ 5 \u2013 \u4E2D");
    item.righi.add(rigo.progressivo, rigo);
    const clsItemTrattamento riletto = letto(scriviMemoTrattamento(item));
    EXPECT_EQ(riletto.cliente, difficile);
    ASSERT_EQ(riletto.righi.size(), 1U);
    EXPECT_EQ(riletto.righi[0].servizio, difficile);
    EXPECT_EQ(riletto.righi[0].fattura, QStringLiteral("xy"));
    EXPECT_EQ(riletto.righi[0].note, QStringLiteral("€ 5 \u2013 ?")); // Base64 fields are single bytes
}

TEST_F(MemoTrattamento, AppliesThePriceRule) {
    struct Caso {
        const char* attributi;
        float prezzo;
    };
    const Caso casi[] = {
        {"servizio='CORONA' prezzo='0,00' fattura=''", 50.0F},
        {"servizio='CORONA' prezzo='0,00' fattura='2024-0001'", 0.0F},
        {"servizio='CORONA' fattura='2024-0001'", 50.0F},
        {"servizio='CORONA' prezzo='12.50' fattura=''", 12.5F},
        {"servizio='CORONA' prezzo='molto' fattura=''", 50.0F},
        {"servizio='' prezzo='0,00' fattura=''", 0.0F},
        {"servizio='IGNOTO' prezzo='0,00' fattura=''", 0.0F},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.attributi);
        const auto item =
            letto(conRighi(QStringLiteral("<rigo progressivo='01' %1/>").arg(QLatin1String(caso.attributi))));
        ASSERT_EQ(item.righi.size(), 1U);
        EXPECT_FLOAT_EQ(item.righi[0].prezzo, caso.prezzo);
    }
}

TEST_F(MemoTrattamento, ReadsTheSpellingOfOlderMemosAndWritesOnlyTheRightOne) {
    const auto item =
        letto(conRighi(QStringLiteral("<rigo progressivo='01' prezzo='1,00' assitente='ABC'/>"
                                      "<rigo progressivo='02' prezzo='1,00' assistente='' assitente='ABC'/>"
                                      "<rigo progressivo='03' prezzo='1,00'/>")));
    ASSERT_EQ(item.righi.size(), 3U);
    EXPECT_EQ(item.righi[0].assistente, QStringLiteral("ABC"));
    EXPECT_EQ(item.righi[1].assistente, QString());
    EXPECT_EQ(item.righi[2].assistente, QString());
    EXPECT_EQ(item.fatturaAnticipo, QString());
    const QString memo = scriviMemoTrattamento(item);
    EXPECT_TRUE(memo.contains(QStringLiteral("assistente=\"ABC\"")));
    EXPECT_FALSE(memo.contains(QStringLiteral("assitente")));
}

TEST_F(MemoTrattamento, DescribesAPlanWithoutDescriptionByItsRows) {
    const QString righi =
        QStringLiteral("<rigo progressivo='1' descrizione='QQ=='/><rigo progressivo='2' descrizione=''/>"
                       "<rigo progressivo='3' descrizione='Qg=='/>");
    EXPECT_EQ(letto(conRighi(righi, QStringLiteral("<descrizione></descrizione>"))).descrizione,
              QStringLiteral("A\r\nB"));
    EXPECT_EQ(letto(conRighi(righi, QStringLiteral("<descrizione>UGlhbm8=</descrizione>"))).descrizione,
              QStringLiteral("Piano"));
}

TEST_F(MemoTrattamento, LeavesThePlanAloneWhenTheMemoIsBroken) {
    const char* rotti[] = {"",
                           "<trattamento",
                           "<trattamento anno='1'><righi></trattamento>",
                           "<preventivo anno='1'/>",
                           "<trattamento anno='1' anno='2'/>",
                           "<trattamento anno='1'>a & b</trattamento>"};
    for (const char* memo : rotti) {
        SCOPED_TRACE(memo);
        clsItemTrattamento item = piano();
        leggiMemoTrattamento(item, QLatin1String(memo));
        EXPECT_EQ(item.anno, QStringLiteral("2024"));
        EXPECT_EQ(item.righi.size(), 2U);
        EXPECT_EQ(item.fatturaAnticipo, QStringLiteral("2024-0003"));
    }
}

TEST_F(MemoTrattamento, RefusesTwoRowsOfOneNumber) {
    clsItemTrattamento item;
    EXPECT_THROW(
        leggiMemoTrattamento(item, conRighi(QStringLiteral("<rigo progressivo='01'/><rigo progressivo=' 01'/>"))),
        platform::DuplicateKey);
    EXPECT_EQ(item.righi.size(), 1U);
}

TEST(StatoTrattamento, TellsHowFarAPlanHasCome) {
    struct Caso {
        qint16 lavori, aperti, finiti;
        const char* testo;
        int icona;
    };
    const Caso casi[] = {
        {0, 0, 0, "", 0},
        {3, 0, 3, "FINITO", 3},
        {3, 0, 0, "Da iniziare", 5},
        {2, 2, 0, "Aperti 2 lavori", 2},
        {5, 2, 0, "Aperti 2 lavori. Restano da iniziare 3 lavori", 2},
        {5, 2, 1, "1 lavori finiti. Ci sono 2 lavori aperti. Restano da iniziare 2 lavori", 2},
        {3, 1, 2, "2 lavori finiti. Ci sono 1 lavori aperti", 2},
        {4, 0, 1, "1 lavori finiti. Restano da iniziare 3 lavori", 5},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.testo);
        clsItemTrattamento item;
        item.lavori = caso.lavori;
        item.lavoriaperti = caso.aperti;
        item.lavorifiniti = caso.finiti;
        const StatoTrattamento stato = statoTrattamento(item);
        EXPECT_EQ(stato.testo, QLatin1String(caso.testo));
        EXPECT_EQ(stato.icona, caso.icona);
    }
}

TEST_F(TotaliDeiRighi, CountsEachToothAndTakesTheCataloguePriceOfFreeRows) {
    clsItemRigoTrattamento finito = corona(); // 1250,50 on one tooth
    clsItemRigoTrattamento aperto = finito;
    aperto.fine.clear();
    aperto.dente = QStringLiteral("+");
    aperto.denti = QStringLiteral("7;8;9");
    aperto.prezzo = 0;
    clsItemRigoTrattamento vuoto = finito;
    vuoto.servizio.clear();
    const TotaliRighi totali = calcolaTotali({finito, aperto, vuoto});
    EXPECT_FLOAT_EQ(totali.terminati, 1250.5F);
    EXPECT_FLOAT_EQ(totali.daTerminare, 150.0F);
}

TEST(StadiLavoro, ReadsAndWritesTheLinesOfARow) {
    const auto stadi = stadilavoro::leggi(
        QStringLiteral("Impronta|2024010520240112\r\nProva|20240110\r\nCottura\r\nConsegna|2024\r\nQuinto"));
    ASSERT_EQ(stadi.size(), 4);
    EXPECT_EQ(stadi[0].inizio, QDate(2024, 1, 5));
    EXPECT_EQ(stadi[0].fine, QDate(2024, 1, 12));
    EXPECT_EQ(stadi[1].inizio, QDate(2024, 1, 10));
    EXPECT_FALSE(stadi[1].fine.isValid());
    EXPECT_FALSE(stadi[2].inizio.isValid());
    EXPECT_FALSE(stadi[3].inizio.isValid());
    EXPECT_EQ(stadilavoro::scrivi(stadi),
              QStringLiteral("Impronta|2024010520240112\r\nProva|20240110\r\nCottura\r\nConsegna"));
    EXPECT_EQ(stadilavoro::scrivi({}), QString());
    EXPECT_EQ(stadilavoro::nomi(QStringLiteral("  A\r\nB\r\nC\r\nD\r\nE ")).join(QLatin1Char(',')),
              QStringLiteral("A,B,C,D"));
    EXPECT_TRUE(stadilavoro::nomi(QString()).isEmpty());
}
