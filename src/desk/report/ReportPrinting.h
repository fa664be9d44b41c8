#pragma once

namespace desk {

struct ReportDocument;

/// Asks for a printer and prints; a failure is shown. True when the user, to whom it was offered, wants to look at the
/// pages instead.
bool printReport(const ReportDocument& document, bool offerPreview);
/// Asks for a file and saves as PDF, replacing a file only with a whole new one; a failure is shown.
void saveReport(const ReportDocument& document);

} // namespace desk
