#include "platform/Clock.h"

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

} // namespace platform
