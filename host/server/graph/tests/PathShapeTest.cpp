// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "host/server/graph/PathShape.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

using ::testing::ElementsAre;

TEST(PathShape, CutsAWayAtTheDateLineInBothDirections) {
    EXPECT_THAT(PathShape::CutAtDateLine({{179, 0}, {181, 2}}),
                ElementsAre(GeoPoint{179, 0}, GeoPoint{180, 1}, GeoPoint{-180, 1}, GeoPoint{-179, 2}));
    EXPECT_THAT(PathShape::CutAtDateLine({{-179, 0}, {-181, 2}}),
                ElementsAre(GeoPoint{-179, 0}, GeoPoint{-180, 1}, GeoPoint{180, 1}, GeoPoint{179, 2}));
}

TEST(PathShape, LeavesAWayAwayFromTheDateLineAsItIs) {
    EXPECT_THAT(PathShape::CutAtDateLine({{10, 0}, {12, 2}}), ElementsAre(GeoPoint{10, 0}, GeoPoint{12, 2}));
}

TEST(PathShape, ATautWayLeavesOutNodesThatHideNothing) {
    const SeaNetwork network(SmallSea());
    const PathShape shape(network);
    NodePath path;
    path.nodes = {0, 1, 3};
    path.edges = {0, 1};
    const auto taut = shape.Taut(path, network.ShutGates(), {});
    EXPECT_THAT(taut, ElementsAre(GeoPoint{-10, 0}, GeoPoint{0, 12}, GeoPoint{10, 0}))
        << "the island lies behind the cape";
    NetworkData open = SmallSea();
    open.land.clear();
    open.routePoints[2].shut = false;
    const SeaNetwork wide(open);
    EXPECT_EQ(PathShape(wide).Taut(path, wide.ShutGates(), {}).size(), 2u);
    EXPECT_EQ(PathShape(wide).Taut(path, wide.ShutGates(), {1}).size(), 3u) << "a pinned node stays";
}

TEST(PathShape, HandMadeWaysKeepTheirPoints) {
    const SeaNetwork network(SmallSea());
    NodePath path;
    path.nodes = {0, 4, 3};
    path.edges = {4, 5};
    EXPECT_EQ(PathShape(network).Taut(path, GateMask{}, {}).size(), 3u);
}

}  // namespace
}  // namespace Tarvik::Server
