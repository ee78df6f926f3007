// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/server/accounts/SessionMemory.h"
#include "host/server/net/tests/TestServer.h"

namespace Tarvik::Server {

namespace {

TEST(ForwardClock, FollowsForwardAndNeverGoesBack) {
    std::int64_t system = 1000;
    std::int64_t steady = 5;
    ForwardClock clock([&] { return system; }, [&] { return steady; });
    EXPECT_EQ(clock.Now(), 1000);
    system = 1100;
    steady = 7;
    EXPECT_EQ(clock.Now(), 1100);
    system = 50;
    EXPECT_EQ(clock.Now(), 1100);
    steady = 17;
    EXPECT_EQ(clock.Now(), 1110);
    system = 1111;
    EXPECT_EQ(clock.Now(), 1111);
}

TEST(SessionMemory, HoldsWhatWasFoundUntilTheSecondIsOver) {
    SessionMemory memory;
    EXPECT_FALSE(memory.UserOf("h", 7));
    memory.Keep("h", "anna", 7, memory.Generation());
    EXPECT_EQ(memory.UserOf("h", 7), "anna");
    EXPECT_FALSE(memory.UserOf("h", 8));
    EXPECT_FALSE(memory.UserOf("h", 7));
}

TEST(SessionMemory, KnowsWhoseTurnARequestIsBehindTheSecond) {
    SessionMemory memory;
    EXPECT_EQ(memory.LastUserOf("hash"), "");
    memory.Keep("hash", "anna", 10, memory.Generation());
    EXPECT_FALSE(memory.UserOf("hash", 11));
    EXPECT_EQ(memory.LastUserOf("hash"), "anna");
}

TEST(SessionMemory, DoesNotKeepWhatWasSearchedBeforeASessionEnded) {
    SessionMemory memory;
    memory.Keep("other", "bert", 7, memory.Generation());
    const std::uint64_t before = memory.Generation();
    memory.Forget();
    memory.Keep("h", "anna", 7, before);
    EXPECT_FALSE(memory.UserOf("h", 7));
    EXPECT_FALSE(memory.UserOf("other", 7));
}

TEST(SessionMemory, ALogoutActsAtOnceAndADisabledUserWithinASecond) {
    TestServer server;
    const auto status = [&server](const std::string& token) {
        return server.Ask("POST", "/v1/exchange", EnvelopeBody(3, "{ui:\"anna\"}"), token).status;
    };
    server.AddUser("anna", "correct horse");
    const std::string gone = server.Token("anna", "correct horse");
    const std::string kept = server.Token("anna", "correct horse");
    EXPECT_EQ(status(gone), 200);
    EXPECT_EQ(server.Ask("POST", "/v1/logout", {}, gone).status, 200);
    EXPECT_EQ(status(gone), 401);
    EXPECT_EQ(status(kept), 200);
    ASSERT_TRUE(server.Server().Accounts().SetDisabled("anna", true).Value());
    server.AdvanceSeconds(1);
    EXPECT_EQ(status(kept), 401);
}

}  // namespace
}  // namespace Tarvik::Server
