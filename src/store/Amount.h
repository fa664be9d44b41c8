#pragma once

#include <QString>
#include <compare>

/// Money of rows and documents. Kept in single precision, as stored documents always had it: an expression is computed
/// in the wider type and rounded once, where its result is stored ("total = total.wide() + price.wide() * teeth").
/// Two amounts are equal, or one is the greater, as their texts show them: to the cent. One that is out of all range
/// has an empty text.
class Amount {
public:
    Amount() = default;
    Amount(double value)
        : value_(static_cast<float>(value)) {}
    static Amount fromText(const QString& text); ///< As typed or stored; 0 for what is no amount.

    double wide() const { return static_cast<double>(value_); }
    bool isZero() const;
    QString text() const;           ///< "12,50"
    QString textUnlessZero() const; ///< Empty for zero.

    friend bool operator==(const Amount& left, const Amount& right) { return (left <=> right) == 0; }
    friend std::partial_ordering operator<=>(const Amount& left, const Amount& right);

private:
    float value_ = 0;
};
