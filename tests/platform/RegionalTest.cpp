#include "platform/Regional.h"
#include "platform/Clock.h"
#include "support/Text.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using platform::Regional;
using platform::regional;

TEST(Regional, FormatsEveryPatternRoundingOnTheDigitsShown) {
    const struct {
        float value;
        const char* pattern;
        const char* text;
    } cases[] = {
        {12.5F, "###0.00", "12,50"},
        {0.F, "###0.00", "0,00"},
        {2.675F, "###0.00", "2,68"}, // Below 2.675 in binary: rounds as shown, not as stored.
        {1.005F, "###0.00", "1,01"},
        {0.045F, "###0.00", "0,05"},
        {0.995F, "###0.00", "1,00"},
        {99.995F, "###0.00", "100,00"},
        {-2.675F, "###0.00", "-2,68"},
        {-0.001F, "###0.00", "0,00"},
        {-0.F, "###0.00", "0,00"},
        {0.004F, "###0.00", "0,00"},
        {1234.5F, "###0.00", "1234,50"},
        {16777216.F, "###0.00", "16777220,00"}, // A single shows seven digits.
        {1e20F, "###0.00", "100000000000000000000,00"},
        {1e-20F, "###0.00", "0,00"},
        {0.F, "##,##", ""},
        {0.4F, "##,##", ""},
        {1.F, "##,##", "1"},
        {1.5F, "##,##", "2"},
        {1234.F, "##,##", "1.234"},
        {-1234567.F, "##,##", "-1.234.567"},
        {1234.5F, "##,##0.0", "1.234,5"},
        {-1.F, "##,##0.0", "-1,0"},
        {0.05F, "##,##0.0", "0,1"},
        {999.95F, "##,##0.0", "1.000,0"},
        {7.F, "0000", "0007"},
        {10000.F, "0000", "10000"},
        {3.F, "00", "03"},
        {1234.567F, "0,0.00", "1.234,57"},
        {5.F, "0,0.00", "05,00"},
        {std::numeric_limits<float>::infinity(), "###0.00", ""},
        {std::nanf(""), "0000", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.value << " by " << c.pattern);
        EXPECT_EQ(regional().format(c.value, u8(c.pattern)), u8(c.text));
    }
    EXPECT_EQ(regional().format(2.675, u8("###0.00")), u8("2,68"));
    EXPECT_EQ(regional().format(1234567.895, u8("##,##0.00")), u8("1.234.567,90"));
    EXPECT_EQ(regional().format(std::numeric_limits<int>::min(), u8("##,##")), u8("-2.147.483.648"));
}

TEST(Regional, ReadsPointAsDecimalOnlyWhereNoThousands) {
    const struct {
        const char* text;
        std::optional<double> value;
    } cases[] = {
        {"12,50", 12.5},
        {"1.234,5", 1234.5},
        {"12.50", 12.5},
        {"1.234", 1234.0},
        {"1.234.567", 1234567.0},
        {"1234.567", 1234.567},
        {"0.500", 0.5},
        {".5", 0.5},
        {",5", 0.5},
        {"5,", 5.0},
        {" -12,50\t", -12.5},
        {"+3", 3.0},
        {"007", 7.0},
        {"1,234.5", {}},
        {"1.23,5", {}},
        {"1.2345.678", {}},
        {"12.34.56", {}},
        {"1,2,3", {}},
        {"", {}},
        {"   ", {}},
        {"-", {}},
        {",", {}},
        {".", {}},
        {"abc", {}},
        {"12a", {}},
        {"1e5", {}},
        {"€ 5", {}},
        {"--5", {}},
        {"1 234", {}},
        {"\xD9\xA1\xD9\xA2", {}}, // Digits of another script.
        {"inf", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(regional().toNumber(u8(c.text)), c.value);
    }
    EXPECT_EQ(regional().toNumber(QString(400, QLatin1Char('9'))), std::nullopt);
}

TEST(Regional, StoredAmountsReadBackAsTheyWere) {
    for (int cents = -25000; cents <= 250000; cents += 37) {
        const auto value = static_cast<float>(cents / 100.0);
        const auto back = regional().toNumber(regional().format(value, u8("###0.00")));
        ASSERT_TRUE(back);
        ASSERT_EQ(static_cast<float>(*back), value);
    }
}

TEST(Regional, ReadsDatesOfEveryStoredForm) {
    const QDate second(2026, 2, 1);
    const struct {
        const char* text;
        std::optional<QDate> date;
    } cases[] = {
        {"01/02/2026", second},
        {"1/2/2026", second},
        {"1-2-2026", second},
        {" 01/02/2026 00:00:00 ", second},
        {"01/02/2026 9:05", second},
        {"2026-02-01", second},
        {"2026-02-01T23:59:59", second},
        {"1/2/26", second},
        {"29/02/2024", QDate(2024, 2, 29)},
        {"31/02/2026", {}},
        {"29/02/2026", {}},
        {"2026-13-01", {}},
        {"20AB", {}},
        {"01/02", {}},
        {"01/02/2026 25:00", {}},
        {"01/02/2026 domani", {}},
        {"1/2/3/2026", {}},
        {"-1/2/2026", {}},
        {"001/02/2026", {}},
        {"", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(regional().toDate(u8(c.text)), c.date);
    }
    EXPECT_EQ(regional().shortDate(second), u8("01/02/2026"));
    EXPECT_EQ(regional().shortDate(QDate()), QString());
}

TEST(Regional, ReadsDatesAsPeopleTypeThem) {
    platform::setClock(QDateTime(QDate(2026, 3, 10), QTime(9, 30)));
    const QDate second(2026, 3, 2);
    const struct {
        const char* text;
        std::optional<QDate> date;
    } cases[] = {
        {"2/3/2026", second},
        {"020326", second},
        {"02032026", second},
        {" 2/3 ", second},
        {"2.3", second},
        {"02-03", second},
        {"29/2", {}},
        {"320126", {}},
        {"2032026", {}},
        {"0203", {}},
        {"2/3/", {}},
        {"domani", {}},
        {"", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(regional().typedDate(u8(c.text)), c.date);
    }
    const platform::ScopedRegional american(Regional(QLatin1Char('.'), QLatin1Char(','), u8("MM/dd/yyyy")));
    for (const char* text : {"030226", "03022026", "3/2"})
        EXPECT_EQ(regional().typedDate(u8(text)), second) << text;
    platform::releaseClock();
}

TEST(Regional, OtherSettingsHoldForTheirScopeOnly) {
    {
        const platform::ScopedRegional british(Regional(QLatin1Char('.'), QLatin1Char(','), u8("MM/dd/yyyy")));
        EXPECT_EQ(regional().format(1234.5F, u8("##,##0.0")), u8("1,234.5"));
        EXPECT_EQ(regional().toNumber(u8("1,234.5")), 1234.5);
        EXPECT_EQ(regional().toNumber(u8("12,50")), std::nullopt);
        EXPECT_EQ(regional().toDate(u8("02/01/2026")), QDate(2026, 2, 1));
    }
    EXPECT_EQ(regional().format(1234.5F, u8("##,##0.0")), u8("1.234,5"));
}

TEST(Clock, StandsUntilReleased) {
    const QDateTime moment(QDate(2026, 3, 29), QTime(10, 15));
    platform::setClock(moment);
    EXPECT_EQ(platform::now(), moment);
    EXPECT_EQ(platform::today(), moment.date());
    platform::releaseClock();
    EXPECT_LT(platform::now().msecsTo(QDateTime::currentDateTime()), 1000);
}
