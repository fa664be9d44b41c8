#include "desk/shell/Options.h"

#include <gtest/gtest.h>

using desk::OptionError;
using desk::Options;

TEST(DeskOptions, ReadsEveryOptionInBothForms) {
    const Options options = Options::parse({QStringLiteral("--db=sqlite:a=b.db"), QStringLiteral("--config-dir"),
                                            QStringLiteral("/tmp/c"), QStringLiteral("--user"), QStringLiteral("DOC"),
                                            QStringLiteral("--demo"), QStringLiteral("--scenario"),
                                            QStringLiteral("s.txt"), QStringLiteral("--out"), QStringLiteral("o")});
    EXPECT_EQ(options.databaseUrl, QStringLiteral("sqlite:a=b.db"));
    EXPECT_EQ(options.configDir, QStringLiteral("/tmp/c"));
    EXPECT_EQ(options.userCode, QStringLiteral("DOC"));
    EXPECT_EQ(options.scenarioFile, QStringLiteral("s.txt"));
    EXPECT_EQ(options.outDir, QStringLiteral("o"));
    EXPECT_TRUE(options.demo);
    EXPECT_FALSE(options.help);
    EXPECT_FALSE(Options::parse({}).demo);
}

TEST(DeskOptions, RefusesWhatMakesNoSenseAndNamesIt) {
    const struct {
        QStringList arguments;
        const char* named;
    } cases[] = {
        {{QStringLiteral("--pippo")}, "pippo"},
        {{QStringLiteral("studio.db")}, "studio.db"},
        {{QStringLiteral("--db")}, "--db"},
        {{QStringLiteral("--db"), QStringLiteral("--demo")}, "--db"},
        {{QStringLiteral("--user=")}, "--user"},
        {{QStringLiteral("--user"), QStringLiteral("A"), QStringLiteral("--user"), QStringLiteral("B")}, "--user"},
        {{QStringLiteral("--out"), QStringLiteral("x")}, "--out"},
        {{QStringLiteral("--demo=1")}, "--demo"},
        {{QStringLiteral("--restore")}, "--restore"},
        {{QStringLiteral("--restore=a.db"), QStringLiteral("--demo")}, "--restore"},
        {{QStringLiteral("--restore=a.db"), QStringLiteral("--copy-to=sqlite:b.db")}, "--restore"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.arguments.join(QLatin1Char(' ')).toStdString());
        try {
            Options::parse(each.arguments);
            ADD_FAILURE() << "accepted";
        } catch (const OptionError& error) {
            EXPECT_TRUE(error.text().contains(QLatin1String(each.named))) << error.what();
        }
    }
}
