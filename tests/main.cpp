#include "support/PracticeDatabase.h"

#include <QApplication>
#include <gtest/gtest.h>

namespace {

/// Says so where a run is meant for a server and there is none: nothing passes that was not tried.
class ServerThere : public testing::Environment {
public:
    void SetUp() override {
        if (PracticeDatabase::serverChosen() && PracticeDatabase::serverAddress().isEmpty())
            GTEST_SKIP() << "[  SKIPPED ] no PostgreSQL server: run inside tests/with-postgres.sh";
    }
};

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    testing::AddGlobalTestEnvironment(new ServerThere); // owned by the framework
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
