#include "PracticeFixture.h"

#include "desk/data/DatabaseService.h"
#include "desk/data/UserDirectory.h"

class PatientDirectoryTest : public PracticeFixture {
protected:
    QStringList surnames(const QString& text,
                         desk::PatientDirectory::Column column = desk::PatientDirectory::Column::NameAndSurname) {
        QStringList found;
        for (const desk::PatientSummary& patient : directory_.search(text, column))
            found << patient.Cognome;
        return found;
    }

    desk::PatientDirectory directory_{*database_, sign_};
};

TEST_F(PatientDirectoryTest, FindsNamesAsPeopleTypeThem) {
    addPatient(QStringLiteral("D'Angelo"), QStringLiteral("Nicolò"), QStringLiteral("DNGNCL15H03H501F"));
    addPatient(QStringLiteral("De Luca"), QStringLiteral("Ésther"));
    addPatient(QStringLiteral("Rossi"), QStringLiteral("Mario"), QStringLiteral("RSSMRA80A01H501U"));
    addPatient(QStringLiteral("Rossi"), QStringLiteral("Anna"));
    const struct {
        const char* text;
        QStringList found;
    } cases[] = {
        {"", {QStringLiteral("D'Angelo"), QStringLiteral("De Luca"), QStringLiteral("Rossi"), QStringLiteral("Rossi")}},
        {"nicolo", {QStringLiteral("D'Angelo")}},
        {"NICOLÒ d’ang", {QStringLiteral("D'Angelo")}},
        {"mario rossi", {QStringLiteral("Rossi")}},
        {"  rossi   ma ", {QStringLiteral("Rossi")}},
        {"esther", {QStringLiteral("De Luca")}},
        {"rossi bianchi", {}},
        {"%", {}},
        {"_ossi", {}},
        {"\\", {}},
        {"' or 1=1 --", {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(surnames(QString::fromUtf8(c.text)), c.found) << c.text;
    const auto byCode = desk::PatientDirectory::columnFromName(QStringLiteral("Codice Fiscale"));
    EXPECT_EQ(surnames(QStringLiteral("rssmra"), byCode), QStringList{QStringLiteral("Rossi")});
    EXPECT_EQ(surnames(QStringLiteral("rossi"), byCode), QStringList());
    EXPECT_EQ(desk::PatientDirectory::columnFromName(QStringLiteral("Cognome e Nome")),
              desk::PatientDirectory::Column::NameAndSurname);
    EXPECT_EQ(directory_.idByTaxCode(QStringLiteral("XXX")), QString());
}

TEST_F(PatientDirectoryTest, AwkwardNamesRoundTripAndAreFound) {
    for (const QString& name : awkwardTexts()) {
        const QString id = addPatient(name, QStringLiteral("Zoe"));
        EXPECT_EQ(directory_.load(id)->Cognome, name);
        EXPECT_EQ(surnames(name), QStringList{name}) << name.toStdString();
    }
    database_->runText(
        QStringLiteral("insert into tessara.tblPazienti (ID, Cognome, Nome) values ('x', 'Neri', 'Ugo')"));
    EXPECT_EQ(surnames(QStringLiteral("neri ugo")), QStringList{QStringLiteral("Neri")}) << "put in by another program";
}

TEST_F(PatientDirectoryTest, CountsWhatTheLimitLeavesOut) {
    for (int i = 0; i < desk::PatientDirectory::searchLimit + 3; ++i)
        addPatient(QStringLiteral("D'Amico %1").arg(i, 3, 10, QLatin1Char('0')), QStringLiteral("Zoe"),
                   QStringLiteral("TST%1").arg(i, 3, 10, QLatin1Char('0')));
    const auto found = directory_.search(QStringLiteral("amico"));
    ASSERT_EQ(found.size(), desk::PatientDirectory::searchLimit);
    EXPECT_EQ(found.first().Cognome, QStringLiteral("D'Amico 000")) << "the first by name";
    EXPECT_EQ(directory_.countMatches(QStringLiteral("amico")), desk::PatientDirectory::searchLimit + 3);
    EXPECT_EQ(directory_.countMatches(QStringLiteral("00"), desk::PatientDirectory::Column::TaxCode), 12);
    EXPECT_EQ(directory_.countMatches(QStringLiteral("' or 1=1 --")), 0);
}

TEST_F(PatientDirectoryTest, ComparesNoFewerWordsThanWereTyped) {
    const QString ten = QStringLiteral("uno due tre quattro cinque sei sette otto nove dieci");
    addPatient(ten, QStringLiteral("Zoe"));
    EXPECT_EQ(surnames(ten).size(), 1);
    EXPECT_EQ(surnames(ten + QStringLiteral(" undici")).size(), 0);
}

TEST_F(PatientDirectoryTest, FindsNamesakesBornOnTheSameDay) {
    desk::PatientData patient;
    patient.Cognome = QStringLiteral("D’Angelo");
    patient.Nome = QStringLiteral("Nicolò");
    patient.dataNascita = QDate(1980, 5, 1);
    ASSERT_TRUE(directory_.insert(patient));
    EXPECT_EQ(directory_.idByNameAndBirth(patient), QString()) << "not of itself";
    desk::PatientData other = patient;
    other.ID.clear();
    other.Cognome = QStringLiteral("d'angelo");
    other.Nome = QStringLiteral("NICOLO");
    EXPECT_EQ(directory_.idByNameAndBirth(other), patient.ID);
    other.dataNascita = QDate(1980, 5, 2);
    EXPECT_EQ(directory_.idByNameAndBirth(other), QString());
    other.dataNascita = QDate();
    EXPECT_EQ(directory_.idByNameAndBirth(other), QString());
}

TEST_F(PatientDirectoryTest, KeepsEveryFieldThroughInsertAndUpdate) {
    desk::UserData doctor{
        {}, QStringLiteral("BN"), QStringLiteral("Bianchi"), QStringLiteral("Laura"), QStringLiteral("X"),
        0,  QStringLiteral("OD")};
    ASSERT_TRUE(desk::UserDirectory(*database_).insert(doctor));
    desk::PatientData patient;
    int n = 0;
    const auto fields = [](desk::PatientData& p) {
        return QList<QString*>{
            &p.Cognome,   &p.Nome,         &p.codicefiscale,  &p.luogoNascita,       &p.sesso,    &p.indirizzo,
            &p.cap,       &p.citta,        &p.provincia,      &p.telefono,           &p.email,    &p.note,
            &p.domicilio, &p.capDomicilio, &p.cittaDomicilio, &p.provinciaDomicilio, &p.cellulare};
    };
    for (QString* field : fields(patient))
        *field = QStringLiteral("F%1").arg(++n);
    patient.dataNascita = QDate(1944, 2, 29);
    patient.idMedico = doctor.ID;
    ASSERT_TRUE(directory_.insert(patient));
    auto read = directory_.load(patient.ID);
    ASSERT_TRUE(read);
    n = 0;
    for (const QString* field : fields(*read))
        EXPECT_EQ(*field, QStringLiteral("F%1").arg(++n));
    EXPECT_EQ(read->dataNascita, QDate(1944, 2, 29));
    EXPECT_EQ(directory_.search(QStringLiteral("F1")).first().medico, QStringLiteral("Bianchi Laura"));

    read->Nome = QStringLiteral("Rosa");
    read->idMedico.clear();
    read->dataNascita = {};
    ASSERT_TRUE(directory_.update(*read));
    EXPECT_EQ(directory_.search(QStringLiteral("rosa")).size(), 1) << "found under the new name";
    EXPECT_EQ(bound(patient.ID)->medico().Cognome, QString());
    EXPECT_FALSE(directory_.load(patient.ID)->dataNascita.isValid());

    read->idMedico = QStringLiteral("nessuno");
    EXPECT_FALSE(directory_.update(*read)) << "a doctor who is no user";
    read->ID = QStringLiteral("nessuno");
    EXPECT_FALSE(directory_.update(*read));
    EXPECT_EQ(directory_.count(), 1);
}

TEST_F(PatientDirectoryTest, BoundPatientsFollowChanges) {
    const QString id = addPatient(QStringLiteral("Rossi"), QStringLiteral("Anna"));
    EXPECT_EQ(bound(id)->Cognome(), QStringLiteral("Rossi"));
    auto data = *directory_.load(id);
    data.Cognome = QStringLiteral("Rossi Verdi");
    ASSERT_TRUE(directory_.update(data));
    EXPECT_EQ(bound(id)->Cognome(), QStringLiteral("Rossi Verdi"));

    const auto elsewhere = reopened();
    data.Cognome = QStringLiteral("Verdi");
    ASSERT_TRUE(desk::PatientDirectory(*elsewhere, sign_).update(data));
    desk::DatabaseService(*database_, sign_).OpenRecordset(QStringLiteral("select 1"));
    EXPECT_EQ(bound(id)->Cognome(), QStringLiteral("Verdi")) << "another workstation's change, at the next list";
    EXPECT_FALSE(bound(id)->ID().isEmpty());
    EXPECT_EQ(bound(id)->idschema(), QStringLiteral("tessara"));
}

TEST_F(PatientDirectoryTest, UsersComeDoctorsFirstAndSignIn) {
    desk::UserDirectory users(*database_);
    EXPECT_FALSE(users.forSignIn(QStringLiteral("nessuno")));
    const auto first = users.forSignIn({});
    ASSERT_TRUE(first) << "a new practice has someone to work in it";
    EXPECT_EQ(first->tipo, 0);
    EXPECT_EQ(users.forSignIn({})->ID, first->ID);

    desk::UserData assistant{{}, QStringLiteral("GRECO"), QStringLiteral("Alba"), QStringLiteral("Sara"), {},
                             3,  QStringLiteral("AS")};
    ASSERT_TRUE(users.insert(assistant));
    EXPECT_EQ(users.Lista().last().tipo, 3);
    EXPECT_EQ(users.forSignIn(QStringLiteral("greco"))->ID, assistant.ID);
    desk::UserData twice = assistant;
    EXPECT_FALSE(users.insert(twice)) << "codes are unique";
    EXPECT_EQ(twice.ID, assistant.ID);
}
