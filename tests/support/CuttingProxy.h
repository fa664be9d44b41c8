#pragma once

#include <QByteArray>
#include <arpa/inet.h>
#include <atomic>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

/// The network between a workstation and its server, one connection after the other. Armed, it lets the next "commit"
/// pass, keeps the server's answer to itself and breaks the connection: the workstation cannot know what became of it.
/// Hanging, it carries nothing more and breaks nothing either.
class CuttingProxy {
public:
    explicit CuttingProxy(int serverPort)
        : serverPort_(serverPort)
        , listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address = loopback(0);
        socklen_t size = sizeof address;
        if (::bind(listener_, reinterpret_cast<sockaddr*>(&address), size) != 0 || ::listen(listener_, 4) != 0 ||
            ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size) != 0)
            throw std::runtime_error("no port for the proxy");
        port_ = ntohs(address.sin_port);
        worker_ = std::thread([this] { work(); });
    }
    ~CuttingProxy() {
        over_ = true;
        worker_.join();
        ::close(listener_);
    }
    CuttingProxy(const CuttingProxy&) = delete;
    CuttingProxy& operator=(const CuttingProxy&) = delete;

    int port() const { return port_; }
    void arm() { armed_ = true; }
    bool hasCut() const { return cuts_ > 0; }
    void hang(bool hangs) { hangs_ = hangs; }

private:
    static sockaddr_in loopback(int port) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<in_port_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return address;
    }

    void work() {
        while (!over_) {
            if (pausing()) continue;
            pollfd waiting{listener_, POLLIN, 0};
            if (::poll(&waiting, 1, 50) <= 0) continue;
            const int client = ::accept(listener_, nullptr, nullptr);
            const int server = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
            const sockaddr_in address = loopback(serverPort_);
            if (::connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
                carry(client, server);
            ::close(server);
            ::close(client);
        }
    }

    void carry(int client, int server) {
        bool keepAnswer = false;
        while (!over_) {
            if (pausing()) continue;
            pollfd both[] = {{client, POLLIN, 0}, {server, POLLIN, 0}};
            if (::poll(both, 2, 50) <= 0) continue;
            if (both[0].revents != 0) {
                const QByteArray sent = received(client);
                if (sent.isEmpty() || ::send(server, sent.constData(), static_cast<size_t>(sent.size()), 0) < 0) return;
                keepAnswer = sent.contains("commit") && armed_.exchange(false);
            }
            if (both[1].revents != 0) {
                const QByteArray answer = received(server);
                if (keepAnswer) ++cuts_;
                if (answer.isEmpty() || keepAnswer) return;
                if (::send(client, answer.constData(), static_cast<size_t>(answer.size()), 0) < 0) return;
            }
        }
    }

    bool pausing() const {
        if (hangs_) ::usleep(10000);
        return hangs_;
    }

    static QByteArray received(int from) {
        char buffer[65536];
        const ssize_t size = ::recv(from, buffer, sizeof buffer, 0);
        return size > 0 ? QByteArray(buffer, static_cast<qsizetype>(size)) : QByteArray();
    }

    int serverPort_;
    int listener_;
    int port_ = 0;
    std::atomic<bool> armed_ = false;
    std::atomic<bool> hangs_ = false;
    std::atomic<bool> over_ = false;
    std::atomic<int> cuts_ = 0;
    std::thread worker_;
};
