#pragma once

#include <QDate>
#include <QString>
#include <optional>

/// The Italian tax code of a person: sixteen characters, the last of which checks the others. Digits may stand as
/// letters where two people would have had the same code (omocodia). A provisional one has eleven digits.
namespace desk::taxcode {

/// Birth and sex as the code tells them. The year is the latest one that is not after `today`.
struct Person {
    QDate birth;
    QString sex; ///< "M" or "F".
};

QString normalized(const QString& text); ///< Upper case, without blanks.
bool isValid(const QString& code);       ///< Shape and check character, of either kind.
bool isProvisional(const QString& code); ///< Eleven digits: no person can be read from it.
std::optional<Person> personOf(const QString& code, const QDate& today); ///< Nothing when the code is not valid.
/// Whether the code was given to one born on this day; the century does not matter. True when it cannot be told.
bool fitsBirth(const QString& code, const QDate& birth);
bool fitsSex(const QString& code, const QString& sex);

} // namespace desk::taxcode
