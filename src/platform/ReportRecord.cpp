#include "platform/ReportRecord.h"

#include <algorithm>

namespace platform {

const ReportCellStyle& ReportCell::style() const {
    static const ReportCellStyle plain;
    return style_ ? *style_ : plain;
}

ReportCellStyle& ReportCell::changeStyle() {
    // Copied cells share their look until one of them changes.
    if (!style_) {
        style_ = std::make_shared<ReportCellStyle>();
    } else if (style_.use_count() > 1) {
        style_ = std::make_shared<ReportCellStyle>(*style_);
    }
    return *style_;
}

void ReportCell::setBold(bool bold) {
    if (style().bold != bold) changeStyle().bold = bold;
}

void ReportCell::setNotice(Notice notice, const QString& toolTip) {
    if (style().notice == notice && style().tooltip == toolTip) return;
    ReportCellStyle& look = changeStyle();
    look.notice = notice;
    look.tooltip = toolTip;
    look.foreground = noticeColour(notice);
}

void ReportCell::setCheckBox(bool checked, bool editable) {
    ReportCellStyle& look = changeStyle();
    look.hasCheckBox = true;
    look.checked = checked;
    look.checkEditable = editable;
}

ReportRecord* ReportRecord::addChild(int cells) {
    ReportRecord* child = children_.emplace_back(std::make_unique<ReportRecord>(cells)).get();
    child->parent_ = this;
    return child;
}

std::unique_ptr<ReportRecord> ReportRecord::takeChild(const ReportRecord* child) {
    const auto at =
        std::find_if(children_.begin(), children_.end(), [child](const auto& own) { return own.get() == child; });
    if (at == children_.end()) return nullptr;
    std::unique_ptr<ReportRecord> taken = std::move(*at);
    children_.erase(at);
    taken->parent_ = nullptr;
    return taken;
}

} // namespace platform
