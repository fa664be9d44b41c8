#include "store/modConversioni.h"

#include "platform/Regional.h"

#include <cmath>
#include <limits>

namespace {

template <class Whole>
Whole castWhole(const QString& text) {
    // Halves go to the even neighbour on purpose: quantities of stored documents were always rounded so.
    const double rounded = std::nearbyint(platform::regional().toNumber(text).value_or(0));
    if (rounded < std::numeric_limits<Whole>::min() || rounded > std::numeric_limits<Whole>::max()) return 0;
    return static_cast<Whole>(rounded);
}

} // namespace

float CastSingle(const QString& text) {
    const double value = platform::regional().toNumber(text).value_or(0);
    if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) return 0;
    return static_cast<float>(value);
}

qint16 CastInteger(const QString& text) {
    return castWhole<qint16>(text);
}

qint32 CastLong(const QString& text) {
    return castWhole<qint32>(text);
}
