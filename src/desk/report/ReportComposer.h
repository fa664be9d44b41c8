#pragma once

#include "desk/report/ReportElement.h"
#include "desk/report/ReportFlow.h"
#include "desk/report/ReportStyle.h"

namespace desk {

class ReportValues;

/// Turns the blocks of a layout, filled with values, into things to be drawn. Borrows the values, in which it notes
/// what it misses. Nothing here fails: what cannot be filled is left empty and noted.
class ReportComposer {
public:
    ReportComposer(ReportValues& values, const ReportStyle& style)
        : values_(values)
        , style_(style) {}

    ReportFlow flow(const ReportElement& section, qreal width);
    ReportBox box(const ReportElement& section, qreal width) { return stacked(flow(section, width)); }

private:
    bool isWanted(const ReportElement& element) const;
    ReportFlow blocks(const ReportElement& element, qreal width);
    ReportFlowBlock text(const ReportElement& element, qreal width);
    ReportBox rule(const ReportElement& element, qreal width) const;
    ReportBox logo(const ReportElement& element, qreal width);
    ReportBox columns(const ReportElement& element, qreal width);
    ReportBox frame(const ReportElement& element, qreal width);
    ReportFlow grid(const ReportElement& element, qreal width);
    ReportBox totals(const ReportElement& element, qreal width);

    ReportValues& values_;
    ReportStyle style_;
};

} // namespace desk
