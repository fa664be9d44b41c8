#pragma once

namespace desk {

struct ReportDocument;

/// Asks for a printer and prints. False when the user gives it up or it fails; a failure is shown.
bool printReport(const ReportDocument& document);
/// Asks for a file and saves as PDF, replacing a file only with a whole new one. False as above.
bool saveReport(const ReportDocument& document);

} // namespace desk
