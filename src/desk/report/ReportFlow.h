#pragma once

#include "desk/report/ReportBox.h"

#include <memory>
#include <vector>

namespace desk {

/// One thing that follows another down the pages.
struct ReportFlowBlock {
    ReportBox box;
    qreal above = 0; ///< Space before and after it; none at the edges of a page.
    qreal below = 0;
    bool mayBreak = false; ///< Over two pages; others are cut only when they are higher than a page.
    bool withNext = false; ///< Stays on the page of what follows.
    std::shared_ptr<const ReportBox> head = {}; ///< Stands above the first block of a page that has it.
};
using ReportFlow = std::vector<ReportFlowBlock>;

/// The flow in one piece, for a place that is never broken.
ReportBox stacked(const ReportFlow& flow);

/// The flow cut into pages with that much room, on the first and on all others. At least one page.
std::vector<ReportBox> paginated(ReportFlow flow, qreal firstRoom, qreal otherRoom);

} // namespace desk
