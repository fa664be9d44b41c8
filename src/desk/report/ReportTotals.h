#pragma once

#include "desk/report/ReportBox.h"
#include "desk/report/ReportStyle.h"

#include <QString>
#include <vector>

namespace desk {

struct ReportTotal {
    QString title;
    QString value;
    bool stressed = false; ///< The line that the reader looks for.
    bool isTitle = false;  ///< Stands above others and has no value.
};

struct ReportTotalsLook {
    ReportStyle style;
    QColor lineColour;
    QColor fill; ///< Behind the stressed line; invalid for none.
};

/// Titles at the left, amounts at the right, one below the other. Entries without a value are left out.
ReportBox layOutTotals(const QString& title, const std::vector<ReportTotal>& entries, const ReportTotalsLook& look,
                       qreal width);

/// The lines of a summary, such as "Bolli:     12,00", as entries; a line without a colon is a title of its own.
std::vector<ReportTotal> totalsOfLines(const QString& text);

} // namespace desk
