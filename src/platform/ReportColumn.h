#pragma once

#include <QString>
#include <Qt>

namespace platform {

/// One column of a report grid: what its head shows and how its cells lie.
struct ReportColumn {
    QString caption;
    int width = 100;        ///< In pixels of the small font that lists are measured in; grows with the font in use.
    bool resizable = false; ///< Takes the room that is left over, in proportion to its width.
    bool visible = true;
    bool sortable = true;
    bool editable = false;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    /// A text that is to be read whole even in bold: a fixed column grows to it, a resizable one takes that
    /// much as long as the others stay readable.
    QString sample = QString();
};

} // namespace platform
