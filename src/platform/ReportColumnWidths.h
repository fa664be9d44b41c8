#pragma once

#include <QHash>

class QTreeView;

namespace platform {

class ReportGridModel;

/// Shares the width of the view among the visible columns: fixed ones get theirs, the resizable ones what is left, in
/// proportion to their widths. A width that the user has dragged stays.
class ReportColumnWidths {
public:
    ReportColumnWidths(ReportGridModel& model, QTreeView& view)
        : model_(model)
        , view_(view) {}
    void apply();
    void dragged(int column, int width);

private:
    ReportGridModel& model_;
    QTreeView& view_;
    QHash<int, int> dragged_;
    bool applying_ = false;
};

} // namespace platform
