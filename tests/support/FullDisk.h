#pragma once

#include <csignal>
#include <sys/resource.h>

/// A disk that is full beyond so many bytes, for its own lifetime.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        before_ = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &limit_);
        const rlimit full{bytes, limit_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &limit_);
        std::signal(SIGXFSZ, before_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit limit_{};
    void (*before_)(int) = nullptr;
};
