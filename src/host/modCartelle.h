#pragma once

#include <QString>

/// The module's folder in the user's application data, made level by level when missing. Without a final separator;
/// empty when the application data or one of the levels cannot be had.
QString userFolder();
