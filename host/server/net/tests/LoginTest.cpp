// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Server {

namespace {

constexpr std::int64_t kHour = 3600;

int ExchangeStatus(TestServer& server, const std::string& token) {
    return server.Ask("POST", "/v1/exchange", EnvelopeBody(3, "{ui:\"anna\"}"), token).status;
}

TEST(Login, GivesATokenAndItsEndInUtc) {
    TestServer server([](Settings& settings) { settings.sessionHours = 12; });
    server.AddUser("anna", "correct horse");
    const RawReply reply = server.LogIn("anna", "correct horse");
    ASSERT_EQ(reply.status, 200);
    EXPECT_EQ(reply.fields.at("content-type"), "application/json");
    EXPECT_EQ(reply.fields.at("cache-control"), "no-store");
    const auto body = nlohmann::json::parse(reply.body);
    EXPECT_EQ(body["user"], "anna");
    EXPECT_EQ(body["token"].get<std::string>().size(), 43U);
    EXPECT_EQ(body["expires"], "2027-01-15T20:00:00Z");
    EXPECT_EQ(body["expires_in"], 12 * kHour);
}

TEST(Login, TokensDifferAndAllStayValid) {
    TestServer server;
    server.AddUser("anna", "correct horse");
    const std::string first = server.Token("anna", "correct horse");
    const std::string second = server.Token("anna", "correct horse");
    EXPECT_NE(first, second);
    EXPECT_EQ(ExchangeStatus(server, first), 200);
    EXPECT_EQ(ExchangeStatus(server, second), 200);
}

TEST(Login, WrongPasswordUnknownUserAndDisabledUserAnswerAlike) {
    TestServer server;
    server.AddUser("anna", "correct horse");
    server.AddUser("bert", "correct horse");
    ASSERT_TRUE(server.Server().Accounts().SetDisabled("bert", true).Value());
    const RawReply wrong = server.LogIn("anna", "wrong horse");
    EXPECT_EQ(wrong.status, 401);
    EXPECT_EQ(wrong.fields.at("www-authenticate"), "Bearer");
    for (const RawReply& other :
         {server.LogIn("carl", "correct horse"), server.LogIn("bert", "correct horse"),
          server.LogIn("no such form of name!", "correct horse")}) {
        EXPECT_EQ(other.status, 401);
        EXPECT_EQ(other.body, wrong.body);
    }
}

TEST(Login, BodiesOfAnotherFormAreRefused) {
    TestServer server;
    for (const char* body : {"", "{", "[]", "7", "{\"user\":\"anna\"}", "{\"user\":1,\"password\":2}",
                             "{\"user\":\"\",\"password\":\"\"}"}) {
        EXPECT_EQ(server.Ask("POST", "/v1/login", body).status, 400) << body;
    }
}

TEST(Login, TokenIsOverAtItsEnd) {
    TestServer server([](Settings& settings) { settings.sessionHours = 2; });
    server.AddUser("anna", "correct horse");
    const std::string token = server.Token("anna", "correct horse");
    server.AdvanceSeconds(2 * kHour - 1);
    EXPECT_EQ(ExchangeStatus(server, token), 200);
    server.AdvanceSeconds(1);
    EXPECT_EQ(ExchangeStatus(server, token), 401);
}

TEST(Login, LogoutEndsThisTokenOnly) {
    TestServer server;
    server.AddUser("anna", "correct horse");
    const std::string token = server.Token("anna", "correct horse");
    const std::string other = server.Token("anna", "correct horse");
    EXPECT_EQ(server.Ask("POST", "/v1/logout", {}, token).status, 200);
    EXPECT_EQ(ExchangeStatus(server, token), 401);
    EXPECT_EQ(ExchangeStatus(server, other), 200);
    EXPECT_EQ(server.Ask("POST", "/v1/logout", {}, token).status, 401);
}

TEST(Login, ChangedPasswordAndDisablingEndSessions) {
    TestServer server;
    server.AddUser("anna", "correct horse");
    const std::string token = server.Token("anna", "correct horse");
    const std::string hash = Passwords(kCheap).Hash("another horse");
    ASSERT_TRUE(server.Server().Accounts().SetPassword("anna", hash).Value());
    EXPECT_EQ(ExchangeStatus(server, token), 401);
    EXPECT_EQ(server.LogIn("anna", "correct horse").status, 401);
    const std::string second = server.Token("anna", "another horse");
    EXPECT_EQ(ExchangeStatus(server, second), 200);
    ASSERT_TRUE(server.Server().Accounts().SetDisabled("anna", true).Value());
    server.AdvanceSeconds(1);
    EXPECT_EQ(ExchangeStatus(server, second), 401);
}

TEST(Login, TooManyFailuresLockTheNameForAWhile) {
    TestServer server([](Settings& settings) {
        settings.loginAttemptsPerUser = 3;
        settings.loginWindowMinutes = 10;
    });
    server.AddUser("anna", "correct horse");
    server.AddUser("bert", "correct horse");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(server.LogIn("anna", "wrong horse").status, 401);
    }
    server.AdvanceSeconds(100);
    const RawReply locked = server.LogIn("anna", "correct horse");
    EXPECT_EQ(locked.status, 429);
    EXPECT_EQ(locked.fields.at("retry-after"), "500");
    EXPECT_EQ(server.LogIn("bert", "correct horse").status, 200);
    server.AdvanceSeconds(500);
    EXPECT_EQ(server.LogIn("anna", "correct horse").status, 200);
}

TEST(Login, TooManyFailuresLockTheAddress) {
    TestServer server([](Settings& settings) { settings.loginAttemptsPerAddress = 2; });
    server.AddUser("anna", "correct horse");
    EXPECT_EQ(server.LogIn("carl", "wrong horse").status, 401);
    EXPECT_EQ(server.LogIn("dora", "wrong horse").status, 401);
    EXPECT_EQ(server.LogIn("anna", "correct horse").status, 429);
}

TEST(Login, HashOfAnotherCostIsRenewedAndSessionsGoOn) {
    TestServer server;
    const std::string old = Passwords(PasswordCost{2, 16384}).Hash("correct horse");
    ASSERT_TRUE(server.Server().Accounts().AddUser("anna", old).Value());
    const std::string token = server.Token("anna", "correct horse");
    EXPECT_EQ(ExchangeStatus(server, token), 200);
    const auto user = server.Server().Accounts().FindUser("anna");
    EXPECT_NE(user.Value()->passwordHash, old);
    EXPECT_FALSE(Passwords(kCheap).IsOutdated(user.Value()->passwordHash));
    EXPECT_EQ(server.LogIn("anna", "correct horse").status, 200);
}

}  // namespace
}  // namespace Tarvik::Server
