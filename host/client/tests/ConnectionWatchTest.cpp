// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/client/services/ConnectionWatch.h"
#include "testsupport/ManualClock.h"

namespace Tarvik::Client {

namespace {

using Util::_datetime_t;

_datetime_t Minute(int minute) {
    return {0, minute, 0, 1, 3, 2024};
}

class ConnectionWatchTest : public testing::Test {
  protected:
    ConnectionWatchTest() {
        watch_.OnChange([this] { ++changes_; });
    }

    TestSupport::ManualClock clock_;
    ConnectionWatch watch_{true};
    int changes_ = 0;
};

TEST_F(ConnectionWatchTest, AnsweredRequestsChangeNothing) {
    watch_.NoteAnswer(true);
    EXPECT_EQ(watch_.Now(), (Connection{true, {}, {}, ""}));
    EXPECT_EQ(changes_, 0);
}

TEST_F(ConnectionWatchTest, AnOutageCountsFromTheFirstRequestWithoutAnswer) {
    clock_.SetUtc(2024, 3, 1, 0, 5);
    watch_.NoteSilence("refused");
    EXPECT_EQ(watch_.Now(), (Connection{true, Minute(5), {}, "refused"}));
    clock_.SetUtc(2024, 3, 1, 0, 7);
    watch_.NoteSilence("refused");
    EXPECT_EQ(changes_, 1);
    watch_.NoteSilence("too late");
    EXPECT_EQ(watch_.Now(), (Connection{true, Minute(5), {}, "too late"}));
    EXPECT_EQ(changes_, 2);
}

TEST_F(ConnectionWatchTest, TheFirstAnswerEndsAnOutageAndItsTimeStays) {
    watch_.NoteSilence("refused");
    clock_.SetUtc(2024, 3, 1, 0, 9);
    watch_.NoteAnswer(true);
    EXPECT_EQ(watch_.Now(), (Connection{true, {}, Minute(9), ""}));
    clock_.SetUtc(2024, 3, 1, 0, 12);
    watch_.NoteAnswer(true);
    EXPECT_EQ(watch_.Now(), (Connection{true, {}, Minute(9), ""}));
    EXPECT_EQ(changes_, 2);
    watch_.NoteSilence("refused");
    EXPECT_EQ(watch_.Now(), (Connection{true, Minute(12), {}, "refused"}));
}

TEST_F(ConnectionWatchTest, ALoginOrItsEndForgetsTheOutage) {
    watch_.NoteSilence("refused");
    watch_.NoteLogin(false);
    EXPECT_EQ(watch_.Now(), Connection());
    watch_.NoteLogin(true);
    EXPECT_EQ(watch_.Now(), (Connection{true, {}, {}, ""}));
}

}  // namespace
}  // namespace Tarvik::Client
