#pragma once

#include <QtGlobal>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace desk {

/// Ends the connection to a server that keeps silent without closing it: the driver waits for an answer for ever, and
/// the windows with it. Whoever asks the server holds a Wait meanwhile; when one lasts too long the connection is shut
/// down, and the driver then reports it as lost. Owned by the database, made anew with each connection.
class HangGuard {
public:
    HangGuard(int socket, int patienceMilliseconds); ///< Keeps a handle of its own to the socket.
    ~HangGuard();
    HangGuard(const HangGuard&) = delete;
    HangGuard& operator=(const HangGuard&) = delete;

    class Wait {
    public:
        explicit Wait(HangGuard* guard); ///< Null where nothing is guarded. One inside another counts on its own.
        ~Wait();
        Wait(const Wait&) = delete;
        Wait& operator=(const Wait&) = delete;

    private:
        HangGuard* guard_;
        qint64 outer_ = 0;
    };

private:
    void watch();

    int socket_;
    int patience_;
    std::atomic<qint64> deadline_ = 0; ///< In milliseconds of the steady clock; 0 while nobody waits.
    std::mutex mutex_;
    std::condition_variable over_;
    bool ended_ = false;
    std::thread watcher_;
};

} // namespace desk
