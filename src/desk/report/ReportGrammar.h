#pragma once

#include "desk/report/ReportElement.h"

namespace platform {
class XmlNode;
}

namespace desk {

/// Reads an element with all below it, by the rules of the layout language: which element may stand where, with which
/// attributes and values. Throws ReportLayoutError that names the element and what is wrong with it.
ReportElement readReportElement(const platform::XmlNode& node);

} // namespace desk
