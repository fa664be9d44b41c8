#pragma once

#include <QString>

/// Where the tests find what lies outside them. `below` begins with a slash.
namespace places {

QString app(const char* below = "");   ///< The program as it is installed: desk, module, templates, pictures.
QString data(const char* below = "");  ///< The templates as they lie in the sources.
QString tests(const char* below = ""); ///< The sources of the tests: scripts.
QString deskDataHelper();              ///< The second process of the tests of the archive.

} // namespace places
