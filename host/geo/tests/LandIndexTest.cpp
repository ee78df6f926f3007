// SPDX-License-Identifier: MIT
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "host/geo/LandIndex.h"

namespace Tarvik::Server {

namespace {

using Rings = std::vector<std::vector<GeoPoint>>;

const Rings kIsland = {{{-3, -5}, {3, -5}, {3, 5}, {-3, 5}}};
const Rings kOverTheDateLine = {{{178, -2}, {-178, -2}, {-178, 2}, {178, 2}}};

TEST(LandIndex, WithoutLandNothingIsInTheWay) {
    for (const LandIndex& land : {LandIndex(), LandIndex(Rings{})}) {
        EXPECT_FALSE(land.Blocks({-10, 0}, {10, 0}));
        EXPECT_FALSE(land.IsLand({0, 0}));
        EXPECT_TRUE(land.IsClear({0, 0}, 100));
    }
}

TEST(LandIndex, AWayThroughAnIslandIsBlockedAndOneAroundItIsFree) {
    const LandIndex land(kIsland);
    EXPECT_TRUE(land.Blocks({-10, 0}, {10, 0}));
    EXPECT_TRUE(land.Blocks({10, 0}, {-10, 0}));
    EXPECT_TRUE(land.Blocks({0, 0}, {10, 0}));
    EXPECT_FALSE(land.Blocks({-10, 6}, {10, 6}));
    EXPECT_FALSE(land.Blocks({-1, 0}, {1, 0})) << "wholly inside, no coast is met";
}

TEST(LandIndex, TouchingACornerOfTheCoastBlocks) {
    const LandIndex land(kIsland);
    EXPECT_TRUE(land.BlocksStraight({2, 6}, {4, 4}));
    EXPECT_FALSE(land.BlocksStraight({2.1, 6.1}, {4.1, 4.1}));
}

TEST(LandIndex, TellsLandFromWater) {
    const LandIndex land(kIsland);
    EXPECT_TRUE(land.IsLand({0, 0}));
    EXPECT_TRUE(land.IsLand({-2.9, 4.9}));
    EXPECT_FALSE(land.IsLand({-3.1, 0}));
    EXPECT_FALSE(land.IsLand({0, 5.1}));
    EXPECT_FALSE(land.IsLand({0, -5.1}));
}

TEST(LandIndex, ALakeIsWater) {
    const LandIndex land({kIsland[0], {{-1, -1}, {-1, 1}, {1, 1}, {1, -1}}});
    EXPECT_FALSE(land.IsLand({0, 0}));
    EXPECT_TRUE(land.IsLand({2, 0}));
}

TEST(LandIndex, AnIslandOnTheDateLineIsOnePiece) {
    const LandIndex land(kOverTheDateLine);
    for (const double x : {179.0, -179.0, 180.0, -180.0}) {
        EXPECT_TRUE(land.IsLand({x, 0})) << x;
    }
    EXPECT_FALSE(land.IsLand({0, 0}));
    EXPECT_TRUE(land.Blocks({175, 0}, {-175, 0}));
    EXPECT_TRUE(land.Blocks({-175, 0}, {175, 0}));
    EXPECT_FALSE(land.Blocks({175, 4}, {-175, 4}));
    EXPECT_FALSE(land.Blocks({170, 0}, {177, 0}));
}

TEST(LandIndex, ARingAroundThePoleNeedsNoSouthernEdge) {
    const LandIndex land({{{-120, -70}, {0, -75}, {120, -70}}});
    EXPECT_TRUE(land.IsLand({10, -89}));
    EXPECT_TRUE(land.IsLand({170, -80}));
    EXPECT_FALSE(land.IsLand({10, -60}));
    EXPECT_TRUE(land.Blocks({10, -60}, {10, -85}));
}

TEST(LandIndex, IsClearSeesTheCoastWithinItsRadius) {
    const LandIndex land(kIsland);
    EXPECT_TRUE(land.IsClear({4, 0}, 59));
    EXPECT_FALSE(land.IsClear({4, 0}, 61));
}

/// Whether two pieces have their ends on different sides of each other.
bool Cross(GeoPoint a, GeoPoint b, GeoPoint c, GeoPoint d) {
    const auto side = [](GeoPoint from, GeoPoint to, GeoPoint p) {
        return (to.x - from.x) * (p.y - from.y) - (to.y - from.y) * (p.x - from.x);
    };
    return side(a, b, c) * side(a, b, d) <= 0.0 && side(c, d, a) * side(c, d, b) <= 0.0;
}

// Held against every piece of the coast: islets spread over the oceans with wide waters between.
TEST(LandIndex, AgreesWithALookAtEveryPieceOfTheCoast) {
    std::mt19937 random(20261123);
    std::uniform_real_distribution<double> x(-170.0, 170.0);
    std::uniform_real_distribution<double> y(-70.0, 70.0);
    std::uniform_real_distribution<double> step(-4.0, 4.0);
    Rings rings;
    for (int i = 0; i < 600; ++i) {
        const GeoPoint at{x(random), y(random)};
        rings.push_back({at, {at.x + 0.4, at.y + 0.1}, {at.x + 0.1, at.y + 0.7}});
    }
    const LandIndex land(rings);
    int blocked = 0;
    for (int i = 0; i < 20000; ++i) {
        const GeoPoint a{x(random), y(random)};
        const GeoPoint b{a.x + step(random), a.y + step(random)};
        const bool expected = std::any_of(rings.begin(), rings.end(), [&](const std::vector<GeoPoint>& ring) {
            return Cross(a, b, ring[0], ring[1]) || Cross(a, b, ring[1], ring[2]) ||
                   Cross(a, b, ring[2], ring[0]);
        });
        ASSERT_EQ(land.BlocksStraight(a, b), expected) << a.x << " " << a.y << " to " << b.x << " " << b.y;
        blocked += expected ? 1 : 0;
    }
    EXPECT_GT(blocked, 200);
}

}  // namespace
}  // namespace Tarvik::Server
