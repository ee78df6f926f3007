// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "host/server/graph/RouteEngine.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

using ::testing::ElementsAre;

/// 1000001 lies at sea in the west, 1000002 in the east, 1000003 in the middle of the island, 1000004 in its
/// harbour, as near to the canal's node as a berth is, 1000005 with nothing in between north of 1000001.
const std::vector<OwnPort> kOwn = {{"1000001", {-9, 1}},
                                   {"1000002", {9, -1}},
                                   {"1000003", {2.5, 3}},
                                   {"1000004", {0.3, 0.2}},
                                   {"1000005", {-9, 6}}};

class OwnPortTest : public ::testing::Test {
  protected:
    RouteResult Plan(const std::string& from, const std::string& to,
                     std::vector<RouteChoice> locks = {}) const {
        return engine_.Plan({{from, {}, {}}, {to, {}, std::move(locks)}}, kOwn);
    }
    RouteEngine engine_{SmallNetwork()};
};

TEST_F(OwnPortTest, WayBeginsAndEndsAtThePortItself) {
    const RouteResult out = Plan("1000001", "40002");
    ASSERT_EQ(out.error, kRouteOk) << out.message;
    const PlannedStop& stop = out.stops[1];
    EXPECT_EQ(stop.legs.front().points.front(), (GeoPoint{-9, 1}));
    EXPECT_EQ(stop.legs.back().points.back(), (GeoPoint{10, 0}));
    EXPECT_THAT(stop.passedIds, ElementsAre("1000001", "1", "40002"));
    EXPECT_NEAR(stop.distanceKm, GeodesicKm({-9, 1}, {0, 12}) + GeodesicKm({0, 12}, {10, 0}), 2.0);
    const RouteResult back = Plan("40002", "1000001");
    ASSERT_EQ(back.error, kRouteOk) << back.message;
    EXPECT_EQ(back.stops[1].legs.back().points.back(), (GeoPoint{-9, 1}));
    EXPECT_NEAR(back.stops[1].distanceKm, stop.distanceKm, 1e-6);
}

TEST_F(OwnPortTest, TwoOwnPortsAreJoinedAroundTheLand) {
    const RouteResult result = Plan("1000001", "1000002");
    ASSERT_EQ(result.error, kRouteOk) << result.message;
    EXPECT_EQ(result.stops[1].legs.front().points.front(), (GeoPoint{-9, 1}));
    EXPECT_EQ(result.stops[1].legs.back().points.back(), (GeoPoint{9, -1}));
    EXPECT_GT(result.stops[1].distanceKm, 1.2 * GeodesicKm({-9, 1}, {9, -1}));
}

TEST_F(OwnPortTest, ChoicesOfPassagesAreOfferedAndTaken) {
    const RouteResult usual = Plan("1000001", "40002");
    ASSERT_EQ(usual.stops.at(1).groups.size(), 1U);
    EXPECT_EQ(usual.stops[1].groups[0].rangeFrom, "1000001");
    const RouteResult south = Plan("1000001", "40002", {{"2", "1000001,40002"}});
    ASSERT_EQ(south.error, kRouteOk) << south.message;
    EXPECT_THAT(south.stops[1].passedIds, ElementsAre("1000001", "2", "40002"));
    EXPECT_EQ(south.stops[1].locks, "2=1000001,40002");
}

TEST_F(OwnPortTest, PortsInSightAreJoinedStraight) {
    const RouteResult result = Plan("1000001", "1000005");
    ASSERT_EQ(result.error, kRouteOk) << result.message;
    EXPECT_NEAR(result.stops[1].distanceKm, GeodesicKm({-9, 1}, {-9, 6}), 0.5);
}

TEST_F(OwnPortTest, PassageForbiddenIsNotCrossedInSightEither) {
    const std::vector<OwnPort> own = {{"1000006", {-8, 8}}, {"1000007", {8, 8}}};
    const std::vector<RouteRequestPoint> points = {{"1000006", {}, {}}, {"1000007", {}, {}}};
    const RouteResult straight = engine_.Plan(points, own);
    ASSERT_EQ(straight.error, kRouteOk) << straight.message;
    EXPECT_THAT(straight.stops[1].passedIds, ElementsAre("1000006", "1", "1000007"));
    const RouteResult around = engine_.Plan(points, own, {{"1"}, {}});
    ASSERT_EQ(around.error, kRouteOk) << around.message;
    EXPECT_THAT(around.stops[1].passedIds, ElementsAre("1000006", "2", "1000007"));
}

TEST_F(OwnPortTest, HarbourOnLandIsReachedAndTheHinterlandIsNot) {
    EXPECT_EQ(Plan("40001", "1000004").error, kRouteOk);
    const RouteResult inland = Plan("40001", "1000003");
    EXPECT_EQ(inland.error, kRouteNoWay);
    EXPECT_EQ(inland.message, "there is no way by sea from 40001 to 1000003");
    EXPECT_EQ(engine_.Nearest({-9, 1}, "1000003", kOwn).error, kRouteNoWay);
}

TEST_F(OwnPortTest, NearestWayLeadsToAnOwnPort) {
    const NearestResult result = engine_.Nearest({9, 2}, "1000001", kOwn);
    ASSERT_EQ(result.error, kRouteOk) << result.message;
    EXPECT_EQ(result.points.front(), (GeoPoint{9, 2}));
    EXPECT_EQ(result.points.back(), (GeoPoint{-9, 1}));
}

TEST_F(OwnPortTest, PortOfSomebodyElseIsUnknown) {
    EXPECT_EQ(engine_.Plan({{"40001", {}, {}}, {"1000001", {}, {}}}).error, kRouteUnknownPoint);
    EXPECT_EQ(engine_.Nearest({-9, 1}, "1000001").error, kRouteUnknownPoint);
}

}  // namespace

}  // namespace Tarvik::Server
