#include "PracticeFixture.h"

#include "desk/data/DemoPractice.h"
#include "desk/data/PracticeTransfer.h"
#include "support/HelperProcess.h"
#include "support/PracticeDatabase.h"

using desk::Database;
using desk::DatabaseUrl;

/// From a file to the chosen system and back into a file.
class PracticeTransferTest : public testing::Test {
protected:
    std::unique_ptr<Database> open(const PracticeDatabase& place) {
        return Database::open(DatabaseUrl::parse(place.url()));
    }
    static QStringList rows(Database& database, const char* sql) {
        QStringList found;
        desk::Query query = database.run(QLatin1String(sql));
        while (query.next()) {
            const desk::Query& row = query;
            found << row.text(0) + u'|' + row.text(1) + u'|' + row.moment(2).toString(Qt::ISODate);
        }
        return found;
    }
    static QByteArray content(Database& database) {
        desk::Query query = database.run(QStringLiteral("select contenuto from {schema}.tblFiles where ID = 'f1'"));
        return query.next() ? query.value(0).toByteArray() : QByteArray();
    }

    const PracticeDatabase file_{PracticeDatabase::System::Sqlite};
    const PracticeDatabase chosen_;
    const PracticeDatabase back_{PracticeDatabase::System::Sqlite};
};

TEST_F(PracticeTransferTest, EveryRowArrivesAndComesBackTheSame) {
    const auto file = open(file_);
    ASSERT_TRUE(desk::DemoPractice::fill(*file));
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes.append(static_cast<char>(i));
    file->run(QStringLiteral("insert into {schema}.tblFiles (ID, idpaziente, Descrizione, Data, contenuto) "
                             "select 'f1', min(ID), ?, '2025-03-01 09:30:15', ? from {schema}.tblPazienti"),
              {QStringLiteral("l'\"archivio\" € \\ 😀"), bytes});

    const auto server = open(chosen_);
    const auto moved = desk::practice_transfer::run(*file, *server);
    EXPECT_GE(moved.size(), 10) << "a table is left out";
    const auto back = open(back_);
    desk::practice_transfer::run(*server, *back);
    for (const char* sql : {"select ID, m1, Data from {schema}.tblWorkspace order by ID",
                            "select ID, Cognome, datanascita from {schema}.tblPazienti order by ID",
                            "select ID, Descrizione, Data from {schema}.tblFiles order by ID",
                            "select codice, Cognome, LastUpdate from {schema}.tblUtenti order by codice"}) {
        SCOPED_TRACE(sql);
        const QStringList original = rows(*file, sql);
        EXPECT_FALSE(original.isEmpty());
        EXPECT_EQ(rows(*server, sql), original);
        EXPECT_EQ(rows(*back, sql), original);
    }
    EXPECT_EQ(content(*server), bytes);
    EXPECT_EQ(content(*back), bytes);
}

TEST_F(PracticeTransferTest, WhatDoesNotFitLeavesTheTargetAsItWas) {
    const auto file = open(file_);
    const auto server = open(chosen_);
    EXPECT_THROW(desk::practice_transfer::run(*file, *server), desk::DatabaseError) << "an empty practice";
    ASSERT_TRUE(desk::DemoPractice::fill(*file));
    file->command(QStringLiteral("pragma foreign_keys=off"));
    file->run(QStringLiteral("insert into {schema}.tblScadenze (ID, idpaziente, chiusa) values ('s1', 'nessuno', 0)"));
    try {
        desk::practice_transfer::run(*file, *server);
        ADD_FAILURE() << "a row of nobody has arrived";
    } catch (const desk::DatabaseError& error) {
        EXPECT_TRUE(error.text().contains(QLatin1String("tblScadenze (s1)"))) << error.text().toStdString();
    }
    EXPECT_TRUE(server->isEmpty());
    EXPECT_EQ(rows(*server, "select codice, ID, LastUpdate from {schema}.tblUtenti"), QStringList());

    file->run(QStringLiteral("delete from {schema}.tblScadenze where ID = 's1'"));
    desk::practice_transfer::run(*file, *server);
    EXPECT_THROW(desk::practice_transfer::run(*file, *server), desk::DatabaseError) << "a practice is overwritten";
}

// Somebody goes on adding patients with a record each while the practice is copied.
TEST_F(PracticeTransferTest, APracticeAtWorkArrivesAsItStoodAtOneMoment) {
    const auto source = open(chosen_);
    ASSERT_TRUE(desk::DemoPractice::fill(*source));
    HelperProcess desk({QStringLiteral("pairs"), chosen_.url()});
    desk.waitForWord();
    const auto target = open(back_);
    desk::practice_transfer::run(*source, *target);
    const auto lastOf = [this, &target](const char* table) {
        return rows(*target,
                    qPrintable(QStringLiteral("select count(*), '', null from {schema}.%1 where ID like 'coppia-%'")
                                   .arg(QLatin1String(table))));
    };
    EXPECT_NE(lastOf("tblPazienti"), QStringList{QStringLiteral("0||")}) << "they hardly met";
    EXPECT_EQ(lastOf("tblPazienti"), lastOf("tblWorkspace")) << "the copy is torn";
    const auto said = desk.lines().size();
    desk.waitForWord();
    EXPECT_GT(desk.lines().size(), said) << "the other one was kept from working";
}
