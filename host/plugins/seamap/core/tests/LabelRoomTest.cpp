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

TEST(FreeRoom, IsTheLargestSideThatNoPanelCovers) {
    const LabelBox window{0, 0, 1000, 600};
    const auto expect = [](const LabelBox& room, double left, double top, double width, double height) {
        EXPECT_EQ(room.left, left);
        EXPECT_EQ(room.top, top);
        EXPECT_EQ(room.width, width);
        EXPECT_EQ(room.height, height);
    };
    expect(FreeRoom(window, {}), 0, 0, 1000, 600);
    expect(FreeRoom(window, {{150, 240, 200, 300}}), 350, 0, 650, 600);
    expect(FreeRoom(window, {{-50, -20, 300, 700}}), 250, 0, 750, 600);
    expect(FreeRoom(window, {{100, 400, 800, 300}}), 0, 0, 1000, 400);
    expect(FreeRoom(window, {{0, 0, 200, 600}, {200, 400, 800, 200}}), 200, 0, 800, 400);
    expect(FreeRoom(window, {{2000, 0, 100, 100}}), 0, 0, 1000, 600);
    expect(FreeRoom(window, {{100, 100, 800, 400}}), 0, 0, 1000, 600);
}

}  // namespace

}  // namespace Tarvik::Seamap
