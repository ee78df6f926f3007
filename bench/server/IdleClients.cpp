// SPDX-License-Identifier: MIT
#include "bench/server/IdleClients.h"

#include <arpa/inet.h>
#include <array>
#include <netinet/in.h>
#include <stdexcept>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Bench {

IdleClients::IdleClients(std::uint16_t port, int count, const std::string& request) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    std::array<char, 65536> reply{};
    for (int i = 0; i < count; ++i) {
        const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockets_.push_back(socket);
        const bool answered =
            ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
            ::send(socket, request.data(), request.size(), 0) == static_cast<ssize_t>(request.size()) &&
            ::recv(socket, reply.data(), reply.size(), 0) > 0;
        if (!answered) {
            throw std::runtime_error("client " + std::to_string(i) + " gets no answer");
        }
    }
}

IdleClients::~IdleClients() {
    for (const int socket : sockets_) {
        ::close(socket);
    }
}

bool IdleClients::AllowFiles(int count) {
    rlimit limit{};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_NOFILE, &limit);
    return limit.rlim_cur >= static_cast<rlim_t>(count) + 100;
}

}  // namespace Bench
