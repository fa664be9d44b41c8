#include "desk/people/TaxCode.h"

#include <QRegularExpression>
#include <array>

namespace desk::taxcode {

namespace {

constexpr int LENGTH = 16;
constexpr int PROVISIONAL_LENGTH = 11;
constexpr int FEMALE_DAYS = 40;

const QString MONTHS = QStringLiteral("ABCDEHLMPRST");
const QString LETTERS_FOR_DIGITS = QStringLiteral("LMNPQRSTUV");
constexpr std::array<int, 7> DIGIT_PLACES{6, 7, 9, 10, 12, 13, 14};

/// Weight of a character in an odd place, counted from 1: the same for a digit and for its letter of the alphabet.
constexpr std::array<int, 26> ODD{1,  0,  5, 7, 9, 13, 15, 17, 19, 21, 2,  4,  18,
                                  20, 11, 3, 6, 8, 12, 14, 16, 10, 22, 25, 24, 23};

int rankOf(QChar c) {
    return c.isDigit() ? c.digitValue() : c.unicode() - u'A';
}

QChar checkCharacter(const QString& code) {
    int sum = 0;
    for (int i = 0; i < LENGTH - 1; ++i) {
        const int rank = rankOf(code[i]);
        sum += i % 2 == 0 ? ODD[static_cast<std::size_t>(rank)] : rank;
    }
    return QChar(u'A' + sum % 26);
}

/// The code with digits wherever digits are meant.
QString withDigits(const QString& code) {
    QString plain = code;
    for (const int place : DIGIT_PLACES) {
        const qsizetype digit = LETTERS_FOR_DIGITS.indexOf(plain[place]);
        if (digit >= 0) plain[place] = QChar(u'0' + static_cast<int>(digit));
    }
    return plain;
}

/// The sum of the digits, each second one doubled, is a multiple of ten.
bool isValidProvisional(const QString& code) {
    int sum = 0;
    for (int i = 0; i < PROVISIONAL_LENGTH; ++i) {
        const int digit = code[i].digitValue() * (i % 2 == 0 ? 1 : 2);
        sum += digit > 9 ? digit - 9 : digit;
    }
    return sum % 10 == 0;
}

bool hasShape(const QString& code) {
    static const QRegularExpression shape(
        QStringLiteral("^[A-Z]{6}[0-9L-NP-V]{2}[ABCDEHLMPRST][0-9L-NP-V]{2}[A-Z][0-9L-NP-V]{3}[A-Z]$"));
    return shape.match(code).hasMatch();
}

int dayOf(const QString& plain) {
    return QStringView(plain).mid(9, 2).toInt();
}

int monthOf(const QString& plain) {
    return static_cast<int>(MONTHS.indexOf(plain[8])) + 1;
}

int yearOf(const QString& plain) {
    return QStringView(plain).mid(6, 2).toInt();
}

} // namespace

QString normalized(const QString& text) {
    return text.simplified().remove(QLatin1Char(' ')).toUpper();
}

bool isProvisional(const QString& code) {
    static const QRegularExpression digits(QStringLiteral("^[0-9]{11}$"));
    return digits.match(code).hasMatch();
}

bool isValid(const QString& code) {
    if (isProvisional(code)) return isValidProvisional(code);
    if (!hasShape(code) || code.back() != checkCharacter(code)) return false;
    const QString plain = withDigits(code);
    const int day = dayOf(plain) > FEMALE_DAYS ? dayOf(plain) - FEMALE_DAYS : dayOf(plain);
    // 2000 had a 29 February, as the year of some century may have had.
    return QDate::isValid(yearOf(plain) % 4 == 0 ? 2000 : 2001, monthOf(plain), day);
}

std::optional<Person> personOf(const QString& code, const QDate& today) {
    if (!isValid(code) || isProvisional(code)) return std::nullopt;
    const QString plain = withDigits(code);
    const bool female = dayOf(plain) > FEMALE_DAYS;
    const int day = dayOf(plain) - (female ? FEMALE_DAYS : 0);
    QDate birth(today.year() - today.year() % 100 + yearOf(plain), monthOf(plain), day);
    if (!birth.isValid() || birth > today)
        birth = QDate(today.year() - today.year() % 100 - 100 + yearOf(plain), monthOf(plain), day);
    if (!birth.isValid()) return std::nullopt;
    return Person{birth, female ? QStringLiteral("F") : QStringLiteral("M")};
}

bool fitsBirth(const QString& code, const QDate& birth) {
    if (!isValid(code) || isProvisional(code) || !birth.isValid()) return true;
    const QString plain = withDigits(code);
    return birth.year() % 100 == yearOf(plain) && birth.month() == monthOf(plain) &&
           birth.day() == dayOf(plain) % FEMALE_DAYS;
}

bool fitsSex(const QString& code, const QString& sex) {
    if (!isValid(code) || isProvisional(code) || sex.isEmpty()) return true;
    return (sex == QLatin1String("F")) == (dayOf(withDigits(code)) > FEMALE_DAYS);
}

} // namespace desk::taxcode
