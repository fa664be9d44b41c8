#include "store/clsAES.h"

#include "platform/Files.h"
#include "platform/SingleByteText.h"
#include "store/Rijndael.h"

#include <QRegularExpression>
#include <QStringList>
#include <QtEndian>
#include <algorithm>

namespace files = platform::files;

namespace {

constexpr int BLOCK_WORDS = 8; ///< Blocks of 256 bits, twice those of AES.
constexpr qsizetype LENGTH_BYTES = 4;

/// Ten characters of 16 bits. Records do not depend on them.
constexpr std::array<char16_t, 10> KEY_MATERIAL = {0x4B1D, 0x92E7, 0x06C3, 0xD85A, 0x7F34,
                                                   0xA1B8, 0x3E69, 0xC502, 0x58FD, 0xE496};

uint8_t* bytesOf(QByteArray& data) {
    return reinterpret_cast<uint8_t*>(data.data());
}

bool mayWrite(const QString& target, bool overwrite) {
    return overwrite || !files::exists(target);
}

QByteArray decodeBase64(const QString& text) {
    return QByteArray::fromBase64(text.toLatin1());
}

/// What follows the head of a MIME part, which ends at an empty line.
QString bodyOf(const QStringList& part) {
    const qsizetype head = part.indexOf(QString());
    return part.mid(head + 1).join(QString());
}

} // namespace

clsAES::clsAES() {
    // Low byte first; what is left of the 32 bytes stays zero.
    for (std::size_t i = 0; i < KEY_MATERIAL.size(); ++i)
        qToLittleEndian(static_cast<quint16>(KEY_MATERIAL[i]), key_.data() + 2 * i);
}

QString clsAES::plbEncodeStrB64(const QString& text) const {
    return platform::toBase64(text);
}

QString clsAES::plbDecodeStrB64(const QString& text) const {
    return platform::fromBase64(text);
}

QString clsAES::EncryptStr(const QString& text) const {
    return QString::fromLatin1(encrypt(platform::toSingleByte(text)).toBase64());
}

QString clsAES::DecryptStr(const QString& text) const {
    return platform::fromSingleByte(decrypt(decodeBase64(text)));
}

bool clsAES::EncryptFile(const QString& source, const QString& target, bool overwrite) const {
    const auto content = files::read(source);
    return content && mayWrite(target, overwrite) && files::writeAtomically(target, encrypt(*content));
}

bool clsAES::DecryptFile(const QString& source, const QString& target, bool overwrite) const {
    const auto content = files::read(source);
    return content && mayWrite(target, overwrite) && files::writeAtomically(target, decrypt(*content));
}

QString clsAES::DecryptFileStr(const QString& source) const {
    const auto content = files::read(source);
    if (!content) return {};
    const QString blocks = Base64DecoderStringMIME(platform::fromSingleByte(*content));
    return platform::fromSingleByte(decrypt(platform::toSingleByte(blocks)));
}

QString clsAES::Base64DecoderStringMIME(const QString& text) const {
    static const QRegularExpression boundaryName(QStringLiteral("BOUNDARY=(?:\"([^\"]+)\"|([^\\s;]+))"),
                                                 QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\r|\n"));
    const QRegularExpressionMatch match = boundaryName.match(text);
    if (!match.hasMatch()) return plbDecodeStrB64(text);

    const QString boundary = QStringLiteral("--") + match.captured(1) + match.captured(2);
    QByteArray bytes;
    std::optional<QStringList> part; // Nothing before the first boundary, which is the head of the whole message.
    const QStringList lines = text.split(lineEnd);
    for (const QString& line : lines) {
        if (!line.startsWith(boundary)) {
            if (part) part->append(line);
            continue;
        }
        if (part) bytes += decodeBase64(bodyOf(*part));
        part.emplace();
        if (line.mid(boundary.size()).startsWith(QLatin1String("--"))) return platform::fromSingleByte(bytes);
    }
    if (part) bytes += decodeBase64(bodyOf(*part)); // A message cut short keeps what it has.
    return platform::fromSingleByte(bytes);
}

QByteArray clsAES::encrypt(const QByteArray& data) const {
    const Rijndael cipher(QByteArrayView(key_), BLOCK_WORDS);
    const auto block = static_cast<qsizetype>(cipher.blockBytes());
    QByteArray blocks((LENGTH_BYTES + data.size() + block - 1) / block * block, '\0');
    qToLittleEndian(static_cast<quint32>(data.size()), blocks.data());
    std::copy(data.begin(), data.end(), blocks.begin() + LENGTH_BYTES);
    for (qsizetype at = 0; at < blocks.size(); at += block)
        cipher.encryptBlock(bytesOf(blocks) + at);
    return blocks;
}

QByteArray clsAES::decrypt(const QByteArray& blocks) const {
    const Rijndael cipher(QByteArrayView(key_), BLOCK_WORDS);
    const auto block = static_cast<qsizetype>(cipher.blockBytes());
    QByteArray data = blocks.left(blocks.size() / block * block);
    if (data.isEmpty()) return {};
    for (qsizetype at = 0; at < data.size(); at += block)
        cipher.decryptBlock(bytesOf(data) + at);
    const qsizetype length = qFromLittleEndian<quint32>(data.constData());
    return length <= data.size() - LENGTH_BYTES ? data.mid(LENGTH_BYTES, length) : QByteArray();
}
