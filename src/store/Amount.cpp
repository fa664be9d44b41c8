#include "store/Amount.h"

#include "platform/Regional.h"
#include "store/modConversioni.h"

#include <cmath>

namespace {

const QString PATTERN = QStringLiteral("###0.00");

// The digits that the text shows: halves of a cent go away from zero there, on the decimal digits of the single, which
// no product with 100 would reproduce.
double cents(const Amount& amount) {
    return amount.text().remove(platform::regional().decimalMark()).toDouble();
}

} // namespace

Amount Amount::fromText(const QString& text) {
    return static_cast<double>(CastSingle(text));
}

bool Amount::isZero() const {
    constexpr float ONE_CENT = 0.01F; // asked of every row of a plan: most need not be written out for it
    return std::abs(value_) < ONE_CENT && cents(*this) == 0;
}

QString Amount::text() const {
    return platform::regional().format(value_, PATTERN);
}

QString Amount::textUnlessZero() const {
    return isZero() ? QString() : text();
}

std::partial_ordering operator<=>(const Amount& left, const Amount& right) {
    if (left.value_ == right.value_) return std::partial_ordering::equivalent;
    return cents(left) <=> cents(right);
}
