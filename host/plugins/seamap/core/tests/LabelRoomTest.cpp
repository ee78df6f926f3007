// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/plugins/seamap/core/LabelRoom.h"

namespace Tarvik::Seamap {

namespace {

TEST(LabelRoom, IsFreeUntilSomethingStandsThere) {
    LabelRoom room;
    EXPECT_TRUE(room.IsFree({10, 10, 20, 10}));
    room.Take({10, 10, 20, 10});
    EXPECT_FALSE(room.IsFree({10, 10, 20, 10}));
    EXPECT_FALSE(room.IsFree({29, 19, 50, 50}));
    EXPECT_FALSE(room.IsFree({0, 0, 200, 200}));
    EXPECT_FALSE(room.IsFree({15, 12, 1, 1}));
}

TEST(LabelRoom, BoxesThatTouchDoNotMeet) {
    LabelRoom room;
    room.Take({10, 10, 20, 10});
    EXPECT_TRUE(room.IsFree({30, 10, 20, 10}));
    EXPECT_TRUE(room.IsFree({10, 20, 20, 10}));
    EXPECT_TRUE(room.IsFree({0, 0, 10, 100}));
    EXPECT_TRUE(room.IsFree({0, 0, 100, 10}));
}

// A box wider than a cell is found from each of its cells, also left of and above the window.
TEST(LabelRoom, ALongBoxIsFoundFromItsFarEnd) {
    LabelRoom room;
    room.Take({-300, -5, 1000, 10});
    EXPECT_FALSE(room.IsFree({690, 0, 5, 5}));
    EXPECT_FALSE(room.IsFree({-299, -4, 5, 5}));
    EXPECT_TRUE(room.IsFree({701, 0, 5, 5}));
    EXPECT_TRUE(room.IsFree({0, 6, 500, 5}));
}

TEST(LabelRoom, ABoxHoldsWhatLiesWholeInIt) {
    const LabelBox window{0, 0, 100, 50};
    EXPECT_TRUE(window.Holds({0, 0, 100, 50}));
    EXPECT_FALSE(window.Holds({-1, 0, 10, 10}));
    EXPECT_FALSE(window.Holds({95, 0, 10, 10}));
    EXPECT_FALSE(window.Holds({0, 45, 10, 10}));
}

}  // namespace

}  // namespace Tarvik::Seamap
