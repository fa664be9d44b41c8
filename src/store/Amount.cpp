#include "store/Amount.h"

#include "platform/Regional.h"
#include "store/modConversioni.h"

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
