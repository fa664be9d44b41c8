#pragma once

#include "desk/report/ReportBox.h"
#include "desk/report/ReportStyle.h"

namespace desk {

/// Breaks a text into lines of that width, between words where it can and else anywhere, so that nothing is lost. Line
/// ends in the text are kept.
ReportBox layOutText(const QString& text, const ReportStyle& style, qreal width);

qreal reportLineWidth(const QString& text, const ReportStyle& style); ///< Of the widest line of the text.
qreal longestWordWidth(const QString& text, const ReportStyle& style);

} // namespace desk
