// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "host/server/graph/Gate.h"

namespace Tarvik::Server {

namespace {

TEST(Gate, TellsWhereAWayCrossesIt) {
    const auto at = FirstCrossing({{-4, 1}, {-2, 1}, {2, 1}}, {{0, 0}, {0, 5}});
    ASSERT_TRUE(at);
    EXPECT_EQ(at->index, 1u);
    EXPECT_EQ(at->t, 0.5);
    EXPECT_EQ(at->at, (GeoPoint{0, 1}));
}

TEST(Gate, IsNotCrossedBesideItsEnds) {
    EXPECT_FALSE(FirstCrossing({{-2, 6}, {2, 6}}, {{0, 0}, {0, 5}}));
    EXPECT_FALSE(FirstCrossing({{-2, 1}, {-1, 1}}, {{0, 0}, {0, 5}}));
}

TEST(Gate, IsFoundWhateverTurnTheLongitudesAreIn) {
    EXPECT_TRUE(FirstCrossing({{178, 1}, {182, 1}}, {{-180, 0}, {-180, 5}}));
    EXPECT_TRUE(FirstCrossing({{-182, 1}, {-178, 1}}, {{180, 0}, {180, 5}}));
}

}  // namespace
}  // namespace Tarvik::Server
