#include "chart/ToothList.h"
#include "support/Text.h"

#include <gtest/gtest.h>

TEST(ToothList, GoesFromTheRecordToTheWindowAndBack) {
    const struct {
        const char *tooth, *teeth; ///< As the record has them.
        const char *selection, *label;
        const char *storedTooth, *storedList;
        int factor;
    } cases[] = {
        {"", "", "", "", "", "", 1},
        {"7", "", "1.1", "Dente 1.1", "7", "", 1},
        {"99", "", "", "", "", "", 1},
        {"boh", "", "", "", "", "", 1},
        {"+", "7;8", "+1.1;2.1", "Denti 1.1;2.1", "+", "7;8", 2},
        {"+", "51", "+8.5", "Denti 8.5", "+", "51", 1},
        {"+", "7;77;8", "+1.1;;2.1", "Denti 1.1;;2.1", "+", "7;-1;8", 3},
        {"+", "", "+", "Denti ", "+", "", 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.tooth << ' ' << c.teeth);
        const ToothList teeth = ToothList::fromRecord(u8(c.tooth), u8(c.teeth));
        EXPECT_EQ(teeth.selection(), u8(c.selection));
        EXPECT_EQ(teeth.label(), u8(c.label));
        EXPECT_EQ(teeth.tooth(), u8(c.storedTooth));
        EXPECT_EQ(teeth.toothList(), u8(c.storedList));
        EXPECT_EQ(teeth.factor(), c.factor);
        EXPECT_EQ(ToothList::fromSelection(teeth.selection()), teeth);
    }
    EXPECT_EQ(ToothList::fromSelection(u8("9.9")).tooth(), QString());
    EXPECT_EQ(ToothList::fromSelection(u8("+1.1;9.9;")).unknown(), (QStringList{u8("9.9"), QString()}));
}

TEST(ToothList, ReadsTeethAsPeopleTypeThem) {
    const struct {
        const char* typed;
        const char* selection; ///< Null for what is no tooth.
    } cases[] = {
        {"", ""},
        {" 1.6 ", "1.6"},
        {"16", "1.6"},
        {"1,6", "1.6"},
        {"1-6", "1.6"},
        {"85", "8.5"},
        {"1.6 2.6", "+1.6;2.6"},
        {"1.6;2.6", "+1.6;2.6"},
        {"16,26", "+1.6;2.6"},
        {"1,6,2,6", "+1.6;2.6"},
        {"1-6 / 26 + 3.6;", "+1.6;2.6;3.6"},
        {"+1.1;1.2", "+1.1;1.2"},
        {"+16 26", "+1.6;2.6"},
        {"+1.6", "1.6"},
        {"1.6 16 1,6", "1.6"},
        {"+1.1;9.9", "+1.1;9.9"},
        {"+1.1;;2.1", "+1.1;;2.1"}, // as read from a record with an unknown tooth
        {"+1.1;1.1", "+1.1;1.1"},
        {"1.6;9.9", nullptr},
        {"9.9", nullptr},
        {"1.9", nullptr},
        {"56", nullptr},
        {"16-26", nullptr}, // the bridge from there to there, or the two alone: nobody can tell
        {"1 6", nullptr},
        {"1626", nullptr},
        {"1..6", nullptr},
        {"+", nullptr},
        {";", nullptr},
        {"molare", nullptr},
        {"1.6 sup", nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        const auto teeth = ToothList::fromTyped(u8(c.typed));
        ASSERT_EQ(teeth.has_value(), c.selection != nullptr);
        if (teeth) {
            EXPECT_EQ(teeth->selection(), u8(c.selection));
        }
    }
}
