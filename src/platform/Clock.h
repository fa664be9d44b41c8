#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

namespace platform {

/// The time of day, in local time. The only place that asks the system for it.
QDateTime now();
QDate today();

/// Stands the clock at a moment (it does not run on) until releaseClock.
void setClock(const QDateTime& moment);
void releaseClock();

/// A clock that only counts forward, also while the computer sleeps, whatever somebody does to the time of day: the
/// seconds since the computer was started, and a name for that start, as they compare only within one.
qint64 secondsSinceStart();
QString nameOfStart();

} // namespace platform
