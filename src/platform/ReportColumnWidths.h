#pragma once

#include <QFont>
#include <QHash>
#include <QList>
#include <functional>

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
    int sampleWidth(const QString& sample); ///< Of the longest text that should fit, in bold.
    void wholeSamples(QList<int>& columns, int& room, const std::function<int(int)>& weight);
    void share(QList<int> columns, int room, const std::function<int(int)>& least);

    ReportGridModel& model_;
    QTreeView& view_;
    QHash<int, int> dragged_;
    QHash<QString, int> sampleWidths_;
    QFont font_;
    bool applying_ = false;
};

} // namespace platform
