#pragma once

#include "platform/ReportColumnWidths.h"
#include "platform/ReportGrid.h"
#include "platform/ReportGridModel.h"
#include "platform/ReportGroupBox.h"
#include "platform/ReportHeader.h"
#include "platform/ReportTreeView.h"

#include <functional>

namespace platform {

/// What a report grid is made of. Private to its two files.
struct ReportGrid::Parts {
    explicit Parts(ReportGrid* grid)
        : model(std::make_unique<ReportGridModel>())
        , groupBox(new ReportGroupBox(colours, grid))
        , view(new ReportTreeView(*model, colours, grid))
        , header(new ReportHeader(colours, view))
        , widths(*model, *view) {}

    /// Runs a change of the records: what was folded stays folded, new groups stand open, the focus is told afterwards.
    void change(ReportGrid& grid, const std::function<void()>& work);

    ReportColours colours;
    std::unique_ptr<ReportGridModel> model;
    ReportGroupBox* groupBox;
    ReportTreeView* view;
    ReportHeader* header;
    ReportColumnWidths widths;
    QString sortPrompt;
    std::function<void(ReportRecord&)> beforeShown;
    bool editable = false;
    bool readOnly = false;
    ReportRecord* announced = nullptr; ///< The focused record that the listeners know of.
    int changing = 0;                  ///< While records change, the focus is not announced.
};

} // namespace platform
