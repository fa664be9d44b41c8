#include "desk/scenario/ScenarioWatchdog.h"

#include <cstdio>
#include <cstdlib>

namespace desk {

ScenarioWatchdog::~ScenarioWatchdog() {
    stop();
}

void ScenarioWatchdog::start(std::chrono::milliseconds limit) {
    limit_ = limit;
    stopping_ = false;
    lastBeat_ = std::chrono::steady_clock::now();
    thread_ = std::thread(&ScenarioWatchdog::watch, this);
}

void ScenarioWatchdog::beat(const QString& report) {
    const std::lock_guard lock(mutex_);
    lastBeat_ = std::chrono::steady_clock::now();
    report_ = report.toStdString();
}

void ScenarioWatchdog::stop() {
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) thread_.join();
}

void ScenarioWatchdog::watch() {
    std::unique_lock lock(mutex_);
    while (!stopping_) {
        changed_.wait_until(lock, lastBeat_ + limit_);
        if (stopping_ || std::chrono::steady_clock::now() < lastBeat_ + limit_) continue;
        std::fputs(report_.c_str(), stderr);
        std::fputc('\n', stderr);
        // The interface thread hangs; nothing of it can be ended in order.
        std::_Exit(1);
    }
}

} // namespace desk
