// SPDX-License-Identifier: MIT
#include <cmath>

#include <gtest/gtest.h>

#include "host/server/graph/PassageReach.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

RoutePoint PointWith(std::vector<GeoPoint> gate) {
    RoutePoint point;
    point.gate = std::move(gate);
    return point;
}

constexpr int kEast = 1;
constexpr int kWest = 2;

TEST(SideOfGate, TellsTheTwoSidesOfAGateOverItsPoint) {
    const RoutePoint point = PointWith({{0, 5}, {0, 40}});
    EXPECT_EQ(SideOfGate(point, {0, 12}, {10, 12}), kEast);
    EXPECT_EQ(SideOfGate(point, {0, 12}, {1, -60}), kEast);
    EXPECT_EQ(SideOfGate(point, {0, 12}, {-10, 12}), kWest);
    EXPECT_EQ(SideOfGate(point, {0, 12}, {-1, 60}), kWest);
}

TEST(SideOfGate, IsTheSameAtEitherEndOfTheGate) {
    const RoutePoint point = PointWith({{0, 0}, {0, 10}});
    for (const GeoPoint end : {GeoPoint{0, 0}, GeoPoint{0, 10}}) {
        EXPECT_EQ(SideOfGate(point, end, {5, end.y}), kEast) << end.y;
        EXPECT_EQ(SideOfGate(point, end, {-5, end.y}), kWest) << end.y;
    }
}

TEST(SideOfGate, FollowsTheBendOfAGateAtItsPoint) {
    // From the south to the point, then east: the side within is the quarter south-east.
    const RoutePoint point = PointWith({{0, -10}, {0, 0}, {10, 0}});
    EXPECT_EQ(SideOfGate(point, {0, 0}, {5, -5}), 1);
    EXPECT_EQ(SideOfGate(point, {0, 0}, {5, 5}), 2);
    EXPECT_EQ(SideOfGate(point, {0, 0}, {-5, 5}), 2);
    EXPECT_EQ(SideOfGate(point, {0, 0}, {-5, -5}), 2);
}

TEST(SideOfGate, HoldsOnTheDateLine) {
    const RoutePoint point = PointWith({{180, -5}, {180, 5}});
    for (const double x : {180.0, -180.0}) {
        EXPECT_EQ(SideOfGate(point, {x, 0}, {-179, 0}), kEast) << x;
        EXPECT_EQ(SideOfGate(point, {x, 0}, {179, 0}), kWest) << x;
    }
}

class ReachTest : public ::testing::Test {
  protected:
    /// That route point `index` leads to `id` in `nm` miles and leaves on `side`.
    void Expect(std::uint16_t index, const std::string& id, double nm, int side) const {
        const ReachEntry& entry = network_->Reach(index, id);
        EXPECT_NEAR(entry.nm, nm, 0.01) << index << " to " << id;
        EXPECT_EQ(entry.side, side) << index << " to " << id;
    }
    std::shared_ptr<const SeaNetwork> network_ = SmallNetwork();
};

TEST_F(ReachTest, TellsMilesAndSideOfTheWaysToBothEnds) {
    const double north = ArcNm(GeoPoint{0, 12}, GeoPoint{10, 0});
    const double south = ArcNm(GeoPoint{0, -14}, GeoPoint{10, 0});
    Expect(0, "40001", north, kWest);
    Expect(0, "40002", north, kEast);
    // This gate is drawn the other way, so that its sides change their numbers.
    Expect(1, "40001", south, kEast);
    Expect(1, "40002", south, kWest);
    Expect(0, "1", 0.0, 0);
}

TEST_F(ReachTest, KnowsWhereNoWayLeads) {
    for (const char* id : {"40003", "40005"}) {
        EXPECT_TRUE(std::isinf(network_->Reach(0, id).nm)) << id;
    }
}

TEST_F(ReachTest, ChoosingOpensWhatIsShutAndShutsWhatLiesBeside) {
    const GateMask canal = network_->ForbiddenBy(2);
    EXPECT_TRUE(canal[0] && canal[1]);
    EXPECT_FALSE(canal[2]);
    const GateMask north = network_->ForbiddenBy(0);
    EXPECT_TRUE(north[1] && north[2] && north[kIceBit]);
    Expect(2, "40001", 600.0, kWest);
    Expect(2, "40002", 600.0, kEast);
}

/// The small sea with more nodes, which no way joins.
NetworkData SeaWith(const std::vector<GeoPoint>& places) {
    NetworkData data = SmallSea();
    data.nodes.insert(data.nodes.end(), places.begin(), places.end());
    return data;
}

TEST(SightLine, TellsLandGatesAndTheMarginOffTheCoast) {
    const double off = 3.0 / kNmPerDegree;
    const SeaNetwork network(SeaWith({{-8, 8},
                                      {8, 8},
                                      {3 + off, -2},
                                      {3 + off, 2},
                                      {3 + off, 0},
                                      {3 + off, 0.2},
                                      {3 + 2 * off, -2},
                                      {3 + 2 * off, 2}}));
    const auto first = static_cast<std::uint32_t>(SmallSea().nodes.size());
    EXPECT_FALSE(SightLineOf(network, 0, 3).clear);
    const SightLine north = SightLineOf(network, first, first + 1);
    EXPECT_TRUE(north.clear);
    EXPECT_TRUE(north.crossed[0]);
    EXPECT_FALSE(north.crossed[1]);
    EXPECT_FALSE(SightLineOf(network, first + 2, first + 3).clear);
    EXPECT_TRUE(SightLineOf(network, first + 4, first + 5).clear) << "a short line has a free hand";
    EXPECT_TRUE(SightLineOf(network, first + 6, first + 7).clear);
}

TEST(SightLine, IsThatOfTheNetworkAskedFor) {
    const SeaNetwork land(SmallSea());
    NetworkData open = SmallSea();
    open.land.clear();
    const SeaNetwork sea(std::move(open));
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(SightLineOf(land, 0, 3).clear);
        EXPECT_TRUE(SightLineOf(sea, 0, 3).clear);
    }
}

// More lines than the table has places: what was driven out is reckoned anew, and none takes another's
// answer.
TEST(SightLine, AnswersStayThoseOfTheirLineWhenTheTableIsFull) {
    std::vector<GeoPoint> places;
    for (int i = 0; i < 544; ++i) {
        places.push_back({-30.0 + static_cast<double>(i % 32), -10.0 + static_cast<double>(i / 32)});
    }
    const SeaNetwork network(SeaWith(places));
    const auto first = static_cast<std::uint32_t>(SmallSea().nodes.size());
    const auto end = static_cast<std::uint32_t>(network.data().nodes.size());
    for (int round = 0; round < 2; ++round) {
        for (std::uint32_t a = first; a < end; ++a) {
            for (std::uint32_t b = first; b < end; b += round == 0 ? 1 : 37) {
                const bool clear = SightLineOf(network, a, b).clear;
                if (round == 1) {
                    ASSERT_EQ(clear,
                              IsSeaRoom(network.Land(), network.data().nodes[a], network.data().nodes[b]))
                        << a << " " << b;
                }
            }
        }
    }
}

}  // namespace

}  // namespace Tarvik::Server
