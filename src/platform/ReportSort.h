#pragma once

#include <QCollator>
#include <QString>
#include <optional>

namespace platform {

/// What a cell's text sorts by: as a number, a date or a text, whichever it reads as. Empty cells come first, then
/// numbers, dates and texts; digits within a text count as numbers, so that "2026-9" comes before "2026-0010".
class ReportSortKey {
public:
    ReportSortKey(const QString& text, const QCollator& collator);
    static QCollator collator(); ///< For texts: Italian, blind to case.

    int compare(const ReportSortKey& other) const; ///< Below, at or above zero, as this comes before, with or after.

private:
    enum class Kind { Empty, Number, Date, Text };
    Kind kind_ = Kind::Empty;
    double number_ = 0;
    std::optional<QCollatorSortKey> text_;
};

} // namespace platform
