#pragma once

#include <QString>

/// The log of the desk, for whoever helps a practice: what the desk and its module could not do and went on without,
/// one line each with its time, besides the standard error. It holds no patient's data: tax codes and the values that
/// databases quote are blotted out. Full files are kept under ".1" to ".3", the oldest goes.
namespace desk::log {

/// From now on everything that is said through Qt's messages, save what only tells of a screenless platform.
void install();

/// The file that is being written.
QString fileName();

} // namespace desk::log
