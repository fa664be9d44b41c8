#include "platform/Regional.h"

#include "platform/Clock.h"

#include <QList>
#include <QRegularExpression>
#include <QTime>
#include <QVarLengthArray>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <utility>

namespace platform {

namespace {

constexpr int DIGITS_OF_SINGLE = 7;
constexpr int DIGITS_OF_DOUBLE = 15;
constexpr qsizetype GROUP = 3;
constexpr int LAST_YEAR_OF_CENTURY = 29; ///< "29" is 2029, "30" is 1930, as dates of two digits always were read.

/// A decimal number 0.DIGITS times ten to the power of `point`.
struct Decimal {
    bool negative = false;
    std::string digits;
    int point = 0;
};

template <class Number>
Decimal toDecimal(Number value, int significant) {
    char text[40];
    const auto end =
        std::to_chars(text, text + sizeof text, std::abs(value), std::chars_format::scientific, significant - 1).ptr;
    const auto exponent = std::find(text, end, 'e');
    Decimal decimal;
    decimal.negative = value < 0;
    std::copy_if(text, exponent, std::back_inserter(decimal.digits), [](char c) { return c != '.'; });
    const char* from = exponent + 1;
    if (*from == '+') ++from;
    std::from_chars(from, end, decimal.point);
    ++decimal.point;
    return decimal;
}

/// Rounds half away from zero to so many decimals; the digits then end exactly there.
void roundTo(Decimal& number, int decimals) {
    if (number.point < 0) {
        number.digits.insert(0, static_cast<std::size_t>(-number.point), '0');
        number.point = 0;
    }
    const auto keep = static_cast<std::size_t>(number.point + decimals);
    if (keep >= number.digits.size()) {
        number.digits.append(keep - number.digits.size(), '0');
        return;
    }
    bool carry = number.digits[keep] >= '5';
    number.digits.resize(keep);
    for (auto digit = number.digits.rbegin(); carry && digit != number.digits.rend(); ++digit) {
        carry = *digit == '9';
        *digit = carry ? '0' : static_cast<char>(*digit + 1);
    }
    if (!carry) return;
    number.digits.insert(0, 1, '1');
    ++number.point;
}

/// What a pattern asks for.
struct Layout {
    int leastWhole = 0;
    int leastDecimals = 0;
    int mostDecimals = 0;
    bool grouped = false;

    explicit Layout(const QString& pattern) {
        bool decimals = false;
        for (const QChar mark : pattern) {
            if (mark == QLatin1Char('.')) decimals = true;
            if (mark == QLatin1Char(',')) grouped = true;
            if (mark == QLatin1Char('0')) ++(decimals ? leastDecimals : leastWhole);
            if (decimals && (mark == QLatin1Char('0') || mark == QLatin1Char('#'))) ++mostDecimals;
        }
    }
};

QString layOut(Decimal number, const Layout& layout, QChar decimalMark, QChar groupMark) {
    roundTo(number, layout.mostDecimals);
    if (number.digits.find_first_not_of('0') == std::string::npos) number.negative = false;

    const auto point = static_cast<std::size_t>(number.point);
    std::string whole = number.digits.substr(0, point);
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    const auto least = static_cast<std::size_t>(layout.leastWhole);
    if (whole.size() < least) whole.insert(0, least - whole.size(), '0');
    std::string decimals = number.digits.substr(point);
    while (decimals.size() > static_cast<std::size_t>(layout.leastDecimals) && decimals.back() == '0')
        decimals.pop_back();

    QString text = QString::fromLatin1(whole.data(), static_cast<qsizetype>(whole.size()));
    if (layout.grouped) {
        for (qsizetype at = text.size() - GROUP; at > 0; at -= GROUP)
            text.insert(at, groupMark);
    }
    if (!decimals.empty()) {
        text += decimalMark;
        text += QLatin1String(decimals.data(), static_cast<qsizetype>(decimals.size()));
    }
    if (number.negative) text.prepend(QLatin1Char('-'));
    return text;
}

bool isDigit(QChar character) {
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool areDigits(QStringView text) {
    return std::all_of(text.begin(), text.end(), isDigit);
}

/// Whether group marks stand at thousands in a whole part that holds some. A group that starts with a nought is none,
/// so that "0.500" is a half.
bool isGrouped(QStringView whole, QChar groupMark) {
    const qsizetype first = whole.indexOf(groupMark);
    if (first < 1 || first > GROUP || whole.front() == QLatin1Char('0') || (whole.size() - first) % (GROUP + 1) != 0)
        return false;
    for (qsizetype i = 0; i < whole.size(); ++i) {
        const bool mark = i >= first && (i - first) % (GROUP + 1) == 0;
        if (mark ? whole[i] != groupMark : !isDigit(whole[i])) return false;
    }
    return true;
}

std::optional<double> toDouble(bool negative, QStringView whole, QStringView decimals) {
    if (whole.isEmpty() && decimals.isEmpty()) return std::nullopt;
    QVarLengthArray<char, 64> text{'0'}; // Numbers are read by the thousand: no allocation for those of usual length.
    const auto add = [&text](QChar character) {
        if (isDigit(character)) text.append(static_cast<char>(character.unicode())); // Drops the group marks.
    };
    std::for_each(whole.begin(), whole.end(), add);
    text.append('.');
    std::for_each(decimals.begin(), decimals.end(), add);
    text.append('0');
    double value = 0;
    if (std::from_chars(text.begin(), text.end(), value).ec != std::errc()) return std::nullopt;
    return negative ? -value : value;
}

bool isTime(QStringView text) {
    const QString time = text.trimmed().toString();
    for (const auto* format : {"H:m:s", "H:m", "H:m:s.zzz", "H.m.s"}) {
        if (QTime::fromString(time, QLatin1String(format)).isValid()) return true;
    }
    return false;
}

std::optional<int> fullYear(QStringView digits) {
    const int year = digits.toInt();
    if (digits.size() == 4) return year;
    if (digits.size() != 2) return std::nullopt;
    return year <= LAST_YEAR_OF_CENTURY ? 2000 + year : 1900 + year;
}

/// "dMy" for "dd/MM/yyyy": the order in which the parts of a date stand.
QString orderOfParts(const QString& format) {
    QString order;
    for (const QChar letter : format) {
        if (letter.isLetter() && !order.contains(letter)) order += letter;
    }
    return order;
}

} // namespace

Regional::Regional(QChar decimalMark, QChar groupMark, QString shortDateFormat)
    : decimalMark_(decimalMark)
    , groupMark_(groupMark)
    , shortDateFormat_(std::move(shortDateFormat)) {}

Regional Regional::italian() {
    return {QLatin1Char(','), QLatin1Char('.'), QStringLiteral("dd/MM/yyyy")};
}

QString Regional::format(float value, const QString& pattern) const {
    if (!std::isfinite(value)) return {};
    return layOut(toDecimal(value, DIGITS_OF_SINGLE), Layout(pattern), decimalMark_, groupMark_);
}

QString Regional::format(double value, const QString& pattern) const {
    if (!std::isfinite(value)) return {};
    return layOut(toDecimal(value, DIGITS_OF_DOUBLE), Layout(pattern), decimalMark_, groupMark_);
}

QString Regional::format(int value, const QString& pattern) const {
    return format(static_cast<double>(value), pattern);
}

std::optional<double> Regional::toNumber(const QString& text) const {
    QStringView number = QStringView(text).trimmed();
    if (number.isEmpty()) return std::nullopt;
    const bool negative = number.front() == QLatin1Char('-');
    if (negative || number.front() == QLatin1Char('+')) number = number.mid(1);

    const qsizetype mark = number.indexOf(decimalMark_);
    const QStringView decimals = mark < 0 ? QStringView() : number.mid(mark + 1);
    if (!areDigits(decimals)) return std::nullopt;
    const QStringView whole = mark < 0 ? number : number.left(mark);
    if (areDigits(whole) || isGrouped(whole, groupMark_)) return toDouble(negative, whole, decimals);

    const qsizetype stop = number.indexOf(QLatin1Char('.'));
    if (mark >= 0 || stop < 0) return std::nullopt;
    if (!areDigits(number.left(stop)) || !areDigits(number.mid(stop + 1))) return std::nullopt;
    return toDouble(negative, number.left(stop), number.mid(stop + 1));
}

QString Regional::shortDate(const QDate& date) const {
    return date.isValid() ? date.toString(shortDateFormat_) : QString();
}

std::optional<QDate> Regional::toDate(const QString& text) const {
    const QStringView trimmed = QStringView(text).trimmed();
    qsizetype end = 0;
    while (end < trimmed.size() && trimmed[end] != QLatin1Char(' ') && trimmed[end] != QLatin1Char('T'))
        ++end;
    if (end < trimmed.size() && !isTime(trimmed.mid(end + 1))) return std::nullopt;

    QString date = trimmed.left(end).toString();
    const bool iso = date.size() > 4 && date[4] == QLatin1Char('-');
    date.replace(QLatin1Char('-'), QLatin1Char('/')).replace(QLatin1Char('.'), QLatin1Char('/'));
    const QList<QStringView> parts = QStringView(date).split(QLatin1Char('/'));
    const QString order = iso ? QStringLiteral("yMd") : orderOfParts(shortDateFormat_);
    if (parts.size() != 3 || order.size() != 3) return std::nullopt;

    const auto part = [&](char letter) { return parts[order.indexOf(QLatin1Char(letter))]; };
    if (!std::all_of(parts.begin(), parts.end(), areDigits)) return std::nullopt;
    if (part('d').size() > 2 || part('M').size() > 2) return std::nullopt;
    const std::optional<int> year = fullYear(part('y'));
    if (!year) return std::nullopt;
    const QDate result(*year, part('M').toInt(), part('d').toInt());
    return result.isValid() ? std::optional(result) : std::nullopt;
}

std::optional<QDate> Regional::typedDate(const QString& text) const {
    if (const auto date = toDate(text)) return date;
    QString typed = text.trimmed();
    // Digits alone are parted as the short date has them; a year that is left out is the present one.
    const QString order = orderOfParts(shortDateFormat_);
    if (order.size() != 3) return std::nullopt;
    if (areDigits(typed) && (typed.size() == 6 || typed.size() == 8)) {
        const qsizetype yearDigits = typed.size() - 4;
        qsizetype at = 0;
        for (const QChar letter : order.left(2)) {
            at += letter == QLatin1Char('y') ? yearDigits : 2;
            typed.insert(at++, QLatin1Char('/'));
        }
        return toDate(typed);
    }
    static const QRegularExpression dayAndMonth(QStringLiteral("^(\\d{1,2})[/.-](\\d{1,2})$"));
    const QRegularExpressionMatch parts = dayAndMonth.match(typed);
    if (!parts.hasMatch()) return std::nullopt;
    const bool dayFirst = order.indexOf(QLatin1Char('d')) < order.indexOf(QLatin1Char('M'));
    const QDate date(today().year(), parts.captured(dayFirst ? 2 : 1).toInt(),
                     parts.captured(dayFirst ? 1 : 2).toInt());
    return date.isValid() ? std::optional(date) : std::nullopt;
}

namespace {

Regional& inForce() {
    static Regional settings = Regional::italian();
    return settings;
}

} // namespace

const Regional& regional() {
    return inForce();
}

ScopedRegional::ScopedRegional(Regional regional)
    : previous_(std::exchange(inForce(), std::move(regional))) {}

ScopedRegional::~ScopedRegional() {
    inForce() = std::move(previous_);
}

} // namespace platform
