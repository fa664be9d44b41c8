#pragma once

class ReportList;

/// The tool "Imposta Report": lets the user choose, in `frmListaReports`, which print report serves estimates and
/// which invoices. `list` is filled at first use; a later one tells that it shows the list in memory. Says so when
/// there is no report at all.
void assignReports(ReportList& list);
