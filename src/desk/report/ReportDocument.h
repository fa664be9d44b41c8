#pragma once

#include "desk/report/ReportBox.h"

#include <QMap>
#include <QPageLayout>
#include <QStringList>
#include <QVariant>

class QPagedPaintDevice;
class QPainter;

namespace desk {

class ReportLayout;

/// A report filled and cut into pages, ready to be shown, printed or saved; a plain value.
struct ReportDocument {
    QString title;
    QPageLayout page; ///< Without margins: the pages hold their own.
    std::vector<ReportBox> pages;
    QStringList missing; ///< Variables that the layout asks for and nobody gave.
    QStringList notes;   ///< What else is not as it should be.

    /// Throws ReportLayoutError when margins, heading and footer leave no room.
    static ReportDocument compose(const ReportLayout& layout, const QMap<QString, QVariant>& variables);

    int pageCount() const { return static_cast<int>(pages.size()); }
    QList<int> allPages() const; ///< Their numbers, from 0.
    QSizeF pageSize() const;     ///< In the units of a report.
    /// Draws a page, counted from 0, with its top left corner at the origin.
    void paint(QPainter& painter, int number) const;
    /// Prints these pages, counted from 0, one after the other; false when the device cannot be written.
    bool print(QPagedPaintDevice& device, const QList<int>& numbers) const;
    /// The whole as PDF; empty when it cannot be made.
    QByteArray toPdf() const;
};

} // namespace desk
