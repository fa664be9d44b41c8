#pragma once

#include <QString>

// The cipher of clsAES, salted so that equal texts give different results. Nothing calls these at present: they are
// kept for settings that were once stored in this form, and stay in step with the cipher. Empty text gives empty text.

QString encryptText(const QString& text);
QString decryptText(const QString& text);
