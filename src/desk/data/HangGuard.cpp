#include "desk/data/HangGuard.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace desk {

namespace {

constexpr int longestLook = 500; // milliseconds between two looks at the clock

qint64 steadyNow() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace

// A handle of its own: the driver may close the other one, and its number would soon be another file's.
HangGuard::HangGuard(int socket, int patienceMilliseconds)
    : socket_(::fcntl(socket, F_DUPFD_CLOEXEC, 0))
    , patience_(patienceMilliseconds)
    , watcher_([this] { watch(); }) {}

HangGuard::~HangGuard() {
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
    }
    over_.notify_all();
    watcher_.join();
    if (socket_ >= 0) ::close(socket_);
}

void HangGuard::watch() {
    const std::chrono::milliseconds look(std::clamp(patience_ / 4, 1, longestLook));
    std::unique_lock lock(mutex_);
    while (!over_.wait_for(lock, look, [this] { return ended_; })) {
        const qint64 deadline = deadline_;
        if (deadline == 0 || steadyNow() < deadline) continue;
        ::shutdown(socket_, SHUT_RDWR);
        deadline_ = 0;
    }
}

HangGuard::Wait::Wait(HangGuard* guard)
    : guard_(guard) {
    if (guard_) outer_ = guard_->deadline_.exchange(steadyNow() + guard_->patience_);
}

HangGuard::Wait::~Wait() {
    if (guard_) guard_->deadline_ = outer_;
}

} // namespace desk
