// SPDX-License-Identifier: MIT
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "host/client/remote/RemoteLink.h"
#include "host/client/remote/tests/ScriptedServer.h"
#include "host/server/net/tests/TestCertificate.h"
#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Client {

namespace {

/// Largest memory that this program has had since it was told to begin anew, in MiB.
class MostMemory {
  public:
    MostMemory() {
        // The kernel forgets the largest size so far.
        std::ofstream("/proc/self/clear_refs") << "5";
        before_ = Now();
    }
    long Growth() const { return Now() - before_; }

  private:
    static long Now() {
        std::ifstream status("/proc/self/status");
        std::string word;
        long kibibytes = 0;
        while (status >> word && word != "VmHWM:") {
        }
        status >> kibibytes;
        EXPECT_GT(kibibytes, 0);
        return kibibytes / 1024;
    }
    long before_ = 0;
};

enum class Transport { Plain, Tls };

class HostileServer : public testing::TestWithParam<Transport> {
  protected:
    HostileServer() {
        if (GetParam() == Transport::Tls) {
            shown_ = {folder_.File("c.pem"), folder_.File("k.pem")};
            Server::WriteTestCertificate(shown_.certificate, shown_.key);
        }
        settings_.user = "anna";
        settings_.password = "correct horse";
        settings_.limit = std::chrono::milliseconds(5000);
        settings_.caFile = shown_.certificate;
    }
    /// What the client says about a login that is answered by the script.
    std::string LoginFailure(ScriptedServer::Script script) {
        const ScriptedServer server(std::move(script), shown_);
        settings_.url = server.Url();
        RemoteLink link(settings_);
        std::string error;
        EXPECT_FALSE(link.Connect(error));
        EXPECT_FALSE(link.IsConnected());
        const std::size_t at = error.find(server.Url());
        return at == std::string::npos ? error : error.substr(at + server.Url().size());
    }

    Server::TempFolder folder_;
    ShownCertificate shown_;
    RemoteSettings settings_;
};

constexpr const char* kTooLong =
    " does not answer (its answer is longer than Seaplan reads). Check the address and the network.";
constexpr const char* kChunkedHead = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";

const std::string kEndless(64 * 1024, 'a');

/// Sends 'a' until the other side has gone, at most 2 GiB.
void SendEndlessly(const Peer& send) {
    for (int i = 0; i < 32 * 1024 && send(kEndless); ++i) {
    }
}

TEST_P(HostileServer, AChunkTrailerThatIsTooLongEndsTheCallNotTheClient) {
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send(kChunkedHead + std::string("0\r\nX: ") + std::string(66'000, 'a') + "\r\n\r\n");
              }),
              kTooLong);
}

TEST_P(HostileServer, AnEndlessChunkTrailerEndsTheCall) {
    const MostMemory memory;
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send(kChunkedHead + std::string("0\r\nX: "));
                  SendEndlessly(send);
              }),
              kTooLong);
    EXPECT_LT(memory.Growth(), 16);
}

TEST_P(HostileServer, AnEndlessChunkExtensionEndsTheCall) {
    const MostMemory memory;
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send(kChunkedHead + std::string("5;x="));
                  SendEndlessly(send);
              }),
              kTooLong);
    EXPECT_LT(memory.Growth(), 16);
}

TEST_P(HostileServer, SmallChunksWithLongExtensionsEndTheCall) {
    const std::string chunk = "1;x=" + std::string(16'000, 'a') + "\r\n \r\n";
    EXPECT_EQ(LoginFailure([&chunk](const auto& send) {
                  send(kChunkedHead);
                  for (int i = 0; i < 128 * 1024 && send(chunk); ++i) {
                  }
              }),
              kTooLong);
}

TEST_P(HostileServer, AnEndlessHeadEndsTheCall) {
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send("HTTP/1.1 200 OK\r\nX: ");
                  SendEndlessly(send);
              }),
              kTooLong);
}

TEST_P(HostileServer, AnEndlessBodyEndsTheCall) {
    const MostMemory memory;
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
                  SendEndlessly(send);
              }),
              kTooLong);
    EXPECT_LT(memory.Growth(), 400);
}

TEST_P(HostileServer, ABodyThatIsAnnouncedTooLongIsNotRead) {
    const MostMemory memory;
    EXPECT_EQ(LoginFailure([](const auto& send) {
                  send("HTTP/1.1 200 OK\r\nContent-Length: 99999999999\r\n\r\n");
                  SendEndlessly(send);
              }),
              kTooLong);
    EXPECT_LT(memory.Growth(), 16);
}

TEST_P(HostileServer, AnAnswerThatIsNoneIsTold) {
    for (const std::string answer :
         {"SSH-2.0-OpenSSH_9.2\r\n", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\n",
          "\r\n\r\n", "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nabc"}) {
        EXPECT_NE(LoginFailure([&answer](const auto& send) { send(answer); }).find(" does not answer ("),
                  std::string::npos)
            << answer;
    }
}

// The token goes into a field of every request, where it must have room.
TEST_P(HostileServer, ATokenThatCannotBeOneIsNoLogin) {
    for (const std::string& token : {std::string(70'000, 'a'), std::string("a\\r\\nX: y"), std::string()}) {
        const std::string body = "{\"token\":\"" + token + "\"}";
        const std::string said = LoginFailure([&body](const auto& send) {
            send("HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body);
        });
        EXPECT_EQ(said,
                  " answers a login with the status 200. Check that the address is one of a voyage server.");
    }
}

/// Sends a byte at a time, for so long that only a limit on the whole answer ends it, and no limit on a wait.
void Trickle(const Peer& send) {
    constexpr int kBytes = 500;
    constexpr int kPauseMs = 10;
    for (int i = 0; i < kBytes && send("a") && !send.IsGoneWithin(kPauseMs); ++i) {
    }
}

TEST_P(HostileServer, AnAnswerThatTricklesEndsAtTheLimitWhereverItIs) {
    settings_.limit = std::chrono::milliseconds(300);
    for (const std::string& begin :
         {std::string("HTTP/1.1 200 OK\r\nX: "),
          std::string("HTTP/1.1 200 OK\r\nContent-Length: 400\r\n\r\n"),
          std::string("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n"), kChunkedHead + std::string("5;x="),
          kChunkedHead + std::string("190\r\n"), kChunkedHead + std::string("0\r\nX: ")}) {
        EXPECT_EQ(LoginFailure([&begin](const auto& send) {
                      send(begin);
                      Trickle(send);
                  }),
                  " does not answer (the time limit is over). Check the address and the network.")
            << begin;
    }
}

// A body that only the connection's end bounds could be any part of one.
TEST_P(HostileServer, AnAnswerThatIsCutOffIsNone) {
    for (const std::string begin :
         {"HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\n{\"token\":", "HTTP/1.1 200",
          "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n50\r\n{"}) {
        EXPECT_NE(LoginFailure([&begin](const auto& send) {
                      send(begin);
                      send.Cut();
                  }).find(" does not answer ("),
                  std::string::npos)
            << begin;
    }
}

INSTANTIATE_TEST_SUITE_P(Over, HostileServer, testing::Values(Transport::Plain, Transport::Tls),
                         [](const auto& over) { return over.param == Transport::Tls ? "Tls" : "Plain"; });

}  // namespace
}  // namespace Tarvik::Client
