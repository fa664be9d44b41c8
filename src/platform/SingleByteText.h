#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace platform {

/// Windows-1252, the single-byte code page of the records: one byte per character, "?" for a character outside it
/// (one for each, also when it takes two UTF-16 units).
QByteArray toSingleByte(const QString& text);
QString fromSingleByte(QByteArrayView bytes);

} // namespace platform
