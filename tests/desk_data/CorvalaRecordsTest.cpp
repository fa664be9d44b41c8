#include "PracticeFixture.h"

#include "desk/data/DatabaseService.h"
#include "desk/data/Transaction.h"
#include "host/contract/HostError.h"
#include "platform/Clock.h"
#include "support/HelperProcess.h"

namespace {

host::DatiCorvala plan(const QString& number, const QString& memo = QStringLiteral("<trattamento/>")) {
    return {QStringLiteral("22/11/2025"), number, QStringLiteral("Corona 1.1"), QStringLiteral("TRT"), memo};
}

} // namespace

class CorvalaRecordsTest : public PracticeFixture {
protected:
    std::unique_ptr<host::Recordset> rows(const QString& what) {
        return desk::DatabaseService(*database_, sign_).OpenRecordset(what);
    }
    QString saved(const char* number) {
        QString id;
        EXPECT_TRUE(patient_->corvala().Salva(id, plan(QLatin1String(number))));
        return id;
    }

    const std::unique_ptr<desk::PatientRecord> patient_ =
        bound(addPatient(QStringLiteral("Rossi"), QStringLiteral("Mario")));
};

TEST_F(CorvalaRecordsTest, WritesTheWholeRowAndReadsItBack) {
    platform::setClock(QDateTime(QDate(2025, 11, 23), QTime(9, 5, 7)));
    QString id = saved("2025-0001");
    platform::releaseClock();

    const auto row = rows(QStringLiteral("select * from tessara.tblWorkspace"));
    ASSERT_TRUE(row);
    EXPECT_EQ(row->RecordCount(), 1);
    const QList<QPair<QString, QString>> expected{
        {QStringLiteral("id"), id},
        {QStringLiteral("TIPORECORD"), QStringLiteral("906")},
        {QStringLiteral("t1"), QStringLiteral("TRT")},
        {QStringLiteral("idrif1"), QStringLiteral("2025-0001")},
        {QStringLiteral("idpaziente"), patient_->ID()},
        {QStringLiteral("data"), QStringLiteral("2025-11-22 00:00:00")},
        {QStringLiteral("descrizione"), QStringLiteral("Corona 1.1")},
        {QStringLiteral("m1"), QStringLiteral("<trattamento/>")},
        {QStringLiteral("ModificatoDa"), sign_},
        {QStringLiteral("DataModifica"), QStringLiteral("2025-11-23 09:05:07")},
        {QStringLiteral("LastUpdate"), QStringLiteral("2025-11-23 09:05:07")},
    };
    for (const auto& [column, text] : expected)
        EXPECT_EQ(row->text(column), text) << column.toStdString();
    EXPECT_TRUE(row->value(QStringLiteral("manca")).isNull());
    row->MoveNext();
    EXPECT_TRUE(row->isEOF());
    EXPECT_TRUE(row->value(QStringLiteral("id")).isNull()) << "past the end";

    const auto read = patient_->corvala().Carica(id);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Data, QDate(2025, 11, 22).startOfDay());
    EXPECT_EQ(read->idrif1, QStringLiteral("2025-0001"));
    EXPECT_EQ(read->t1, QStringLiteral("TRT"));
    EXPECT_EQ(id.size(), 36) << "without braces";
}

TEST_F(CorvalaRecordsTest, UpdateKeepsTheIdentityAndNeverRevivesADeletedRow) {
    QString id = saved("2025-0001");
    const QString first = id;
    EXPECT_TRUE(patient_->corvala().Salva(id, plan(QStringLiteral("2025-0002"))));
    EXPECT_EQ(id, first);
    ASSERT_EQ(patient_->corvala().Lista().size(), 1);
    EXPECT_EQ(patient_->corvala().Lista().first().idrif1, QStringLiteral("2025-0002"));

    const auto elsewhere = reopened();
    desk::PatientRecord same(*elsewhere, sign_);
    ASSERT_TRUE(same.Init(patient_->ID()));
    ASSERT_TRUE(same.corvala().Elimina(id));
    EXPECT_FALSE(patient_->corvala().Salva(id, plan(QStringLiteral("2025-0003"))));
    EXPECT_FALSE(patient_->corvala().Elimina(id));
    EXPECT_FALSE(patient_->corvala().Carica(id));
    EXPECT_TRUE(patient_->corvala().Lista().isEmpty());
}

TEST_F(CorvalaRecordsTest, RefusesWhatCannotBeARecord) {
    for (const char* date : {"", "domani", "31/02/2025", "2025-13-01"}) {
        auto data = plan(QStringLiteral("2025-0001"));
        data.Data = QString::fromUtf8(date);
        QString id;
        EXPECT_FALSE(patient_->corvala().Salva(id, data)) << date;
        EXPECT_TRUE(id.isEmpty());
    }
    desk::PatientRecord unbound(*database_, sign_);
    QString id;
    EXPECT_FALSE(unbound.corvala().Salva(id, plan(QStringLiteral("2025-0001"))));
    EXPECT_FALSE(unbound.Init(QStringLiteral("nessuno")));
    EXPECT_EQ(rows(QStringLiteral("select id from tessara.tblWorkspace"))->RecordCount(), 0);
}

TEST_F(CorvalaRecordsTest, TouchesOnlyItsOwnRows) {
    const auto other = bound(addPatient(QStringLiteral("Verdi"), QStringLiteral("Anna")));
    QString id;
    ASSERT_TRUE(other->corvala().Salva(id, plan(QStringLiteral("2025-0001"))));
    EXPECT_FALSE(patient_->corvala().Elimina(id));
    EXPECT_FALSE(patient_->corvala().Salva(id, plan(QStringLiteral("2025-0009"))));
    EXPECT_FALSE(patient_->corvala().Carica(id));
    EXPECT_TRUE(patient_->corvala().Lista().isEmpty());

    desk::DatabaseService(*database_, sign_).Execute(QStringLiteral("update tessara.tblWorkspace set tiporecord=7"));
    EXPECT_TRUE(other->corvala().Lista().isEmpty()) << "rows of another module";
    EXPECT_FALSE(other->corvala().Elimina(id));
}

TEST_F(CorvalaRecordsTest, AFailedSaveLeavesTheOldRecord) {
    QString id = saved("2025-0001");
    database_->command(
        onServer()
            ? QStringLiteral("alter table tessara.tblWorkspace add constraint rotto check (t1 <> 'TRT') not valid")
            : QStringLiteral("create trigger tessara.rotto after update on tblWorkspace "
                             "begin select raise(abort, 'disco'); end"));
    EXPECT_FALSE(patient_->corvala().Salva(id, plan(QStringLiteral("2025-0002"))));
    EXPECT_EQ(patient_->corvala().Carica(id)->idrif1, QStringLiteral("2025-0001"));
    database_->command(onServer() ? QStringLiteral("alter table tessara.tblWorkspace drop constraint rotto")
                                  : QStringLiteral("drop trigger tessara.rotto"));
    EXPECT_TRUE(patient_->corvala().Salva(id, plan(QStringLiteral("2025-0002"))))
        << "the next save is not caught in the failed one";
}

TEST_F(CorvalaRecordsTest, AnswersTheQuestionsOfNumberingAndPeriods) {
    const auto highest = [this](const char* year) {
        return rows(
            QStringLiteral(
                "Select max(idrif1) AS HighestValue from tessara.tblWorkspace where tiporecord=906 and t1='TRT' "
                "and idrif1 like '%1%'")
                .arg(QLatin1String(year)));
    };
    EXPECT_EQ(highest("2025")->RecordCount(), 1);
    EXPECT_TRUE(highest("2025")->value(QStringLiteral("HighestValue")).isNull());
    EXPECT_TRUE(highest("2025")->text(QStringLiteral("highestvalue")).isNull());
    for (const char* number : {"2025-0002", "2025-0011", "2024-0099"})
        saved(number);
    EXPECT_EQ(highest("2025")->text(QStringLiteral("HighestValue")), QStringLiteral("2025-0011"));

    const auto within = [this](const char* from, const char* to) {
        return rows(QStringLiteral(
                        "Select * from tessara.tblWorkspace where data Between '%1 00:00:00' AND '%2 23:59:59' and "
                        "tiporecord=906 and t1='TRT'")
                        .arg(QLatin1String(from), QLatin1String(to)))
            ->RecordCount();
    };
    EXPECT_EQ(within("2025-11-22", "2025-11-22"), 3);
    EXPECT_EQ(within("2025-11-23", "2025-12-31"), 0);
    EXPECT_EQ(within("2025-01-01", "2025-11-21"), 0);
    EXPECT_THROW(rows(QStringLiteral("select * from tessara.tblAltro")), host::HostError);
    EXPECT_THROW(rows(QStringLiteral("delete from tessara.tblVersione; select 1")), host::HostError)
        << "one statement at a time";
}

TEST_F(CorvalaRecordsTest, ExecutesOneStatementOrNothing) {
    desk::DatabaseService service(*database_, sign_);
    QString id = saved("2025-0001");
    service.Execute(
        QStringLiteral(
            "Update tessara.tblWorkspace SET Descrizione='Ex Corona',ModificatoDa='D''Amico' Where (id='%1')")
            .arg(id));
    EXPECT_EQ(patient_->corvala().Carica(id)->descrizione, QStringLiteral("Ex Corona"));
    EXPECT_THROW(service.Execute(QStringLiteral("Update tessara.tblWorkspace SET Descrizione='Ex l'altra' Where 1=1")),
                 host::HostError);
    EXPECT_EQ(patient_->corvala().Carica(id)->descrizione, QStringLiteral("Ex Corona"));
    EXPECT_EQ(service.Sign(), sign_);
}

TEST_F(CorvalaRecordsTest, AwkwardTextsRoundTrip) {
    int number = 0;
    for (const QString& text : awkwardTexts()) {
        auto data = plan(QStringLiteral("2025-000%1").arg(++number), text.repeated(200));
        data.descrizione = text;
        QString id;
        ASSERT_TRUE(patient_->corvala().Salva(id, data));
        EXPECT_EQ(patient_->corvala().Carica(id)->descrizione, text);
        EXPECT_EQ(patient_->corvala().Carica(id)->m1, data.m1);
    }
    database_->runText(QStringLiteral("update tessara.tblWorkspace set m1=null, Data=null"));
    EXPECT_TRUE(patient_->corvala().Lista().first().m1.isNull());
    EXPECT_FALSE(patient_->corvala().Lista().first().Data.isValid());
}

TEST_F(CorvalaRecordsTest, AnInnerFailureUndoesTheOuterTransaction) {
    {
        desk::Transaction outer(*database_);
        saved("2025-0001");
        { desk::Transaction abandoned(*database_); }
        EXPECT_THROW(outer.commit(), desk::DatabaseError);
    }
    EXPECT_TRUE(patient_->corvala().Lista().isEmpty());
    saved("2025-0002");
    EXPECT_EQ(patient_->corvala().Lista().size(), 1);
}

TEST_F(CorvalaRecordsTest, TheListShowsWhatAnyWorkstationWroteOrTookBack) {
    const auto numbers = [&] {
        QStringList found;
        for (const host::RigaCorvala& row : patient_->corvala().Lista())
            found << row.idrif1;
        return found;
    };
    QString id = saved("2025-0001");
    EXPECT_EQ(numbers(), QStringList{QStringLiteral("2025-0001")});
    {
        const auto workstation = reopened();
        desk::PatientRecord same(*workstation, sign_);
        ASSERT_TRUE(same.Init(patient_->ID()));
        QString theirs;
        ASSERT_TRUE(same.corvala().Salva(theirs, plan(QStringLiteral("2025-0002"))));
        EXPECT_EQ(numbers(), (QStringList{QStringLiteral("2025-0001"), QStringLiteral("2025-0002")}));
        ASSERT_TRUE(same.corvala().Elimina(theirs));
    }
    EXPECT_EQ(numbers().size(), 1);
    {
        const desk::Transaction takenBack(*database_);
        saved("2025-0003");
        EXPECT_EQ(numbers().size(), 2);
    }
    EXPECT_EQ(numbers(), QStringList{QStringLiteral("2025-0001")});
}

// A refused number is no failure of the database: nothing was stored, and the next number may succeed.
TEST_F(CorvalaRecordsTest, RefusesANewDocumentWithANumberThatIsTaken) {
    struct Case {
        const char* type;
        const char* number;
        bool refused;
    };
    const auto other = bound(addPatient(QStringLiteral("Verdi"), QStringLiteral("Anna")));
    for (const auto& [type, number, refused] :
         {Case{"TRT", "2025-0001", true}, Case{"PRV", "2025-0001", true}, Case{"FTT", "2025-0001/bis", true},
          Case{"CPD", "2025-0001", false}, Case{"PGM", "2025-0001", false}, Case{"TRT", "", false}}) {
        auto data = plan(QLatin1String(number));
        data.t1 = QLatin1String(type);
        QString first;
        ASSERT_TRUE(patient_->corvala().Salva(first, data)) << type << " has numbers of its own";
        QString id;
        if (refused)
            EXPECT_THROW(other->corvala().Salva(id, data), host::NumberTakenError) << type;
        else
            EXPECT_TRUE(other->corvala().Salva(id, data)) << type;
        EXPECT_EQ(id.isEmpty(), refused);
        EXPECT_TRUE(patient_->corvala().Salva(first, data)) << "a stored record keeps its number";
    }
    // An archive from before holds doubled numbers, and rows of other modules under the same ones.
    database_->runText(QStringLiteral("update tessara.tblWorkspace set idrif1='2024-0007'"));
    for (const host::RigaCorvala& row : other->corvala().Lista() + patient_->corvala().Lista()) {
        auto data = plan(row.idrif1);
        data.t1 = row.t1;
        QString id = row.ID;
        EXPECT_NE(patient_->corvala().Salva(id, data), other->corvala().Salva(id, data)) << "savable by its owner";
    }
    database_->runText(QStringLiteral("update tessara.tblWorkspace set tiporecord=7"));
    saved("2024-0007");
}

// Six desks store fifteen plans each, all in the same moment.
TEST_F(CorvalaRecordsTest, DesksThatSaveAtOnceNeverShareANumber) {
    std::vector<std::unique_ptr<HelperProcess>> desks;
    for (int i = 0; i < 6; ++i)
        desks.push_back(
            std::make_unique<HelperProcess>(QStringList{QStringLiteral("number"), place_.url(), patient_->ID()}));
    for (const auto& desk : desks)
        desk->waitForWord();
    for (const auto& desk : desks)
        desk->go();
    qsizetype refused = 0;
    for (const auto& desk : desks) {
        desk->end();
        refused += desk->lines().count("preso");
    }
    EXPECT_GT(refused, 0) << "they hardly met";
    const auto numbers = rows(QStringLiteral("select idrif1 from tessara.tblWorkspace order by idrif1"));
    EXPECT_EQ(numbers->RecordCount(), 90);
    for (int i = 1; i <= 90; ++i, numbers->MoveNext())
        EXPECT_EQ(numbers->text(QStringLiteral("idrif1")), QStringLiteral("2025-%1").arg(i, 4, 10, QLatin1Char('0')));
}
