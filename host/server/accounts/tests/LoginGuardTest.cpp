// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/server/accounts/LoginGuard.h"

namespace Tarvik::Server {

namespace {

class LoginGuardTest : public testing::Test {
  protected:
    std::int64_t now_ = 1000;
    LoginGuard guard_{{2, 3, 60}, [this] { return now_; }};
};

TEST_F(LoginGuardTest, WaitEndsWithTheWindowOfTheFirstFailure) {
    EXPECT_EQ(guard_.Begin("anna", "a"), 0);
    now_ += 20;
    EXPECT_EQ(guard_.Begin("anna", "b"), 0);
    EXPECT_EQ(guard_.Begin("anna", "c"), 40);
    now_ += 39;
    EXPECT_EQ(guard_.Begin("anna", "c"), 1);
    now_ += 1;
    EXPECT_EQ(guard_.Begin("anna", "c"), 0);
}

TEST_F(LoginGuardTest, SuccessForgetsTheUsersFailuresAndItsOwnOfTheAddress) {
    EXPECT_EQ(guard_.Begin("anna", "a"), 0);
    EXPECT_EQ(guard_.Begin("anna", "a"), 0);
    guard_.Succeeded("anna", "a");
    EXPECT_EQ(guard_.Begin("anna", "a"), 0);
    EXPECT_EQ(guard_.Begin("bert", "a"), 0);
    EXPECT_EQ(guard_.Begin("carl", "a"), 60);
    EXPECT_EQ(guard_.Begin("carl", "b"), 0);
}

TEST_F(LoginGuardTest, AddressesOfOneHouseholdCountTogether) {
    EXPECT_EQ(guard_.Begin("u1", "2001:db8:0:1::1"), 0);
    EXPECT_EQ(guard_.Begin("u2", "2001:db8:0:1:ffff::2"), 0);
    EXPECT_EQ(guard_.Begin("u3", "2001:db8:0:1::3"), 0);
    EXPECT_EQ(guard_.Begin("u4", "2001:db8:0:1::4"), 60);
    EXPECT_EQ(guard_.Begin("u5", "2001:db8:0:2::1"), 0);
    for (const char* address :
         {"::ffff:192.0.2.1", "::ffff:192.0.2.2", "::ffff:192.0.2.3", "::ffff:192.0.2.4"}) {
        EXPECT_EQ(guard_.Begin(address, address), 0);
    }
}

TEST_F(LoginGuardTest, LimitOfZeroIsNone) {
    LoginGuard open({0, 0, 60}, [this] { return now_; });
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(open.Begin("anna", "a"), 0);
    }
}

TEST_F(LoginGuardTest, FloodOfNamesIsBoundedAndLeavesYoungCounts) {
    LoginGuard flooded({2, 0, 60}, [this] { return now_; });
    for (int i = 0; i < 30000; ++i) {
        if (i == 20000) {
            now_ += 1;
        }
        ASSERT_EQ(flooded.Begin("u" + std::to_string(i), "a"), 0);
    }
    EXPECT_EQ(flooded.Begin("u29999", "a"), 0);
    EXPECT_GT(flooded.Begin("u29999", "a"), 0);
}

}  // namespace
}  // namespace Tarvik::Server
