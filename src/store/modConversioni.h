#pragma once

#include <QString>

// Text to number by the regional settings, used everywhere in place of direct parsing: empty text, letters and overflow
// give 0, never an error. Whole numbers round halves to the even neighbour.

float CastSingle(const QString& text);
qint16 CastInteger(const QString& text);
qint32 CastLong(const QString& text);
