#include "store/Amount.h"

#include <gtest/gtest.h>

TEST(Amount, IsReadWrittenAndComparedAsItsTextShowsIt) {
    const struct {
        const char *typed, *text, *unlessZero;
    } cases[] = {
        {"12,5", "12,50", "12,50"},
        {"1.250,5", "1250,50", "1250,50"},
        {"2,675", "2,68", "2,68"},
        {"-2,675", "-2,68", "-2,68"},
        {"0,004", "0,00", ""},
        {"-0,004", "0,00", ""},
        {"molto", "0,00", ""},
        {"", "0,00", ""},
        {"16777217", "16777220,00", "16777220,00"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.typed);
        const Amount amount = Amount::fromText(QLatin1String(each.typed));
        EXPECT_EQ(amount.text(), QLatin1String(each.text));
        EXPECT_EQ(amount.textUnlessZero(), QLatin1String(each.unlessZero));
        EXPECT_EQ(amount, Amount::fromText(amount.text()));
        EXPECT_EQ(amount.isZero(), *each.unlessZero == '\0');
    }
    EXPECT_EQ(Amount(2.675), Amount(2.68));
    EXPECT_LT(Amount(2.674), Amount(2.675));
    EXPECT_LT(Amount(-0.006), Amount());
    EXPECT_EQ(Amount(1e39).text(), QString());
}

TEST(Amount, RoundsOnceWhereAResultIsStored) {
    // In single precision throughout the cents of the second addend would be gone before the third came.
    const Amount great = 16777216.0;
    const Amount one = 1.0;
    EXPECT_EQ(Amount(great.wide() + one.wide() + one.wide()).wide(), 16777218.0);
    EXPECT_EQ(Amount(Amount(great.wide() + one.wide()).wide() + one.wide()).wide(), 16777216.0);
    // The withholding is a fifth of the taxable amount, in double.
    EXPECT_EQ(Amount(Amount(1234.55).wide() * 0.2).text(), QStringLiteral("246,91"));
}
