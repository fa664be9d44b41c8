#pragma once

#include <QDate>
#include <QDateTime>

namespace platform {

/// The time of day, in local time. The only place that asks the system for it.
QDateTime now();
QDate today();

/// Stands the clock at a moment (it does not run on) until releaseClock.
void setClock(const QDateTime& moment);
void releaseClock();

} // namespace platform
