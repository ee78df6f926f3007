// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/client/remote/RemoteLink.h"
#include "host/client/services/RequestBlock.h"
#include "host/server/net/tests/SilentListener.h"
#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Client {

namespace {

using Server::SilentListener;
using Server::TestServer;

RemoteSettings SettingsFor(const std::string& url) {
    RemoteSettings settings;
    settings.url = url;
    settings.user = "anna";
    settings.password = "correct horse";
    return settings;
}

std::string LocalUrl(std::uint16_t port) {
    return "http://127.0.0.1:" + std::to_string(port);
}

class RemoteLinkTest : public testing::Test {
  protected:
    RemoteLinkTest() { server_.AddUser("anna", "correct horse"); }
    std::string Load(RemoteLink& link) { return link.Exchange("anna", *RequestBlock(3, 5, "{ui:\"anna\"}")); }

    TestServer server_;
    std::string error_;
};

TEST_F(RemoteLinkTest, LogsInAndExchangesOverOneConnection) {
    RemoteLink link(SettingsFor(server_.Url()));
    EXPECT_FALSE(link.IsConnected());
    ASSERT_TRUE(link.Connect(error_)) << error_;
    EXPECT_TRUE(link.IsConnected());
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(Load(link), "[]") << link.LastFailure();
    }
    EXPECT_EQ(server_.OpenedConnections(), 1U);
}

TEST_F(RemoteLinkTest, RefusalOfTheServiceIsAReply) {
    RemoteLink link(SettingsFor(server_.Url()));
    ASSERT_TRUE(link.Connect(error_)) << error_;
    const std::string reply = link.Exchange("anna", *RequestBlock(3, 5, "{ui:\"bert\"}"));
    EXPECT_EQ(nlohmann::json::parse(reply)["eid"], 20);
    EXPECT_EQ(link.LastFailure(), "");
}

TEST_F(RemoteLinkTest, RequestTextGoesWithAndWithoutItsNul) {
    RemoteLink link(SettingsFor(server_.Url()));
    ASSERT_TRUE(link.Connect(error_)) << error_;
    EXPECT_EQ(link.Exchange("anna", *RequestBlock(3, 5, std::string("{ui:\"anna\"}\0", 12))), "[]");
    EXPECT_EQ(link.Exchange("anna", *RequestBlock(3, 5, "{ui:\"anna\"}")), "[]");
}

TEST_F(RemoteLinkTest, WrongPasswordIsToldAndLeavesNoLogin) {
    RemoteSettings settings = SettingsFor(server_.Url());
    settings.password = "wrong horse";
    RemoteLink link(settings);
    EXPECT_FALSE(link.Connect(error_));
    EXPECT_EQ(error_,
              "The voyage server " + server_.Url() + " refuses the user name or the password of anna.");
    EXPECT_FALSE(link.IsConnected());
    EXPECT_EQ(Load(link), "");
}

TEST_F(RemoteLinkTest, LockedLoginTellsHowLongToWait) {
    RemoteSettings settings = SettingsFor(server_.Url());
    settings.password = "wrong horse";
    RemoteLink link(settings);
    for (int i = 0; i < 10; ++i) {
        link.Connect(error_);
    }
    EXPECT_FALSE(link.Connect(error_));
    EXPECT_EQ(error_, "The voyage server " + server_.Url() +
                          " has seen too many failed logins. Try again in 900 seconds.");
}

TEST_F(RemoteLinkTest, LoginThatIsOverEndsAndTheNextOneWorks) {
    RemoteLink link(SettingsFor(server_.Url()));
    ASSERT_TRUE(link.Connect(error_)) << error_;
    server_.AdvanceSeconds(13 * 3600);
    EXPECT_EQ(Load(link), "");
    EXPECT_EQ(link.LastFailure(), "The login at the voyage server " + server_.Url() + " is over.");
    EXPECT_FALSE(link.IsConnected());
    ASSERT_TRUE(link.Connect(error_)) << error_;
    EXPECT_EQ(Load(link), "[]");
}

TEST_F(RemoteLinkTest, DisconnectEndsTheLoginAtTheServer) {
    RemoteLink link(SettingsFor(server_.Url()));
    ASSERT_TRUE(link.Connect(error_)) << error_;
    link.Disconnect();
    EXPECT_FALSE(link.IsConnected());
    const std::string metrics = server_.Ask("GET", "/metrics").body;
    EXPECT_NE(metrics.find("seaplan_requests_total{command=\"logout\",result=\"ok\"} 1\n"),
              std::string::npos);
}

TEST(RemoteLinkWithoutAServer, AddressOfAnotherFormIsTold) {
    std::string error;
    RemoteLink link(SettingsFor("voyages.example"));
    EXPECT_FALSE(link.Connect(error));
    EXPECT_EQ(error, "\"voyages.example\" is no address of a server; write https://HOST:PORT.");
}

TEST(RemoteLinkWithoutAServer, ServerThatNeverAnswersFailsAtTheLimit) {
    const SilentListener silent;
    RemoteSettings settings = SettingsFor(LocalUrl(silent.Port()));
    settings.limit = std::chrono::milliseconds(50);
    RemoteLink link(settings);
    std::string error;
    EXPECT_FALSE(link.Connect(error));
    EXPECT_EQ(error, "The voyage server " + settings.url +
                         " does not answer (the time limit is over). Check the address and the network.");
}

TEST(RemoteLinkWithoutAServer, ServerThatIsNotThereFailsAtOnce) {
    std::uint16_t port = 0;
    {
        const SilentListener gone;
        port = gone.Port();
    }
    RemoteLink link(SettingsFor(LocalUrl(port)));
    std::string error;
    EXPECT_FALSE(link.Connect(error));
    EXPECT_EQ(error, "The voyage server " + LocalUrl(port) +
                         " does not answer (Connection refused). Check the address and the network.");
}

TEST(RemoteLinkWithoutAServer, NameThatIsNotKnownIsTold) {
    // A label this long is refused before any name server is asked.
    const std::string name(70, 'a');
    RemoteLink link(SettingsFor("http://" + name + ":1"));
    std::string error;
    EXPECT_FALSE(link.Connect(error));
    EXPECT_NE(error.find("the name " + name + " is not known"), std::string::npos) << error;
}

TEST(RemoteLinkReconnect, ServerThatWentAwayFailsAndTheNextCallConnectsAgain) {
    std::string error;
    std::uint16_t port = 0;
    const Server::TempFolder folder;
    const auto keep = [&](Server::Settings& settings) {
        settings.data = folder.File("kept");
        settings.port = port;
    };
    auto server = std::make_unique<TestServer>(keep);
    port = server->Port();
    server->AddUser("anna", "correct horse");
    RemoteLink link(SettingsFor(server->Url()));
    ASSERT_TRUE(link.Connect(error)) << error;
    const RequestBlock load(3, 5, "{ui:\"anna\"}");
    EXPECT_EQ(link.Exchange("anna", *load), "[]");
    server.reset();
    EXPECT_EQ(link.Exchange("anna", *load), "");
    EXPECT_NE(link.LastFailure().find("does not answer"), std::string::npos);
    EXPECT_TRUE(link.IsConnected());
    server = std::make_unique<TestServer>(keep);
    EXPECT_EQ(link.Exchange("anna", *load), "[]") << link.LastFailure();
}

TEST(RemoteLinkReconnect, ConnectionThatTheServerEndedWhileIdleIsOpenedAnew) {
    TestServer server([](Server::Settings& settings) { settings.idleSeconds = 1; });
    server.AddUser("anna", "correct horse");
    RemoteLink link(SettingsFor(server.Url()));
    std::string error;
    ASSERT_TRUE(link.Connect(error)) << error;
    // Opened later with the same time to be idle, so its end comes behind that of the link's connection.
    Server::RawClient later(server.Port());
    EXPECT_TRUE(later.SeesEnd());
    EXPECT_EQ(link.Exchange("anna", *RequestBlock(3, 5, "{ui:\"anna\"}")), "[]") << link.LastFailure();
}

}  // namespace
}  // namespace Tarvik::Client
