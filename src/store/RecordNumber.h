#pragma once

#include <QString>
#include <QStringList>

/// The human number of a record ("2024-0007BIS"): the year, the progressive within it and, on invoices that share a
/// progressive, a suffix. A plain value; joined and split here and nowhere else. Whatever was stored stays as it is.
struct RecordNumber {
    QString year;
    QString progressive; ///< Without the suffix.
    QString suffix;

    static const QStringList& suffixes();
    /// From the two fields of a record, whose progressive bears the suffix.
    static RecordNumber of(const QString& anno, const QString& progressivo);
    /// The number of a record; all empty unless it has exactly two parts.
    static RecordNumber parse(const QString& idrif1);
    /// A reference to another record, which may be anything that people once typed: all after the first "-" is the
    /// progressive. All empty without a "-".
    static RecordNumber parseReference(const QString& reference);

    QString text() const;
    QString progressivo() const { return progressive + suffix; } ///< As the field of a record.
    bool isEmpty() const { return year.isEmpty() && progressive.isEmpty() && suffix.isEmpty(); }

    /// A progressive in its form of four digits; a text that is no number stays.
    static QString fourDigits(const QString& progressive);
    static QString fourDigits(int progressive);
    /// Whether a new record may have it: of four digits, since a greater one would end the numbering of its year.
    static bool mayBeNew(const QString& progressive);
};
