#include "Workstation.h"

#include "desk/data/Database.h"
#include "desk/data/DemoPractice.h"
#include "support/OwnServer.h"
#include "support/PracticeDatabase.h"

#include <QUrl>

// The server goes off under an open editor: nothing that was typed is lost, and the same confirm succeeds when it is
// back.
TEST(ServerOffTest, AnEditorOutlivesTheServerAndSavesAfterIt) {
    if (!PracticeDatabase::serverChosen()) GTEST_SKIP() << "only on a server";
    OwnServer server;
    desk::DemoPractice::fill(*desk::Database::open(desk::DatabaseUrl::parse(server.url())));
    const SharedFolder shared;
    Workstation desk(shared, server.url(), "server-spento");
    ASSERT_TRUE(shared.waitForSign("aperto")) << desk.output().toStdString();
    server.stop();
    shared.sign("spento");
    EXPECT_TRUE(shared.waitForSign("rivisto")) << desk.output().toStdString();
    server.start();
    shared.sign("acceso");
    EXPECT_EQ(desk.fault(), "");
    EXPECT_FALSE(desk.output().contains(QUrl(server.url()).password())) << "no password on the console";
}
