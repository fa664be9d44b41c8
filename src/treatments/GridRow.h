#pragma once

#include "chart/ChartComposition.h"
#include "treatments/clsItemRigoTrattamento.h"

#include <QString>

namespace platform {
class ReportRecord;
struct ReportColumn;
} // namespace platform

/// How one row of a plan stands in the grid rcRighi: which cell shows what, what its hidden tag keeps, how it is
/// painted. The grid is the working copy of the rows; the record's rows are built from it anew at each save.
namespace gridrow {

enum Cell {
    NUMBER = 0,
    TOOTH = 1,   ///< A tooth, or "+" with the list in the tag.
    SERVICE = 2, ///< Tag: the service of the catalogue that was applied last.
    DESCRIPTION = 3,
    START = 4, ///< The tags of both dates keep the last good one, which is the one that counts and is stored.
    END = 5,
    GROUP = 6,    ///< Tag: code.
    OPERATOR = 7, ///< Tag: tax code; the same for the assistant.
    ASSISTANT = 8,
    INVOICE = 9,           ///< Tag: price for one tooth.
    NOTES = 10,            ///< Tag: intermediate stages.
    OUTSIDE_ESTIMATE = 11, ///< A check box beyond the columns.
    CELL_COUNT = 12
};

/// The columns of the rows, wherever they are shown.
QList<platform::ReportColumn> columns();

/// The row number as shown and stored.
QString rowNumber(int position);

void fillRecord(const clsItemRigoTrattamento& row, platform::ReportRecord& record);
/// The row as it will be stored at that position, counted from 1; the number of the plan is left to the caller.
clsItemRigoTrattamento readRecord(const platform::ReportRecord& record, int position);
ChartRow forChart(const platform::ReportRecord& record);

/// The teeth of the row; none while the cell holds a text that could not be read.
ToothList teethOf(const platform::ReportRecord& record);
void setTeeth(platform::ReportRecord& record, const ToothList& teeth);
/// Reads the teeth, or the date, that were typed into the cell; what is none stays in it as typed.
void readTeeth(platform::ReportRecord& record);
void readDate(platform::ReportRecord& record, int cell);

/// Why the teeth as typed, and as read, will not be stored, or not all of them; empty when they will.
QString teethNotice(const ToothList& teeth, const QString& written);

/// Shows what the row editor changed. A text in the grid that could not be read stays where the editor left its value
/// as it was.
void setRows(const clsItemRigoTrattamento& row, platform::ReportRecord& record);

/// Colours of the dates by the state of the row, highlighted description, rows outside the estimate; and what the user
/// should know of a cell: several teeth, texts that are not stored, dates the wrong way round, unknown services.
void paintRow(platform::ReportRecord& record);

} // namespace gridrow
