// SPDX-License-Identifier: MIT
#include <vector>

#include <gmock/gmock.h>

#include "host/client/services/RequestBlock.h"
#include "host/client/session/LoginLink.h"
#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Client {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class LoginLinkTest : public testing::Test {
  protected:
    LoginLinkTest() { server_.AddUser("anna", "correct horse"); }

    /// Gives the scripted answers one after the other and notes what it was told.
    AskCredentials Asker() {
        return [this](const std::string&, const std::string& user,
                      const std::string& failure) -> std::optional<Credentials> {
            offered_.push_back(user);
            failures_.push_back(failure);
            if (answers_.empty()) {
                return std::nullopt;
            }
            const Credentials next = answers_.front();
            answers_.erase(answers_.begin());
            return next;
        };
    }

    Server::TestServer server_;
    std::vector<Credentials> answers_;
    std::vector<std::string> offered_;
    std::vector<std::string> failures_;
    std::string error_;
};

TEST_F(LoginLinkTest, AsksAgainUntilTheServerAgrees) {
    answers_ = {{"anna", "guessed"}, {"anna", "correct horse"}};
    LoginLink link(server_.Url(), "bert", "", Asker());
    EXPECT_EQ(link.User("local"), "");
    ASSERT_TRUE(link.Connect(error_)) << error_;
    EXPECT_THAT(offered_, ElementsAre("bert", "anna"));
    EXPECT_THAT(failures_, ElementsAre("", HasSubstr("refuses the user name or the password")));
    EXPECT_TRUE(link.IsConnected());
    EXPECT_EQ(link.User("local"), "anna");
}

TEST_F(LoginLinkTest, WelcomesOnlyWhomTheServerLetsIn) {
    answers_ = {{"berta", "guessed"}, {"anna", "correct horse"}};
    LoginLink link(server_.Url(), "", "", Asker());
    std::vector<std::string> welcomed;
    link.SetWelcome([&](const std::string& user) { welcomed.push_back(user); });
    ASSERT_TRUE(link.Connect(error_)) << error_;
    EXPECT_THAT(welcomed, ElementsAre("anna"));
}

TEST_F(LoginLinkTest, EndsWhenNobodyLogsIn) {
    LoginLink link(server_.Url(), "", "", Asker());
    EXPECT_FALSE(link.Connect(error_));
    EXPECT_THAT(error_, HasSubstr("Nobody is logged in at the voyage server " + server_.Url()));
    EXPECT_FALSE(link.IsConnected());
    EXPECT_EQ(link.Exchange("anna", Interface::VoyServerRequest{}), "");
}

TEST_F(LoginLinkTest, TellsWhyTheLastTryFailedWhenGivenUp) {
    answers_ = {{"anna", "guessed"}};
    LoginLink link(server_.Url(), "", "", Asker());
    EXPECT_FALSE(link.Connect(error_));
    EXPECT_THAT(error_, HasSubstr("refuses"));
}

TEST_F(LoginLinkTest, AfterALogoutAnotherCanLogIn) {
    server_.AddUser("bert", "correct horse");
    answers_ = {{"anna", "correct horse"}, {"bert", "correct horse"}};
    LoginLink link(server_.Url(), "", "", Asker());
    ASSERT_TRUE(link.Connect(error_)) << error_;
    link.LogOut();
    EXPECT_FALSE(link.IsConnected());
    EXPECT_EQ(link.User("local"), "");
    EXPECT_THAT(server_.Ask("GET", "/metrics").body,
                HasSubstr("seaplan_requests_total{command=\"logout\",result=\"ok\"} 1"));
    ASSERT_TRUE(link.Connect(error_)) << error_;
    EXPECT_EQ(link.User("local"), "bert");
}

// What is on show and not saved yet would be written to the other one's voyages.
TEST_F(LoginLinkTest, NobodyElseTakesTheSeatOfALoginThatHasRunOut) {
    server_.AddUser("bert", "correct horse");
    answers_ = {{"anna", "correct horse"}};
    LoginLink link(server_.Url(), "", "", Asker());
    ASSERT_TRUE(link.Connect(error_)) << error_;
    server_.AdvanceSeconds(13 * 3600);
    const RequestBlock load(3, 5, "{ui:\"anna\"}");
    EXPECT_EQ(link.Exchange("anna", *load), "");
    EXPECT_FALSE(link.IsConnected());
    answers_ = {{"bert", "correct horse"}};
    EXPECT_FALSE(link.Connect(error_));
    EXPECT_EQ(error_, "The login of anna has run out. Log in as anna again, or cancel and log out first.");
    answers_ = {{"bert", "correct horse"}, {"anna", "correct horse"}};
    ASSERT_TRUE(link.Connect(error_)) << error_;
    EXPECT_EQ(link.User("local"), "anna");
}

TEST_F(LoginLinkTest, LogsOutWithItsEnd) {
    answers_ = {{"anna", "correct horse"}};
    auto link = std::make_unique<LoginLink>(server_.Url(), "", "", Asker());
    ASSERT_TRUE(link->Connect(error_)) << error_;
    link.reset();
    EXPECT_THAT(server_.Ask("GET", "/metrics").body,
                HasSubstr("seaplan_requests_total{command=\"logout\",result=\"ok\"} 1"));
}

}  // namespace
}  // namespace Tarvik::Client
