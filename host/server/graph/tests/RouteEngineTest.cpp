// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include <gmock/gmock.h>

#include "host/server/graph/RouteEngine.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class RouteEngineTest : public ::testing::Test {
  protected:
    RouteResult Plan(const std::vector<RouteRequestPoint>& points) const { return engine_.Plan(points); }
    RouteResult Choose(const std::vector<RouteChoice>& locks) const {
        return Plan({{"40001", {}, {}}, {"40002", {}, locks}});
    }
    RouteEngine engine_{SmallNetwork()};
};

TEST_F(RouteEngineTest, TakesTheShortestOpenWayAndCutsItAtTheRoutePoint) {
    const RouteResult result = Choose({});
    ASSERT_EQ(result.error, kRouteOk) << result.message;
    ASSERT_EQ(result.stops.size(), 2u);
    EXPECT_EQ(result.stops[0].pointId, "40001");
    EXPECT_THAT(result.stops[0].legs, IsEmpty());
    const PlannedStop& stop = result.stops[1];
    EXPECT_EQ(stop.pointId, "40002");
    EXPECT_THAT(stop.passedIds, ElementsAre("40001", "1", "40002"));
    ASSERT_EQ(stop.legs.size(), 2u);
    EXPECT_EQ(stop.legs[0].fromId, "40001");
    EXPECT_EQ(stop.legs[0].endId, "1");
    EXPECT_EQ(stop.legs[0].points.front(), (GeoPoint{-10, 0}));
    EXPECT_EQ(stop.legs[0].points.back(), (GeoPoint{0, 12}));
    EXPECT_EQ(stop.legs[1].points.front(), (GeoPoint{0, 12}));
    EXPECT_NEAR(stop.distanceKm, 2 * GeodesicKm({-10, 0}, {0, 12}), 2.0);
    EXPECT_NEAR(stop.distanceKm, stop.legs[0].distanceKm + stop.legs[1].distanceKm, 1e-9);
}

TEST_F(RouteEngineTest, OffersWhatCanStandInARoutePointsPlace) {
    const PlannedStop stop = Choose({}).stops.at(1);
    ASSERT_EQ(stop.groups.size(), 1u);
    EXPECT_EQ(stop.groups[0].rpId, "1");
    EXPECT_EQ(stop.groups[0].rangeFrom, "40001");
    EXPECT_EQ(stop.groups[0].rangeEnd, "40002");
    EXPECT_THAT(stop.groups[0].alternatives, ElementsAre("2", "3"));
}

TEST_F(RouteEngineTest, AChoiceLeadsThroughItsPassageAndStaysInForce) {
    const RouteResult south = Choose({{"2", "40001,40002"}});
    ASSERT_EQ(south.error, kRouteOk) << south.message;
    EXPECT_THAT(south.stops[1].passedIds, ElementsAre("40001", "2", "40002"));
    EXPECT_EQ(south.stops[1].locks, "2=40001,40002");
    EXPECT_THAT(south.stops[1].groups.at(0).alternatives, ElementsAre("1", "3"));
}

TEST_F(RouteEngineTest, AShutPassageOpensWhenChosen) {
    const RouteResult canal = Choose({{"3", "40001,40002"}});
    ASSERT_EQ(canal.error, kRouteOk) << canal.message;
    EXPECT_THAT(canal.stops[1].passedIds, ElementsAre("40001", "3", "40002"));
    EXPECT_NEAR(canal.stops[1].distanceKm, GeodesicKm({-10, 0}, {10, 0}), 1.0);
}

TEST_F(RouteEngineTest, TheNewerChoiceOfAGroupReplacesTheOlder) {
    const RouteResult result = Choose({{"2", "40001,40002"}, {"3", "40001,40002"}});
    ASSERT_EQ(result.error, kRouteOk) << result.message;
    EXPECT_THAT(result.stops[1].passedIds, ElementsAre("40001", "2", "40002"));
    EXPECT_EQ(result.stops[1].locks, "2=40001,40002");
}

TEST_F(RouteEngineTest, AWayOverTheDateLineHasItsTwoPointsThere) {
    const RouteResult result = Plan({{"40003", {}, {}}, {"40004", {}, {}}});
    ASSERT_EQ(result.error, kRouteOk) << result.message;
    const std::vector<GeoPoint>& points = result.stops[1].legs.at(0).points;
    std::size_t at = 0;
    while (at + 1 < points.size() && points[at].x != 180) {
        ++at;
    }
    ASSERT_LT(at + 1, points.size());
    EXPECT_EQ(points[at + 1], (GeoPoint{-180, points[at].y}));
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (i == at + 1) {
            continue;
        }
        EXPECT_LT(std::abs(points[i].x - points[i - 1].x), 2.0);
    }
    EXPECT_NEAR(result.stops[1].distanceKm, GeodesicKm({175, 10}, {-175, 10}), 1.0);
}

TEST_F(RouteEngineTest, TheSamePortTwiceIsALegOfNoLength) {
    const RouteResult result = Plan({{"40001", {}, {}}, {"40001", {}, {}}});
    ASSERT_EQ(result.error, kRouteOk) << result.message;
    EXPECT_EQ(result.stops[1].distanceKm, 0.0);
}

TEST_F(RouteEngineTest, NamesWhatItCannotDo) {
    const RouteResult few = Plan({{"40001", {}, {}}});
    EXPECT_EQ(few.error, kRouteTooFewPoints);
    const RouteResult unknown = Plan({{"40001", {}, {}}, {"49999", {}, {}}});
    EXPECT_EQ(unknown.error, kRouteUnknownPoint);
    EXPECT_THAT(unknown.message, HasSubstr("49999"));
    const RouteResult apart = Plan({{"40001", {}, {}}, {"40003", {}, {}}});
    EXPECT_EQ(apart.error, kRouteNoWay);
    EXPECT_THAT(apart.message, HasSubstr("from 40001 to 40003"));
    EXPECT_THAT(apart.stops, IsEmpty());
    const RouteResult choice = Choose({{"7", "40001,40002"}});
    EXPECT_EQ(choice.error, kRouteNoWay);
    EXPECT_THAT(choice.message, HasSubstr("7=40001,40002"));
    EXPECT_EQ(Choose({{"2", "40001"}}).error, kRouteNoWay);
}

TEST_F(RouteEngineTest, TheNearestWayBeginsAtTheShip) {
    const NearestResult result = engine_.Nearest({-12, 1}, "40002");
    ASSERT_EQ(result.error, kRouteOk) << result.message;
    EXPECT_EQ(result.points.front(), (GeoPoint{-12, 1}));
    EXPECT_EQ(result.points.back(), (GeoPoint{10, 0}));
    EXPECT_GT(result.distanceKm, GeodesicKm({-12, 1}, {10, 0}));
}

TEST_F(RouteEngineTest, APortInSightIsReachedStraight) {
    const NearestResult result = engine_.Nearest({12, 1}, "40002");
    ASSERT_EQ(result.error, kRouteOk) << result.message;
    EXPECT_NEAR(result.distanceKm, GeodesicKm({12, 1}, {10, 0}), 0.5);
}

TEST_F(RouteEngineTest, ANearestWayNeedsAPlaceOnEarthAndAKnownPort) {
    EXPECT_EQ(engine_.Nearest({181, 0}, "40002").error, kRouteBadPosition);
    EXPECT_EQ(engine_.Nearest({0, std::numeric_limits<double>::quiet_NaN()}, "40002").error,
              kRouteBadPosition);
    EXPECT_EQ(engine_.Nearest({0, 0}, "1x").error, kRouteUnknownPoint);
    EXPECT_EQ(engine_.Nearest({-60, 0}, "40002").error, kRouteNoWay) << "nothing within sight";
}

}  // namespace
}  // namespace Tarvik::Server
