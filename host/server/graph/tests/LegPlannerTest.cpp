// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "host/server/graph/LegPlanner.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

using ::testing::ElementsAre;

TEST(LegPlanner, OpensShutPassagesWhenNothingElseLeadsThere) {
    NetworkData data = SmallSea();
    std::erase_if(data.edges,
                  [](const NetworkEdge& e) { return e.a != 0 && e.kind == EdgeKind::Sea && e.b == 3; });
    const SeaNetwork network(data);
    std::string error;
    const auto stop = LegPlanner(network).Plan("40001", {"40002", {}, {}}, error);
    ASSERT_TRUE(stop) << error;
    EXPECT_THAT(stop->passedIds, ElementsAre("40001", "3", "40002"));
}

TEST(LegPlanner, OffersOnlyWhatGivesARoute) {
    NetworkData data = SmallSea();
    std::erase_if(data.edges, [](const NetworkEdge& e) { return e.a == 2 || e.b == 2; });
    const SeaNetwork network(data);
    std::string error;
    const auto stop = LegPlanner(network).Plan("40001", {"40002", {}, {}}, error);
    ASSERT_TRUE(stop) << error;
    ASSERT_EQ(stop->groups.size(), 1u);
    EXPECT_THAT(stop->groups[0].alternatives, ElementsAre("3"));
}

TEST(LegPlanner, ARoutePointMayBeAStop) {
    const SeaNetwork network(SmallSea());
    std::string error;
    const auto stop = LegPlanner(network).Plan("40001", {"1", {}, {}}, error);
    ASSERT_TRUE(stop) << error;
    EXPECT_THAT(stop->passedIds, ElementsAre("40001", "1"));
    EXPECT_TRUE(stop->groups.empty());
}

TEST(LegPlanner, ADenseWayJoinsTwoNodesOrIsEmpty) {
    const SeaNetwork network(SmallSea());
    const LegPlanner planner(network);
    const auto way = planner.Way(0, 3);
    ASSERT_GT(way.size(), 20u);
    EXPECT_EQ(way.front(), (GeoPoint{-10, 0}));
    EXPECT_EQ(way.back(), (GeoPoint{10, 0}));
    EXPECT_TRUE(planner.Way(0, 7).empty());
}

}  // namespace
}  // namespace Tarvik::Server
