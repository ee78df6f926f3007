// SPDX-License-Identifier: MIT
#include <limits>

#include <gtest/gtest.h>

#include "host/plugins/seamap/core/Extent.h"

namespace Tarvik::Seamap {

namespace {

TEST(Extent, ReadsTheCornersInEitherOrder) {
    const Extent expected{-10, 20, 126, 60};
    EXPECT_EQ(Extent::FromCorners({126, 60, -10, 20}), expected);
    EXPECT_EQ(Extent::FromCorners({-10, 20, 126, 60}), expected);
    EXPECT_EQ(Extent::FromCorners({-10, 60, 126, 20}), expected);
}

TEST(Extent, ThePairAroundTheWorldLiesOverTheDateLine) {
    EXPECT_EQ(Extent::FromCorners({126, 52, -90, 30}), (Extent{126, 30, 270, 52}));
    EXPECT_EQ(Extent::FromCorners({-90, 52, 126, 30}), (Extent{-90, 30, 126, 52})) << "only in this order";
}

TEST(Extent, TheInitialRecordIsTheWholeWorld) {
    EXPECT_EQ(Extent::FromCorners({}), (Extent{-180, -90, 180, 90}));
}

TEST(Extent, CornersComeOutAsWestSouthEastNorth) {
    const auto corners = Extent{1, 2, 3, 4}.Corners();
    EXPECT_EQ(corners.first, 1);
    EXPECT_EQ(corners.second, 2);
    EXPECT_EQ(corners.third, 3);
    EXPECT_EQ(corners.fourth, 4);
}

TEST(Extent, RefusesNumbersThatAreNoPlace) {
    EXPECT_FALSE(Extent::FromCorners({std::numeric_limits<double>::quiet_NaN(), 0, 1, 1}));
    EXPECT_FALSE(Extent::FromCorners({0, 0, std::numeric_limits<double>::infinity(), 1}));
    EXPECT_FALSE(Extent::FromCorners({0, 0, 1e9, 1}));
}

TEST(Extent, BringsLatitudesAndWidthIntoTheWorld) {
    EXPECT_EQ(Extent::FromCorners({-300, -95, 300, 95}), (Extent{-300, -90, 60, 90}));
}

TEST(Extent, AroundPointsTakesTheNarrowWayOverTheDateLine) {
    const auto extent = Extent::Around({{170, 10}, {-160, -5}, {-175, 40}});
    ASSERT_TRUE(extent);
    EXPECT_DOUBLE_EQ(extent->west, 170);
    EXPECT_DOUBLE_EQ(extent->east, 200);
    EXPECT_DOUBLE_EQ(extent->south, -5);
    EXPECT_DOUBLE_EQ(extent->north, 40);
}

TEST(Extent, AroundPointsOfOneHemisphere) {
    EXPECT_EQ(Extent::Around({{-10, 1}, {30, 2}, {5, 3}}), (Extent{-10, 1, 30, 3}));
    EXPECT_EQ(Extent::Around({{7, 8}}), (Extent{7, 8, 7, 8}));
    EXPECT_FALSE(Extent::Around({}));
}

TEST(Extent, ContainsKnowsTurns) {
    const Extent pacific{150, -10, 230, 10};
    EXPECT_TRUE(pacific.Contains({-140, 0}));
    EXPECT_TRUE(pacific.Contains({160, 0}));
    EXPECT_FALSE(pacific.Contains({0, 0}));
    EXPECT_FALSE(pacific.Contains({160, 11}));
}

}  // namespace
}  // namespace Tarvik::Seamap
