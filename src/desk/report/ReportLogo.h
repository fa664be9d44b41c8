#pragma once

#include <QImage>

namespace desk {

struct ReportElement;

/// The picture of a <logo>: its content as Base64, or else a file, which is looked for in the program's folder of the
/// user when its path is not absolute. Null when there is none or it is no picture.
QImage readReportLogo(const ReportElement& element);

} // namespace desk
