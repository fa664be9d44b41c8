#pragma once

#include "desk/report/ReportElement.h"

#include <QMarginsF>
#include <QSizeF>

namespace desk {

/// One layout as it was read: the page and the sections that stand on it. A plain value; docs/report.md tells the
/// language.
class ReportLayout {
public:
    /// Throws ReportLayoutError, with line or element, for text that is no layout.
    static ReportLayout read(const QString& xml);

    QString title() const { return root_.value("titolo"); }
    QSizeF pageSize() const;   ///< Millimetres.
    QMarginsF margins() const; ///< Millimetres.
    bool isLandscape() const;
    const ReportElement& page() const { return page_; }
    /// The blocks of "intestazione", "seguito", "corpo" or "piede"; null when the layout has no such section.
    const ReportElement* section(const char* name) const { return root_.child(name); }

private:
    ReportElement root_;
    ReportElement page_;
};

} // namespace desk
