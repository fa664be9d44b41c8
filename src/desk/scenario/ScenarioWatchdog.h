#pragma once

#include <QString>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace desk {

/// Ends the program when the interface thread stops answering, which no timer of that thread could tell. While it is
/// watching, `beat` must be called again before the limit is over; else the last report is written to the standard
/// error and the program ends with code 1.
class ScenarioWatchdog {
public:
    ScenarioWatchdog() = default;
    ~ScenarioWatchdog();
    ScenarioWatchdog(const ScenarioWatchdog&) = delete;
    ScenarioWatchdog& operator=(const ScenarioWatchdog&) = delete;

    void start(std::chrono::milliseconds limit);
    void beat(const QString& report);
    void stop();

private:
    void watch();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::chrono::milliseconds limit_{0};
    std::chrono::steady_clock::time_point lastBeat_;
    std::string report_;
    bool stopping_ = false;
    std::thread thread_;
};

} // namespace desk
