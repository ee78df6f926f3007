// SPDX-License-Identifier: MIT
#include <random>

#include <gtest/gtest.h>

#include "host/geo/Sphere.h"
#include "host/server/graph/GateCells.h"

namespace Tarvik::Server {

namespace {

struct Sea {
    std::vector<GeoPoint> nodes;
    std::vector<RoutePoint> points;
    void Add(std::vector<GeoPoint> gate, GeoPoint at) {
        nodes.push_back(at);
        points.push_back({"", "", static_cast<std::uint32_t>(points.size()), false, std::move(gate), {}});
    }
};

TEST(GateCells, AWayIsComparedWithWhatSharesACellOnly) {
    Sea sea;
    sea.Add({{1, 1}, {1, 3}}, {1, 2});
    sea.Add({{100, 1}, {100, 3}}, {100, 2});
    const GateCells cells(sea.points, sea.nodes);
    EXPECT_EQ(cells.Near({{0, 2}, {2, 2}}), GateMask(1));
    EXPECT_EQ(cells.Near({{99, 2}, {101, 2}}), GateMask(2));
    EXPECT_TRUE(cells.Near({{40, 2}, {41, 2}}).none());
}

TEST(GateCells, APointIsNearAtItsPlaceThoughItsGateLiesElsewhere) {
    Sea sea;
    sea.Add({{1, 1}, {1, 3}}, {51, 42});
    const GateCells cells(sea.points, sea.nodes);
    EXPECT_TRUE(cells.Near({{51, 42}, {52, 42}})[0]);
    EXPECT_TRUE(cells.Near({{411, 42}, {412, 42}})[0]) << "a turn further east";
}

TEST(GateCells, BordersOfCellsBelongToBothSides) {
    Sea sea;
    sea.Add({{-180, 5}, {-180, 10}}, {-180, 5});
    const GateCells cells(sea.points, sea.nodes);
    EXPECT_TRUE(cells.Near({{178, 5}, {180, 5}})[0]);
    EXPECT_TRUE(cells.Near({{-180, 2}, {-180, 5}})[0]);
    EXPECT_TRUE(cells.Near({{-540, 10}, {-540, 14}})[0]);
}

/// Random gates and great circles over the whole globe, poles and date line too.
TEST(GateCells, FindTheSameGatesAsComparingWithAll) {
    std::mt19937 random(20261123);
    std::uniform_real_distribution<double> x(-180, 180);
    std::uniform_real_distribution<double> y(-89, 89);
    std::uniform_real_distribution<double> wide(-9, 9);
    Sea sea;
    for (int i = 0; i < 150; ++i) {
        const GeoPoint at{x(random), y(random)};
        sea.Add(
            {{at.x - wide(random), at.y}, {at.x + wide(random), std::clamp(at.y + wide(random), -89., 89.)}},
            at);
    }
    const GateCells cells(sea.points, sea.nodes);
    std::size_t met = 0;
    for (int i = 0; i < 3000; ++i) {
        const auto way = GreatCircle({x(random), y(random)}, {x(random), y(random)});
        const GateMask all = GatesCrossed(way, sea.points);
        met += all.count();
        ASSERT_EQ(GatesCrossed(way, sea.points, cells), all) << "way " << i;
    }
    EXPECT_GT(met, 3000u);
}

}  // namespace
}  // namespace Tarvik::Server
