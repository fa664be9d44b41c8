#include "desk/people/TaxCode.h"

#include <gtest/gtest.h>

using namespace desk;

namespace {

const QDate TODAY(2026, 11, 22);

} // namespace

TEST(TaxCode, AcceptsOnlyWhatItsCheckCharacterConfirms) {
    const struct {
        const char* code;
        bool valid;
        const char* why;
    } cases[] = {
        {"RSSMRA80A01H501U", true, "an ordinary one"},
        {"MRTMTT25D09F205Z", true, "an ordinary one"},
        {"BNCGLI00B29F205F", true, "29 February of a leap year"},
        {"RSSMRA80A01H50MM", true, "one digit as a letter"},
        {"RSSMRAULALMHRLMD", true, "every digit as a letter"},
        {"BNCGLI01B29F205G", false, "29 February of another year"},
        {"BNCGLI01D31F205T", false, "31 April"},
        {"BNCGLI01D40F205V", false, "day 40 belongs to nobody"},
        {"RSSMRA80A01H501V", false, "wrong check character"},
        {"RSSMRA80A10H501U", false, "two digits swapped"},
        {"RSSMRA80F01H501U", false, "no such month"},
        {"RSSMRA80A01H501", false, "too short"},
        {"RSSMRA80A01H501UU", false, "too long"},
        {"RSSMRA80A01H501u", false, "small letters are for normalized()"},
        {"RSSMRA80A01H50AU", false, "a letter that stands for no digit"},
        {"R\u00d2SMRA80A01H501U", false, "an accent"},
        {"", false, "nothing"},
        {"12345678903", true, "a provisional one"},
        {"12345678904", false, "a provisional one with a wrong check digit"},
        {"1234567890", false, "a digit is missing"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(taxcode::isValid(QString::fromUtf8(each.code)), each.valid) << each.code << ": " << each.why;
    EXPECT_EQ(taxcode::normalized(QStringLiteral(" rss mra 80a01 h501u\n")), QStringLiteral("RSSMRA80A01H501U"));
}

TEST(TaxCode, TellsBirthAndSexWithAndWithoutLettersForDigits) {
    const struct {
        const char* code;
        QDate birth;
        const char* sex;
    } cases[] = {
        {"RSSMRA80A01H501U", QDate(1980, 1, 1), "M"}, {"RSSMRA80A41H501Y", QDate(1980, 1, 1), "F"},
        {"RSSMRAULALMHRLMD", QDate(1980, 1, 1), "M"}, {"DNGZOE15H43H501Y", QDate(2015, 6, 3), "F"},
        {"MRTMTT25D09F205Z", QDate(2025, 4, 9), "M"}, {"BNCGLI00B29F205F", QDate(2000, 2, 29), "M"},
    };
    for (const auto& each : cases) {
        const auto person = taxcode::personOf(QLatin1String(each.code), TODAY);
        ASSERT_TRUE(person) << each.code;
        EXPECT_EQ(person->birth, each.birth) << each.code;
        EXPECT_EQ(person->sex, QLatin1String(each.sex)) << each.code;
    }
    EXPECT_EQ(taxcode::personOf(QStringLiteral("MRTMTT25D09F205Z"), QDate(2024, 1, 1))->birth, QDate(1925, 4, 9))
        << "nobody is born in the future";
    EXPECT_FALSE(taxcode::personOf(QStringLiteral("12345678903"), TODAY));
    EXPECT_FALSE(taxcode::personOf(QStringLiteral("RSSMRA80A01H501V"), TODAY));
}

TEST(TaxCode, NoticesAnotherBirthOrSexButNoOtherCentury) {
    const QString man = QStringLiteral("RSSMRA80A01H501U");
    EXPECT_TRUE(taxcode::fitsBirth(man, QDate(1980, 1, 1)));
    EXPECT_TRUE(taxcode::fitsBirth(man, QDate(1880, 1, 1)));
    EXPECT_FALSE(taxcode::fitsBirth(man, QDate(1980, 1, 2)));
    EXPECT_FALSE(taxcode::fitsBirth(man, QDate(1980, 2, 1)));
    EXPECT_FALSE(taxcode::fitsBirth(man, QDate(1981, 1, 1)));
    EXPECT_TRUE(taxcode::fitsBirth(QStringLiteral("DNGZOE15H43H501Y"), QDate(2015, 6, 3)));
    EXPECT_TRUE(taxcode::fitsSex(man, QStringLiteral("M")));
    EXPECT_FALSE(taxcode::fitsSex(man, QStringLiteral("F")));
    for (const QString& untold : {QString(), QStringLiteral("12345678903"), QStringLiteral("sbagliato")}) {
        EXPECT_TRUE(taxcode::fitsBirth(untold, QDate(1980, 1, 2)));
        EXPECT_TRUE(taxcode::fitsSex(untold, QStringLiteral("F")));
    }
    EXPECT_TRUE(taxcode::fitsBirth(man, QDate())) << "no date, no doubt";
}
