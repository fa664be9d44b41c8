#include "store/RecordNumber.h"

#include "platform/Regional.h"

#include <cmath>

namespace {

const QLatin1Char SEPARATOR('-');

} // namespace

const QStringList& RecordNumber::suffixes() {
    static const QStringList known{QStringLiteral("BIS"), QStringLiteral("TRIS")};
    return known;
}

RecordNumber RecordNumber::of(const QString& anno, const QString& progressivo) {
    for (const QString& suffix : suffixes()) {
        if (progressivo.endsWith(suffix)) return {anno, progressivo.chopped(suffix.size()), suffix};
    }
    return {anno, progressivo, {}};
}

RecordNumber RecordNumber::parse(const QString& idrif1) {
    return idrif1.count(SEPARATOR) == 1 ? parseReference(idrif1) : RecordNumber();
}

RecordNumber RecordNumber::parseReference(const QString& reference) {
    const qsizetype separator = reference.indexOf(SEPARATOR);
    return separator < 0 ? RecordNumber() : of(reference.left(separator), reference.mid(separator + 1));
}

QString RecordNumber::text() const {
    return year + SEPARATOR + progressive + suffix;
}

QString RecordNumber::fourDigits(const QString& progressive) {
    const auto number = platform::regional().toNumber(progressive);
    return number ? platform::regional().format(*number, QStringLiteral("0000")) : progressive;
}

QString RecordNumber::fourDigits(int progressive) {
    return platform::regional().format(progressive, QStringLiteral("0000"));
}

bool RecordNumber::mayBeNew(const QString& progressive) {
    const auto number = platform::regional().toNumber(progressive);
    return number && *number >= 1 && *number <= 9999 && std::trunc(*number) == *number;
}
