#pragma once

#include <QChar>
#include <QDate>
#include <QString>
#include <optional>

namespace platform {

/// Decimal mark, grouping and short date, in both directions, on screen and in stored text. Italian unless a test puts
/// another one in, whatever the locale of the process, so that a stored record reads back on any machine.
class Regional {
public:
    Regional(QChar decimalMark, QChar groupMark, QString shortDateFormat);
    static Regional italian(); ///< "12,50", "1.234,5", "22/11/2026".

    /// Formats by one of the patterns "###0.00", "##,##", "##,##0.0", "0000", "00", "0,0.00": "0" a digit that always
    /// shows, "#" one that may, a comma between digits asks for grouping, a full stop starts the decimals. Rounds half
    /// away from zero on the decimal digits of the value as its type shows them, so 2.675f gives "2,68". A value that
    /// is no number gives an empty text.
    QString format(float value, const QString& pattern) const;
    QString format(double value, const QString& pattern) const;
    QString format(int value, const QString& pattern) const;

    /// Reads a number as typed or stored. Group marks must stand at thousands; a full stop that cannot be a thousands
    /// mark counts as the decimal mark ("12.50"). Nothing for empty text, letters or a malformed number.
    std::optional<double> toNumber(const QString& text) const;

    QString shortDate(const QDate& date) const; ///< Empty for an invalid date.
    std::optional<QDate>
    toDate(const QString& text) const; ///< Accepts one-digit days and months and, after the date, a time.

    /// A date as people type it into a field: besides what `toDate` reads, "020326" and "02032026", and "2/3" of the
    /// present year.
    std::optional<QDate> typedDate(const QString& text) const;

    QChar decimalMark() const { return decimalMark_; }
    const QString& shortDateFormat() const { return shortDateFormat_; }

private:
    QChar decimalMark_;
    QChar groupMark_;
    QString shortDateFormat_;
};

/// The regional settings in force. Interface thread only.
const Regional& regional();

/// Puts other settings in force for its own lifetime.
class ScopedRegional {
public:
    explicit ScopedRegional(Regional regional);
    ~ScopedRegional();
    ScopedRegional(const ScopedRegional&) = delete;
    ScopedRegional& operator=(const ScopedRegional&) = delete;

private:
    Regional previous_;
};

} // namespace platform
