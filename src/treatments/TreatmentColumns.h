#pragma once

namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

struct clsItemTrattamento;

/// How a plan stands in the lists, in the panel of the patient and practice-wide alike.
namespace treatmentcolumns {

enum Column { PROGRESSIVE, DATE, TAX_CODE, PATIENT, DESCRIPTION, STATUS };

/// The practice-wide list shows the tax code, the panel never does.
void addForPanel(platform::ReportGrid& grid);
void addForList(platform::ReportGrid& grid);

/// The cells of one plan, with its state and icon; the tag is left to the caller.
void fillRecord(const clsItemTrattamento& item, platform::ReportRecord& record);

} // namespace treatmentcolumns
