#pragma once

#include "platform/Notice.h"

#include <QColor>
#include <QIcon>
#include <QList>
#include <QString>
#include <memory>
#include <vector>

namespace platform {

/// Look of a cell that differs from the grid's own. Kept apart from the cell, since most cells have none.
struct ReportCellStyle {
    QColor background;
    QColor foreground;
    bool bold = false;
    QIcon icon;
    int iconIndex = 0; ///< The number behind the icon, for who wants to know which it is; 0 none.
    bool hasCheckBox = false;
    bool checked = false;
    bool checkEditable = true;
    bool editable = true;  ///< False locks the cell in an editable column.
    bool button = false;   ///< Shows the in-cell button.
    int mergedColumns = 1; ///< Columns that the cell covers, itself included.
    QString tooltip;       ///< Plain text; under the whole text of the cell where that does not fit.
    QStringList choices;   ///< In-cell list; empty for none. Other texts can be typed too.
    Notice notice = Notice::None;
};

/// One cell: the text shown and a hidden tag beside it.
class ReportCell {
public:
    QString value;
    QString tag;

    const ReportCellStyle& style() const;
    ReportCellStyle& changeStyle(); ///< Made on first use.

    void setBackground(const QColor& colour) { changeStyle().background = colour; }
    void setBold(bool bold);
    void setNotice(Notice notice, const QString& toolTip = QString()); ///< None takes it away.
    bool isChecked() const { return style().checked; }
    void setCheckBox(bool checked, bool editable = true);

private:
    std::shared_ptr<ReportCellStyle> style_;
};

/// One row of data with its cells, a tag (the record's identity, mostly) and child records.
class ReportRecord {
public:
    explicit ReportRecord(int cells = 0)
        : cells_(static_cast<std::size_t>(cells)) {}

    QString tag;
    ReportCell& cell(int index) { return cells_[static_cast<std::size_t>(index)]; }
    const ReportCell& cell(int index) const { return cells_[static_cast<std::size_t>(index)]; }
    int cellCount() const { return static_cast<int>(cells_.size()); }
    ReportCell& addCell() { return cells_.emplace_back(); } ///< A cell beyond the columns, never shown.

    ReportRecord* addChild(int cells);
    const std::vector<std::unique_ptr<ReportRecord>>& children() const { return children_; }
    ReportRecord* parent() const { return parent_; }                    ///< Null for a record of the grid itself.
    std::unique_ptr<ReportRecord> takeChild(const ReportRecord* child); ///< Null when it is none of the children.

private:
    std::vector<ReportCell> cells_;
    std::vector<std::unique_ptr<ReportRecord>> children_;
    ReportRecord* parent_ = nullptr;
};

} // namespace platform
