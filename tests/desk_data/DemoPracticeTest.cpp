#include "PracticeFixture.h"

#include "desk/data/DatabaseService.h"
#include "desk/data/DemoPractice.h"
#include "desk/data/UserDirectory.h"
#include "platform/SingleByteText.h"
#include "platform/XmlDocument.h"

#include <QSet>

namespace {

// The last letter of a tax code, from the fifteen characters before it.
QChar checkCharacter(const QString& taxCode) {
    static const int odd[] = {1,  0,  5, 7, 9, 13, 15, 17, 19, 21, 2,  4,  18,
                              20, 11, 3, 6, 8, 12, 14, 16, 10, 22, 25, 24, 23};
    int sum = 0;
    for (int i = 0; i < 15; ++i) {
        const QChar c = taxCode[i];
        const int value = c.isDigit() ? c.digitValue() : c.unicode() - 'A';
        sum += i % 2 == 0 ? odd[value] : value;
    }
    return QChar(static_cast<ushort>('A' + sum % 26));
}

} // namespace

class DemoPracticeTest : public PracticeFixture {
protected:
    DemoPracticeTest() { EXPECT_TRUE(desk::DemoPractice::fill(*database_)); }

    int count(const char* from) {
        return desk::DatabaseService(*database_, sign_)
            .OpenRecordset(QStringLiteral("select count(*) as n from tessara.") + QLatin1String(from))
            ->value(QStringLiteral("n"))
            .toInt();
    }
};

TEST_F(DemoPracticeTest, FillsAnEmptyPracticeOnlyOnce) {
    EXPECT_FALSE(desk::DemoPractice::fill(*database_));
    EXPECT_EQ(count("tblPazienti"), 40);
    EXPECT_GE(count("tblAppunti where b2=1"), 3);
    EXPECT_GE(count("tblAppunti where b1=1"), 1);
    for (const char* table : {"tblVisite", "tblEventi", "tblScadenze", "tblAppunti"})
        EXPECT_GE(count(table), 10) << table;
    for (const char* table : {"tblWorkspace", "tblVisite", "tblEventi", "tblScadenze", "tblAppunti"})
        EXPECT_EQ(count(QByteArray(table).append(" where Data >= '2026-01-01' or Data is null").constData()), 0)
            << table;
}

TEST_F(DemoPracticeTest, UsersAndPatientsHaveValidTaxCodes) {
    QSet<QString> doctors;
    int assistants = 0;
    for (const desk::UserData& user : desk::UserDirectory(*database_).all()) {
        EXPECT_EQ(checkCharacter(user.codicefiscale), user.codicefiscale.back()) << user.Cognome.toStdString();
        if (user.tipo == 0) doctors << user.ID;
        if (user.tipo == 3) ++assistants;
    }
    EXPECT_EQ(doctors.size(), 2);
    EXPECT_EQ(assistants, 2);
    EXPECT_EQ(desk::UserDirectory(*database_).forSignIn({})->codiceAttivita, QStringLiteral("OD"));

    desk::PatientDirectory directory(*database_, sign_);
    QSet<QString> codes;
    for (const desk::PatientSummary& patient : directory.search({})) {
        ASSERT_EQ(patient.codicefiscale.size(), 16);
        EXPECT_EQ(checkCharacter(patient.codicefiscale), patient.codicefiscale.back()) << patient.Cognome.toStdString();
        codes << patient.codicefiscale;
    }
    EXPECT_EQ(codes.size(), 40);

    const auto rossi = bound(directory.idByTaxCode(QStringLiteral("rssmra80a01h501u ")));
    EXPECT_EQ(rossi->Nome(), QStringLiteral("Mario"));
    EXPECT_TRUE(doctors.contains(rossi->IDMedico()));
    EXPECT_FALSE(rossi->medico().codicefiscale.isEmpty());
    EXPECT_TRUE(rossi->corvala().Lista().isEmpty());
    EXPECT_TRUE(rossi->Appunti().Lista().isEmpty());
    EXPECT_TRUE(rossi->VisiteAmbDom().Lista().isEmpty());
    EXPECT_TRUE(rossi->Eventi().Lista().isEmpty());
    EXPECT_TRUE(rossi->scadenze().Lista().isEmpty());
}

TEST_F(DemoPracticeTest, PlansAreWholeRecordsOfKnownServices) {
    const QSet<QString> services{QStringLiteral("VISITA"),   QStringLiteral("OTTURAZ"), QStringLiteral("CORONA"),
                                 QStringLiteral("IMPIANTO"), QStringLiteral("ESTRAZ"),  QStringLiteral("DEVITAL"),
                                 QStringLiteral("IGIENE")};
    QSet<QString> used, numbers;
    int open = 0, finished = 0, waiting = 0;
    const auto rows =
        desk::DatabaseService(*database_, sign_)
            .OpenRecordset(QStringLiteral("select w.*, p.codicefiscale as cf from tessara.tblWorkspace w join "
                                          "tessara.tblPazienti p on p.ID = w.idpaziente"));
    for (; !rows->isEOF(); rows->MoveNext()) {
        platform::XmlDocument memo;
        ASSERT_TRUE(memo.loadText(rows->text(QStringLiteral("m1")))) << memo.lastError().toStdString();
        const platform::XmlNode root = memo.root();
        const QString number = root.attribute("anno", {}) + QLatin1Char('-') + root.attribute("progressivo", {});
        EXPECT_EQ(number, rows->text(QStringLiteral("idrif1")));
        numbers << number;
        EXPECT_EQ(root.firstChild("paziente").attribute("codiceFiscale", {}), rows->text(QStringLiteral("cf")));
        const QByteArray description = QByteArray::fromBase64(root.firstChild("descrizione").text().toLatin1());
        EXPECT_EQ(platform::fromSingleByte(description), rows->text(QStringLiteral("descrizione")));
        for (const platform::XmlNode& row : memo.select("//righi/rigo")) {
            used << row.attribute("servizio", {});
            const bool started = !row.attribute("inizioLavori", {}).isEmpty();
            const bool ended = !row.attribute("fineLavori", {}).isEmpty();
            EXPECT_TRUE(started || !ended);
            ++(ended ? finished : started ? open : waiting);
        }
    }
    EXPECT_EQ(numbers.size(), rows->RecordCount()) << "no number twice";
    EXPECT_EQ(used, services);
    EXPECT_GT(open, 3);
    EXPECT_GT(finished, 3);
    EXPECT_GT(waiting, 3);
}
