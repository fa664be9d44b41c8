#pragma once

#include <QString>

/// A "?" typed as the service or the description of a row asks for the search through the catalogue, with what else
/// stands in the two.
namespace servicesearch {

inline bool isAsked(const QString& text) {
    return text.contains(u'?');
}

/// What to search for.
inline QString words(const QString& text) {
    return QString(text).replace(u'?', u' ').trimmed();
}

} // namespace servicesearch
