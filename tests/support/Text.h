#pragma once

#include <QString>

/// A text of the tests, written in UTF-8 as it stands in the source.
inline QString u8(const char* text) {
    return QString::fromUtf8(text);
}
