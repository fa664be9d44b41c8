#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace platform {

/// Windows-1252, the single-byte code page of the records: one byte per character, "?" for a character outside it
/// (one for each, also when it takes two UTF-16 units).
QByteArray toSingleByte(const QString& text);
QString fromSingleByte(QByteArrayView bytes);

/// Base64 of the single bytes of a text, as the fields of the records hold it: no line breaks, "=" at the end. Reading
/// skips characters outside the alphabet. Done in one pass, since every list reads thousands of them.
QString toBase64(const QString& text);
QString fromBase64(const QString& encoded);
QString fromBase64(const QByteArray& encoded);

} // namespace platform
