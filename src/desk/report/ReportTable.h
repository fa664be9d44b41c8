#pragma once

#include "desk/report/ReportBox.h"
#include "desk/report/ReportStyle.h"

#include <QStringList>
#include <vector>

namespace desk {

/// The texts of a grid variable: heads, column shares and alignments as comma lists, rows joined by the character 8,
/// their fields by the character 7.
struct ReportTableTexts {
    QString heads;
    QString percentages;
    QString alignments;
    QString rows;
};

struct ReportTableLook {
    ReportStyle style;
    QColor headColour;
    QColor headFill; ///< Invalid for none.
    QColor lineColour;
    bool totalLast = false; ///< The last row sums up the others.
};

/// A table set to a width: its head, repeated on every page, and one box per row. Column shares are per cent of that
/// width; a column of amounts takes the room it needs from columns whose texts can wrap.
class ReportTable {
public:
    ReportTable(const ReportTableTexts& texts, const ReportTableLook& look, qreal width);

    const ReportBox& head() const { return head_; }
    const std::vector<ReportBox>& rows() const { return rows_; }
    const QList<qreal>& columnWidths() const { return widths_; }
    int rowsWithMoreFields() const { return rowsWithMoreFields_; } ///< Whose last fields have no column.

private:
    void readColumns(const ReportTableTexts& texts);
    void readRows(const QString& text);
    void shareWidth(const QString& percentages, qreal width);
    void widen(qreal width);
    qreal needed(qsizetype column, qreal width) const;
    ReportBox cells(const QStringList& texts, const ReportStyle& style) const;
    void build();

    ReportTableLook look_;
    QStringList heads_;
    QList<Qt::Alignment> alignments_;
    QList<qreal> widths_;
    QList<QStringList> fields_;
    ReportBox head_;
    std::vector<ReportBox> rows_;
    int rowsWithMoreFields_ = 0;
};

} // namespace desk
