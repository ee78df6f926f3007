// SPDX-License-Identifier: MIT
/// Servers that abuse the TLS below an answer.
#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include "host/client/remote/RemoteLink.h"
#include "host/client/remote/tests/ScriptedServer.h"
#include "host/server/net/tests/TestCertificate.h"
#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Client {

namespace {

class HostileTls : public testing::Test {
  protected:
    HostileTls() {
        Server::WriteTestCertificate(shown_.certificate, shown_.key);
        settings_.user = "anna";
        settings_.password = "correct horse";
        settings_.limit = std::chrono::milliseconds(300);
        settings_.caFile = shown_.certificate;
    }
    /// What the client says of a login at a server that answers its greeting by the script, without TLS.
    std::string FailureAfterGreeting(const ScriptedServer::Script& script) {
        const ScriptedServer server(script);
        settings_.url = server.Url();
        settings_.url.replace(0, settings_.url.find(':'), "https");
        return Failure();
    }
    std::string Failure() {
        RemoteLink link(settings_);
        std::string error;
        EXPECT_FALSE(link.Connect(error));
        return error;
    }

    Server::TempFolder folder_;
    ShownCertificate shown_{folder_.File("c.pem"), folder_.File("k.pem")};
    RemoteSettings settings_;
};

TEST_F(HostileTls, AHandshakeThatTricklesEndsAtTheLimit) {
    const std::string said = FailureAfterGreeting([](const auto& send) {
        // A record of the handshake that is announced long and comes a byte at a time.
        send(std::string("\x16\x03\x03\x40\x00\x02\x00\x3f\xfc", 9));
        for (int i = 0; i < 500 && send("a") && !send.IsGoneWithin(10); ++i) {
        }
    });
    EXPECT_NE(said.find("(the time limit is over)"), std::string::npos) << said;
}

TEST_F(HostileTls, AHandshakeThatIsNoneEndsAtOnce) {
    settings_.limit = std::chrono::minutes(10);
    for (const std::string& answer :
         {std::string("HTTP/1.1 400 Bad Request\r\n\r\n"), std::string(70'000, 'a'),
          std::string("\x15\x03\x03\x00\x02\x02\x28", 7)}) {
        const std::string said = FailureAfterGreeting([&answer](const auto& send) { send(answer); });
        EXPECT_NE(said.find(" does not answer ("), std::string::npos) << said;
    }
}

TEST_F(HostileTls, AnEndWithoutTheOneOfTlsDoesNotMakeAnAnswerWhole) {
    // Without a length only the end tells that all has come, and anybody on the way can end a connection.
    const ScriptedServer server(
        [](const auto& send) {
            send("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n{\"token\":\"0123456789\"}");
            send.Cut();
        },
        shown_);
    settings_.url = server.Url();
    const std::string said = Failure();
    EXPECT_NE(said.find(" does not answer ("), std::string::npos) << said;
}

TEST_F(HostileTls, BytesThatWereChangedOnTheWayAreNoAnswer) {
    const ScriptedServer server(
        [](const auto& send) {
            send("HTTP/1.1 200 OK\r\nContent-Length: 24\r\n\r\n");
            send.Inject(std::string("\x17\x03\x03\x00\x20", 5) + std::string(32, 'a'));
        },
        shown_);
    settings_.url = server.Url();
    const std::string said = Failure();
    EXPECT_NE(said.find(" does not answer ("), std::string::npos) << said;
}

}  // namespace
}  // namespace Tarvik::Client
