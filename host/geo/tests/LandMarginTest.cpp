// SPDX-License-Identifier: MIT
// How near the coast a way comes, and waters that are closed to ways.
#include <gtest/gtest.h>

#include "host/geo/LandIndex.h"
#include "host/geo/Sphere.h"

namespace Tarvik::Server {

namespace {

using Rings = std::vector<std::vector<GeoPoint>>;

const Rings kIsland = {{{-3, -5}, {3, -5}, {3, 5}, {-3, 5}}};
constexpr double kTrimNm = LandIndex::kApproachNm;

/// A meridian this many miles east of the island's coast, at the equator.
double OffCoast(double nm) {
    return 3.0 + nm / kNmPerDegree;
}

TEST(LandMargin, AWayAlongTheCoastGrazesWithinTheMarginOnly) {
    const LandIndex land(kIsland);
    for (const double nm : {0.5, 2.0, 3.9}) {
        EXPECT_TRUE(land.Grazes({OffCoast(nm), -2}, {OffCoast(nm), 2}, 4.0, kTrimNm)) << nm;
        EXPECT_TRUE(land.Grazes({OffCoast(nm), 2}, {OffCoast(nm), -2}, 4.0, kTrimNm)) << nm;
    }
    for (const double nm : {4.1, 30.0}) {
        EXPECT_FALSE(land.Grazes({OffCoast(nm), -2}, {OffCoast(nm), 2}, 4.0, kTrimNm)) << nm;
    }
    EXPECT_FALSE(land.Grazes({OffCoast(3.0), -2}, {OffCoast(3.0), 2}, 2.0, kTrimNm)) << "a smaller margin";
}

TEST(LandMargin, ACornerIsKeptOffAsACoastIs) {
    const LandIndex land(kIsland);
    const double off = 2.0 / kNmPerDegree;
    EXPECT_TRUE(land.Grazes({1, 5 + off}, {8, 5 + off}, 4.0, kTrimNm));
    EXPECT_TRUE(land.Grazes({3 + off, 5 + off}, {9, 9}, 4.0, 0.0)) << "begins too near";
    EXPECT_FALSE(land.Grazes({3 + off, 5 + off}, {9, 9}, 4.0, kTrimNm)) << "its beginning does not count";
}

TEST(LandMargin, ShortWaysAreAllBeginningAndEnd) {
    const LandIndex land(kIsland);
    const double span = 2.0 * kTrimNm / kNmPerDegree;
    EXPECT_FALSE(land.Grazes({OffCoast(1), 0}, {OffCoast(1), span - 0.001}, 4.0, kTrimNm));
    EXPECT_TRUE(land.Grazes({OffCoast(1), 0}, {OffCoast(1), span + 0.1}, 4.0, kTrimNm));
}

TEST(LandMargin, HoldsOverTheDateLineAndInTheNorth) {
    const LandIndex line(Rings{{{179.9, -2}, {-179.9, -2}, {-179.9, 2}, {179.9, 2}}});
    EXPECT_TRUE(line.Grazes({-179.86, -1}, {-179.86, 1}, 4.0, kTrimNm));
    EXPECT_TRUE(line.Grazes({179.86, -1}, {179.86, 1}, 4.0, kTrimNm));
    EXPECT_FALSE(line.Grazes({-179.8, -1}, {-179.8, 1}, 4.0, kTrimNm));
    // A tenth of a degree of longitude is 6 NM at the equator and less than 2 at 72 degrees north.
    const LandIndex north(Rings{{{-1, 71}, {1, 71}, {1, 73}, {-1, 73}}});
    EXPECT_TRUE(north.Grazes({1.1, 71.5}, {1.1, 72.5}, 4.0, kTrimNm));
    EXPECT_FALSE(north.Grazes({1.3, 71.5}, {1.3, 72.5}, 4.0, kTrimNm));
}

TEST(LandMargin, WithoutLandNothingGrazes) {
    EXPECT_FALSE(LandIndex().Grazes({0, 0}, {10, 0}, 4.0, kTrimNm));
}

TEST(ClosedArea, BlocksWaysAndIsNoLand) {
    const Rings shoal = {{{10, -1}, {12, -1}, {12, 1}, {10, 1}}};
    const LandIndex land(kIsland, shoal);
    EXPECT_TRUE(land.Blocks({8, 0}, {14, 0}));
    EXPECT_FALSE(land.Blocks({8, 2}, {14, 2}));
    EXPECT_FALSE(land.IsLand({11, 0}));
    EXPECT_TRUE(land.IsLand({0, 0}));
    EXPECT_FALSE(land.Grazes({8, 1.03}, {14, 1.03}, 4.0, kTrimNm))
        << "an edge drawn in water needs no margin";
    EXPECT_EQ(land.SegmentCount(), 8U);
}

}  // namespace

}  // namespace Tarvik::Server
