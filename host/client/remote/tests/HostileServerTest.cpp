// SPDX-License-Identifier: MIT
#include <atomic>
#include <functional>
#include <netinet/in.h>
#include <string>
#include <sys/resource.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

#include "host/client/remote/RemoteLink.h"

namespace Tarvik::Client {

namespace {

/// A server that takes one connection, reads what comes first, and sends what the test tells it to.
class ScriptedServer {
  public:
    /// Sends a text; false when the other side has gone.
    using Send = std::function<bool(const std::string&)>;

    explicit ScriptedServer(std::function<void(const Send&)> script)
        : listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof(address);
        auto* where = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(::bind(listener_, where, size), 0);
        EXPECT_EQ(::listen(listener_, 1), 0);
        EXPECT_EQ(::getsockname(listener_, where, &size), 0);
        port_ = ntohs(address.sin_port);
        thread_ = std::thread([this, script = std::move(script)] { Serve(script); });
    }
    ~ScriptedServer() {
        ::shutdown(listener_, SHUT_RDWR);
        thread_.join();
        ::close(listener_);
    }
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;

    std::string Url() const { return "http://127.0.0.1:" + std::to_string(port_); }

  private:
    void Serve(const std::function<void(const Send&)>& script) const {
        const int connection = ::accept(listener_, nullptr, nullptr);
        char first[4096];
        if (connection < 0 || ::recv(connection, first, sizeof(first), 0) <= 0) {
            return;
        }
        script([connection](const std::string& text) {
            std::size_t sent = 0;
            while (sent < text.size()) {
                const auto done = ::send(connection, text.data() + sent, text.size() - sent, MSG_NOSIGNAL);
                if (done <= 0) {
                    return false;
                }
                sent += static_cast<std::size_t>(done);
            }
            return true;
        });
        ::shutdown(connection, SHUT_WR);
        while (::recv(connection, first, sizeof(first), 0) > 0) {
        }
        ::close(connection);
    }

    int listener_;
    std::uint16_t port_ = 0;
    std::thread thread_;
};

/// Largest memory that this program has had, in MiB.
long MostMemory() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

/// What the client says about a login that is answered by the script.
std::string LoginFailure(std::function<void(const ScriptedServer::Send&)> script) {
    const ScriptedServer server(std::move(script));
    RemoteSettings settings;
    settings.url = server.Url();
    settings.user = "anna";
    settings.password = "correct horse";
    settings.limit = std::chrono::milliseconds(5000);
    RemoteLink link(settings);
    std::string error;
    EXPECT_FALSE(link.Connect(error));
    EXPECT_FALSE(link.IsConnected());
    const std::size_t at = error.find(server.Url());
    return at == std::string::npos ? error : error.substr(at + server.Url().size());
}

constexpr const char* kTooLong =
    " does not answer (its answer is longer than Seaplan reads). Check the address and the network.";
constexpr const char* kChunkedHead = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";

const std::string kEndless(64 * 1024, 'a');

/// Sends 'a' until the other side has gone, at most 2 GiB.
void SendEndlessly(const ScriptedServer::Send& send) {
    for (int i = 0; i < 32 * 1024 && send(kEndless); ++i) {
    }
}

TEST(HostileServer, AChunkTrailerThatIsTooLongEndsTheCallNotTheClient) {
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send(kChunkedHead + std::string("0\r\nX: ") + std::string(66'000, 'a') + "\r\n\r\n");
              }),
              kTooLong);
}

TEST(HostileServer, AnEndlessChunkTrailerEndsTheCall) {
    const long before = MostMemory();
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send(kChunkedHead + std::string("0\r\nX: "));
                  SendEndlessly(send);
              }),
              kTooLong);
    EXPECT_LT(MostMemory() - before, 16);
}

TEST(HostileServer, AnEndlessChunkExtensionEndsTheCall) {
    const long before = MostMemory();
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send(kChunkedHead + std::string("5;x="));
                  SendEndlessly(send);
              }),
              kTooLong);
    EXPECT_LT(MostMemory() - before, 16);
}

TEST(HostileServer, SmallChunksWithLongExtensionsEndTheCall) {
    const std::string chunk = "1;x=" + std::string(16'000, 'a') + "\r\n \r\n";
    EXPECT_EQ(LoginFailure([&chunk](const auto& send) {
                  send(kChunkedHead);
                  for (int i = 0; i < 128 * 1024 && send(chunk); ++i) {
                  }
              }),
              kTooLong);
}

TEST(HostileServer, AnEndlessHeadEndsTheCall) {
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send("HTTP/1.1 200 OK\r\nX: ");
                  SendEndlessly(send);
              }),
              kTooLong);
}

TEST(HostileServer, AnEndlessBodyEndsTheCall) {
    const long before = MostMemory();
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
                  SendEndlessly(send);
              }),
              kTooLong);
    EXPECT_LT(MostMemory() - before, 400);
}

TEST(HostileServer, ABodyThatIsAnnouncedTooLongIsNotRead) {
    const long before = MostMemory();
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send("HTTP/1.1 200 OK\r\nContent-Length: 99999999999\r\n\r\n");
                  SendEndlessly(send);
              }),
              kTooLong);
    EXPECT_LT(MostMemory() - before, 16);
}

TEST(HostileServer, AnAnswerThatIsNoneIsTold) {
    for (const std::string answer :
         {"SSH-2.0-OpenSSH_9.2\r\n", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\n",
          "\r\n\r\n", "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nabc"}) {
        EXPECT_NE(LoginFailure([&answer](const auto& send) { send(answer); }).find(" does not answer ("),
                  std::string::npos)
            << answer;
    }
}

// The token goes into a field of every request, where it must have room.
TEST(HostileServer, ATokenThatCannotBeOneIsNoLogin) {
    for (const std::string& token : {std::string(70'000, 'a'), std::string("a\\r\\nX: y"), std::string()}) {
        const std::string body = "{\"token\":\"" + token + "\"}";
        const std::string said = LoginFailure([&body](const auto& send) {
            send("HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body);
        });
        EXPECT_EQ(said,
                  " answers a login with the status 200. Check that the address is one of a voyage server.");
    }
}

}  // namespace
}  // namespace Tarvik::Client
