#include "platform/Clock.h"

#include <QFile>
#include <chrono>
#include <ctime>

#include <optional>

namespace platform {

namespace {

std::optional<QDateTime>& standing() {
    static std::optional<QDateTime> moment;
    return moment;
}

} // namespace

QDateTime now() {
    return standing() ? *standing() : QDateTime::currentDateTime();
}

QDate today() {
    return now().date();
}

void setClock(const QDateTime& moment) {
    standing() = moment;
}

void releaseClock() {
    standing().reset();
}

qint64 secondsSinceStart() {
#ifdef CLOCK_BOOTTIME
    timespec passed{};
    if (::clock_gettime(CLOCK_BOOTTIME, &passed) == 0) return passed.tv_sec;
#endif
    using namespace std::chrono;
    return duration_cast<seconds>(steady_clock::now().time_since_epoch()).count();
}

QString nameOfStart() {
    QFile name(QStringLiteral("/proc/sys/kernel/random/boot_id"));
    return name.open(QIODevice::ReadOnly) ? QString::fromLatin1(name.readAll().trimmed()) : QStringLiteral("-");
}

} // namespace platform
