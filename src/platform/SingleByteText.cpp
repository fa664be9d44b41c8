#include "platform/SingleByteText.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace platform {

namespace {

constexpr char16_t FIRST_SPECIAL = 0x80;
constexpr char16_t FIRST_LATIN = 0xA0;
constexpr char16_t LAST_LATIN = 0xFF;

/// Characters of the bytes 0x80 to 0x9F. The five bytes without a character stand for themselves, so that any bytes
/// survive the way there and back.
constexpr std::array<char16_t, 32> SPECIAL = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                              0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char specialByte(char16_t character) {
    const auto found = std::find(SPECIAL.begin(), SPECIAL.end(), character);
    if (found == SPECIAL.end()) return '?';
    return static_cast<char>(FIRST_SPECIAL + std::distance(SPECIAL.begin(), found));
}

bool hasOwnByte(char16_t character) {
    return character < FIRST_SPECIAL || (character >= FIRST_LATIN && character <= LAST_LATIN);
}

QChar characterOf(unsigned char code) {
    const bool special = code >= FIRST_SPECIAL && code < FIRST_LATIN;
    return QChar(special ? SPECIAL[static_cast<std::size_t>(code - FIRST_SPECIAL)] : char16_t(code));
}

constexpr std::string_view ALPHABET = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr quint8 NOT_BASE64 = 64;

/// Value of each ASCII character in the alphabet.
constexpr std::array<quint8, 128> makeBase64Values() {
    std::array<quint8, 128> values{};
    values.fill(NOT_BASE64);
    for (std::size_t i = 0; i < ALPHABET.size(); ++i)
        values[static_cast<std::size_t>(ALPHABET[i])] = quint8(i);
    return values;
}

constexpr std::array<quint8, 128> BASE64_VALUES = makeBase64Values();

} // namespace

QByteArray toSingleByte(const QString& text) {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char* out = bytes.data();
    const QChar* const end = text.cend();
    for (const QChar* at = text.cbegin(); at != end; ++at) {
        const char16_t character = at->unicode();
        *out++ = hasOwnByte(character) ? static_cast<char>(character) : specialByte(character);
        if (at->isHighSurrogate() && at + 1 != end && (at + 1)->isLowSurrogate()) ++at;
    }
    bytes.resize(out - bytes.constData());
    return bytes;
}

QString fromSingleByte(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return characterOf(static_cast<unsigned char>(byte)); });
    return text;
}

QString toBase64(const QString& text) {
    return QString::fromLatin1(toSingleByte(text).toBase64());
}

namespace {

char16_t codeOf(QChar letter) {
    return letter.unicode();
}
char16_t codeOf(char letter) {
    return static_cast<unsigned char>(letter);
}

template <class Letters>
QString decode(const Letters& encoded) {
    if (encoded.isEmpty()) return {};
    QString text(encoded.size() * 3 / 4, Qt::Uninitialized);
    QChar* out = text.data();
    quint32 collected = 0;
    int bits = 0;
    for (const auto letter : encoded) {
        const char16_t code = codeOf(letter);
        const quint8 value = code < BASE64_VALUES.size() ? BASE64_VALUES[code] : NOT_BASE64;
        if (value == NOT_BASE64) continue;
        collected = (collected << 6) | value;
        bits += 6;
        if (bits < 8) continue;
        bits -= 8;
        *out++ = characterOf(static_cast<unsigned char>(collected >> bits));
    }
    text.resize(out - text.constData());
    return text;
}

} // namespace

QString fromBase64(const QString& encoded) {
    return decode(encoded);
}

QString fromBase64(const QByteArray& encoded) {
    return decode(encoded);
}

} // namespace platform
