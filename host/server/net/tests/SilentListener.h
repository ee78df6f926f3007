// SPDX-License-Identifier: MIT
#pragma once

#include <arpa/inet.h>
#include <cstdint>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace Tarvik::Server {

/// A port whose connections are taken by the system and answered only by who accepts them.
class SilentListener {
  public:
    SilentListener() : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof(address);
        auto* where = reinterpret_cast<sockaddr*>(&address);
        if (::bind(socket_, where, size) != 0 || ::listen(socket_, 4) != 0 ||
            ::getsockname(socket_, where, &size) != 0) {
            throw std::runtime_error("no port to listen at");
        }
        port_ = ntohs(address.sin_port);
    }
    ~SilentListener() { ::close(socket_); }
    SilentListener(const SilentListener&) = delete;
    SilentListener& operator=(const SilentListener&) = delete;

    std::uint16_t Port() const { return port_; }
    /// Waits for the next connection; the caller closes its socket.
    int Accept() const { return ::accept4(socket_, nullptr, nullptr, SOCK_CLOEXEC); }
    /// Whoever waits in Accept, now or later, gets no connection.
    void Shut() const { ::shutdown(socket_, SHUT_RDWR); }

  private:
    int socket_;
    std::uint16_t port_ = 0;
};

}  // namespace Tarvik::Server
