// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/tests/PostgresProxy.h"

#include <array>
#include <poll.h>
#include <stdexcept>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace Tarvik::Server {

namespace {

constexpr const char* kSocketName = ".s.PGSQL.5432";
/// How soon an end is noticed, in milliseconds.
constexpr int kTick = 20;

sockaddr_un AddressOf(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof(address.sun_path)) {
        throw std::runtime_error("the path of the temporary folder is too long for a socket");
    }
    path.copy(address.sun_path, path.size());
    return address;
}

int NewSocket() {
    return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
}

bool WaitFor(int handle) {
    pollfd watched{handle, POLLIN, 0};
    return ::poll(&watched, 1, kTick) > 0;
}

}  // namespace

PostgresProxy::PostgresProxy(const std::string& folder)
    : target_(folder + "/" + kSocketName), listener_(NewSocket()) {
    const sockaddr_un address = AddressOf(folder_.File(kSocketName));
    if (::bind(listener_, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 ||
        ::listen(listener_, 16) != 0) {
        throw std::runtime_error("no socket to listen at");
    }
    acceptor_ = std::thread([this] { Accept(); });
}

PostgresProxy::~PostgresProxy() {
    ended_ = true;
    acceptor_.join();
    for (std::thread& thread : threads_) {
        thread.join();
    }
    ::close(listener_);
}

void PostgresProxy::Accept() {
    while (!ended_) {
        if (!WaitFor(listener_)) {
            continue;
        }
        const int client = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (client >= 0) {
            threads_.emplace_back([this, client] { Carry(client); });
        }
    }
}

void PostgresProxy::Carry(int client) {
    const int server = NewSocket();
    const sockaddr_un address = AddressOf(target_);
    bool open = ::connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
    while (open && !ended_) {
        std::array<pollfd, 2> watched = {{{client, POLLIN, 0}, {server, POLLIN, 0}}};
        if (::poll(watched.data(), watched.size(), kTick) <= 0) {
            continue;
        }
        if (cut_ == Cut::Silent) {
            ::usleep(kTick * 1000);
            continue;
        }
        open = (watched[0].revents == 0 || Pass(client, server)) &&
               (watched[1].revents == 0 || Pass(server, client));
    }
    ::close(client);
    ::close(server);
}

bool PostgresProxy::Pass(int from, int to) {
    std::array<char, 16384> bytes{};
    const ssize_t count = ::recv(from, bytes.data(), bytes.size(), 0);
    if (count <= 0) {
        return false;
    }
    const std::string_view text(bytes.data(), static_cast<std::size_t>(count));
    const bool commit = text.starts_with('Q') && text.find("COMMIT") != std::string_view::npos;
    if (commit && cut_ != Cut::Never && cut_ != Cut::Silent) {
        return Spoil(from, to, text);
    }
    return ::send(to, bytes.data(), text.size(), MSG_NOSIGNAL) == count;
}

bool PostgresProxy::Spoil(int client, int server, std::string_view commit) {
    const Cut cut = cut_.exchange(Cut::Never);
    if (cut == Cut::AfterCommit || cut == Cut::SilentAtCommit) {
        std::array<char, 16384> answer{};
        static_cast<void>(::send(server, commit.data(), commit.size(), MSG_NOSIGNAL));
        // Its answer tells that it is done, and goes nowhere.
        static_cast<void>(::recv(server, answer.data(), answer.size(), 0));
    }
    const bool silent = cut == Cut::SilentBeforeCommit || cut == Cut::SilentAtCommit;
    // Whoever is not answered ends the connection at last.
    while (silent && !ended_ && !WaitFor(client)) {
    }
    return false;
}

}  // namespace Tarvik::Server
