#pragma once

#include <QString>

/// Folder of the library or program that this code is linked into, without a final separator; empty when the system
/// does not tell. The module's templates and pictures lie there.
QString moduleFolder();
