// SPDX-License-Identifier: MIT
// What a request is before it is answered, and what is told of one that the server could not answer.
#include <stdexcept>

#include <gtest/gtest.h>

#include "host/server/accounts/SqlAccounts.h"
#include "host/server/net/service/Resources.h"
#include "host/server/net/tests/TestServer.h"
#include "host/server/storage/sqlite/SqliteStorage.h"

namespace Tarvik::Server {

namespace {

class FrontTest : public testing::Test {
  protected:
    /// The token of a user who has asked for something with it.
    std::string Token(const std::string& user) {
        EXPECT_TRUE(accounts_->AddUser(user, Passwords(kCheap).Hash("correct horse")).Value());
        std::string token = sessions_.Open(user, "correct horse", "10.0.0.1").token;
        EXPECT_EQ(sessions_.UserOf(token).Value(), user);
        return token;
    }
    Place PlaceOfExchange(std::uint16_t command, const std::string& token) {
        return front_.PlaceOf(
            {"POST", "/v1/exchange", "Bearer " + token, EnvelopeBody(command, "{}"), "10.0.0.1"});
    }
    Place PlaceOfLogin(const std::string& address) {
        return front_.PlaceOf({"POST", "/v1/login", {}, LoginBody("anna", "x"), address});
    }

    TempFolder folder_;
    std::string error_;
    std::unique_ptr<SqliteStorage> storage_ = SqliteStorage::Open(":memory:", error_);
    std::unique_ptr<AccountStorage> accounts_ = OpenSqliteAccounts(folder_.File("accounts.db"), error_);
    NoRoutes routes_;
    VoyageService service_{*storage_, routes_};
    Sessions sessions_{*accounts_, Passwords(kCheap), {}, 3600, [] { return std::int64_t{1'800'000'000}; }};
    Metrics metrics_;
    ServerLog log_ = ServerLog::ToSink([](const std::string&) {});
    ServerFront front_{{service_, sessions_, *storage_, *accounts_, metrics_, log_, [] {}},
                       {1024, 3600, false}};
};

TEST_F(FrontTest, RoutesTakeTurnsByUserWhateverTheLogin) {
    const std::string anna = Token("anna");
    const std::string bert = Token("bert");
    const std::string again = sessions_.Open("anna", "correct horse", "10.0.0.2").token;
    ASSERT_EQ(sessions_.UserOf(again).Value(), "anna");
    EXPECT_EQ(PlaceOfExchange(1, anna).lane, Lane::Route);
    EXPECT_EQ(PlaceOfExchange(1, anna).turn, "anna");
    EXPECT_EQ(PlaceOfExchange(2, again).turn, "anna");
    EXPECT_EQ(PlaceOfExchange(1, bert).turn, "bert");
}

TEST_F(FrontTest, LoginsTakeTurnsByAddress) {
    EXPECT_EQ(PlaceOfLogin("10.0.0.1").lane, Lane::Login);
    EXPECT_EQ(PlaceOfLogin("10.0.0.1").turn, PlaceOfLogin("10.0.0.1").turn);
    EXPECT_NE(PlaceOfLogin("10.0.0.1").turn, PlaceOfLogin("10.0.0.2").turn);
    EXPECT_EQ(PlaceOfLogin("2001:db8::1").turn, PlaceOfLogin("2001:db8::2").turn) << "one household";
}

TEST_F(FrontTest, LoadsAndChangesGoToThreadsOfTheirOwn) {
    const std::string anna = Token("anna");
    for (const std::uint16_t command : std::vector<std::uint16_t>{3, 7, 10, 12}) {
        EXPECT_EQ(PlaceOfExchange(command, anna).lane, Lane::Read) << command;
    }
    for (const std::uint16_t command : std::vector<std::uint16_t>{4, 5, 6, 8, 9, 11, 13, 14, 16, 18}) {
        EXPECT_EQ(PlaceOfExchange(command, anna).lane, Lane::Write) << command;
    }
}

/// Fails in a way that nobody has thought of.
class FailingRoutes : public RouteSource {
  public:
    std::string Plan(std::string_view) override { throw std::runtime_error("host=db.example user=seaplan"); }
    std::string Nearest(std::string_view) override { return "{\"eid\":0}"; }
};

TEST(FailedAnswer, IsLoggedWithItsDetailAndTheReplyTellsNothingOfIt) {
    TestServer server([](Settings& settings) { settings.logRequests = false; },
                      std::make_unique<FailingRoutes>());
    server.AddUser("anna", "correct horse");
    const std::string token = server.Token("anna", "correct horse");
    const std::size_t before = server.LogLines().size();
    const RawReply reply = server.Ask("POST", "/v1/exchange", EnvelopeBody(1, "{}"), token);
    EXPECT_EQ(EnvelopeText(reply.body), R"({"eid":51,"emsg":"the server failed"})");
    const std::vector<std::string> lines = server.LogLines();
    ASSERT_EQ(lines.size(), before + 1);
    EXPECT_NE(lines.back().find("\"level\":\"error\""), std::string::npos) << lines.back();
    EXPECT_NE(lines.back().find("host=db.example user=seaplan"), std::string::npos) << lines.back();
}

TEST(ServerParts, SessionsAndWaitsFollowAClockThatNeverGoesBack) {
    using Clock = std::int64_t (*)();
    const ServerParts parts;
    ASSERT_NE(parts.sessionClock.target<Clock>(), nullptr);
    EXPECT_EQ(*parts.sessionClock.target<Clock>(), &ForwardSeconds);
}

}  // namespace
}  // namespace Tarvik::Server
