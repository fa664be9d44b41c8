#pragma once

#include <QString>

/// The goods groups of the configuration by code and by description, compared exactly; where several match, the last
/// one counts. Empty for an empty or unknown text.

QString DescrizioneRaggrMerc(const QString& code);
QString CodiceRaggrMerc(const QString& description);
