#include "PracticeFixture.h"

#include "desk/data/DatabaseService.h"
#include "platform/Clock.h"

#include <cmath>

/// The same question gives the same answer on every database system.
class DialectTest : public PracticeFixture {
protected:
    DialectTest() {
        platform::setClock(QDateTime(QDate(2025, 11, 22), QTime(23, 59, 58, 999)));
        patient_ = bound(addPatient(QStringLiteral("D'Angelo"), QStringLiteral("Nicolò")));
        QString id;
        EXPECT_TRUE(patient_->corvala().Salva(id, {QStringLiteral("22/11/2025"), QStringLiteral("2025-0007"),
                                                   QStringLiteral("Corona SU Impianto 100%"), QStringLiteral("TRT"),
                                                   QString()}));
        id.clear();
        EXPECT_TRUE(patient_->corvala().Salva(id, {QStringLiteral("31/12/2025"), QStringLiteral("2025-0012"),
                                                   QStringLiteral("Igiene è 'profonda'"), QStringLiteral("PRV"),
                                                   QStringLiteral("<memo/>")}));
        desk::DatabaseService(*database_, sign_)
            .Execute(QStringLiteral("insert into tessara.tblAppunti (ID, idpaziente, b1, b2) "
                                    "select 'nota', ID, 1, 0 from tessara.tblPazienti"));
    }
    ~DialectTest() override { platform::releaseClock(); }

    std::unique_ptr<host::Recordset> ask(const char* sql) {
        return desk::DatabaseService(*database_, sign_).OpenRecordset(QString::fromUtf8(sql));
    }

    std::unique_ptr<desk::PatientRecord> patient_;
};

TEST_F(DialectTest, GivesTheSameTexts) {
    const struct {
        const char* sql;
        const char* text; ///< Null for a null.
    } cases[] = {
        {"select max(idrif1) as risposta from tessara.tblWorkspace where t1='ZZZ'", nullptr},
        {"select max(LastUpdate) as risposta from tessara.tblWorkspace where t1='ZZZ'", nullptr},
        {"select max(idrif1) as risposta from tessara.tblWorkspace where idrif1 like '2025%'", "2025-0012"},
        {"select Data as risposta from tessara.tblWorkspace where t1='TRT'", "2025-11-22 00:00:00"},
        {"select max(LastUpdate) as risposta from tessara.tblWorkspace", "2025-11-22 23:59:58"},
        {"select t1 as risposta from tessara.tblWorkspace where Data between '2025-12-01 00:00:00' and '2025-12-31 "
         "23:59:59'",
         "PRV"},
        {"select t1 as risposta from tessara.tblWorkspace where LastUpdate >= '2025-11-22 23:59:58' and t1 < 'Q'",
         "PRV"},
        {"select m1 as risposta from tessara.tblWorkspace where t1='TRT'", ""},
        {"select b1 as risposta from tessara.tblAppunti", "1"},
        {"select b2 as risposta from tessara.tblAppunti where b1=1", "0"},
        {"select count(*) as risposta from tessara.tblWorkspace", "2"},
        {"select sum(tiporecord) as risposta from tessara.tblWorkspace", "1812"},
        {"select avg(tiporecord) as risposta from tessara.tblWorkspace", "906"},
        {"select 7.5 * 2 as risposta from tessara.tblVersione where versione=1", "15"},
        {"select descrizione as risposta from tessara.tblWorkspace where descrizione like '%''profonda''%'",
         "Igiene è 'profonda'"},
        {"select idmedico as risposta from tessara.tblPazienti", nullptr},
        {"select datanascita as risposta from tessara.tblPazienti", nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.sql);
        const auto rows = ask(c.sql);
        ASSERT_TRUE(rows);
        ASSERT_EQ(rows->RecordCount(), 1);
        const auto& set = *rows;
        const QString column = QStringLiteral("risposta");
        if (!c.text) {
            EXPECT_TRUE(set.value(column).isNull());
            EXPECT_EQ(set.text(column), QString());
            continue;
        }
        bool isNumber = false;
        const double expected = QString::fromUtf8(c.text).toDouble(&isNumber);
        if (isNumber)
            EXPECT_TRUE(std::abs(set.value(column).toDouble() - expected) < 1e-9) << set.text(column).toStdString();
        else
            EXPECT_EQ(set.text(column).toStdString(), c.text);
    }
}
