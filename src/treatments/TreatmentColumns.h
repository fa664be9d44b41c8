#pragma once

struct DocumentKind;

/// How a plan stands in the lists, in the panel of the patient and practice-wide alike.
namespace treatmentcolumns {

enum Column { PROGRESSIVE, DATE, TAX_CODE, PATIENT, DESCRIPTION, STATUS };

DocumentKind kind();

} // namespace treatmentcolumns
