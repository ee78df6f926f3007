// SPDX-License-Identifier: MIT
#include <vector>

#include <gtest/gtest.h>

#include "host/plugins/ais/input/MinuteCount.h"
#include "host/plugins/ais/input/Retry.h"

namespace Tarvik::Ais {

namespace {

TEST(RetryTest, PausesDoubleFromASecondToAMinute) {
    Retry retry;
    std::int64_t now = 5000;
    EXPECT_TRUE(retry.IsDue(now)) << "the first call is due at once";
    std::vector<std::int64_t> pauses;
    for (int i = 0; i < 8; ++i) {
        retry.Called(now);
        EXPECT_FALSE(retry.IsDue(now));
        retry.Failed(now, "refused");
        const std::int64_t failed = now;
        while (!retry.IsDue(now)) {
            now += 500;
        }
        pauses.push_back((now - failed) / 1000);
    }
    EXPECT_EQ(pauses, (std::vector<std::int64_t>{1, 2, 4, 8, 16, 32, 60, 60}));
    EXPECT_EQ(retry.Error(), "refused");
}

TEST(RetryTest, WhatWasHeardIsCalledSoonAgain) {
    Retry retry;
    for (int i = 0; i < 5; ++i) {
        retry.Failed(0, "refused");
    }
    retry.Called(100'000);
    retry.Opened(100'000);
    retry.Heard(100'000);
    EXPECT_EQ(retry.Error(), "");
    retry.Failed(101'000, "closed");
    EXPECT_FALSE(retry.IsDue(101'999));
    EXPECT_TRUE(retry.IsDue(102'000));
}

TEST(RetryTest, OpenButSilentSourceIsCalledAtGrowingPauses) {
    Retry retry;
    retry.Failed(0, "x");
    retry.Failed(0, "x");
    retry.Opened(0);
    retry.Failed(0, "closed");
    EXPECT_FALSE(retry.IsDue(3'999)) << "opening alone proves nothing";
    EXPECT_TRUE(retry.IsDue(4'000));
}

TEST(RetryTest, CallAndSilenceBecomeOverdue) {
    Retry retry;
    retry.Called(0);
    EXPECT_FALSE(retry.IsOverdue(Retry::kLongestCall));
    EXPECT_TRUE(retry.IsOverdue(Retry::kLongestCall + 1));
    retry.Opened(20'000);
    retry.Heard(30'000);
    EXPECT_FALSE(retry.IsOverdue(30'000 + Retry::kLongestSilence));
    EXPECT_TRUE(retry.IsOverdue(30'001 + Retry::kLongestSilence));
}

TEST(MinuteCountTest, OnlyTheLastMinuteCounts) {
    MinuteCount count;
    const std::int64_t start = 1'000'000'000;
    for (int second = 0; second < 120; ++second) {
        count.Add(start + second * 1000, 2);
    }
    EXPECT_EQ(count.At(start + 119'000), 120U);
    EXPECT_EQ(count.At(start + 149'000), 60U);
    EXPECT_EQ(count.At(start + 1'000'000), 0U);
}

}  // namespace
}  // namespace Tarvik::Ais
