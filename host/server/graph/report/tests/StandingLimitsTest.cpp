// SPDX-License-Identifier: MIT
#include <algorithm>

#include <gmock/gmock.h>

#include "host/server/graph/RouteEngine.h"
#include "host/server/graph/report/Places.h"
#include "host/server/graph/report/RouteReport.h"
#include "host/server/graph/report/StandingLimits.h"
#include "host/server/graph/tests/SmallSea.h"

namespace Tarvik::Server {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::optional<RouteLimits> Read(const PassageLists& lists, std::string& error) {
    return ReadStandingLimits(Places(*SmallNetwork()), lists, error);
}

RouteEngine EngineUnder(const PassageLists& lists) {
    std::string error;
    return RouteEngine(SmallNetwork(), *Read(lists, error));
}

std::vector<std::string> PassedUnder(const PassageLists& lists) {
    const RouteResult result = EngineUnder(lists).Plan({{"40001", {}, {}}, {"40002", {}, {}}});
    return result.error == kRouteOk ? result.stops[1].passedIds : std::vector<std::string>{result.message};
}

TEST(StandingLimits, HoldForEveryRoute) {
    EXPECT_THAT(PassedUnder({}), ElementsAre("40001", "1", "40002"));
    EXPECT_THAT(PassedUnder({"North Cape", ""}), ElementsAre("40001", "2", "40002"));
    EXPECT_THAT(PassedUnder({"", "Canal"}), ElementsAre("40001", "3", "40002"));
    EXPECT_THAT(PassedUnder({" north cape ,2", " canal "}), ElementsAre("40001", "3", "40002"));
}

// The canal is opened as the last resort where it is only shut; what is forbidden never is.
TEST(StandingLimits, ForbidEvenAsTheLastResort) {
    EXPECT_THAT(PassedUnder({"1,2", ""}), ElementsAre("40001", "3", "40002"));
    EXPECT_THAT(PassedUnder({"1,2,3", ""}), ElementsAre("there is no way by sea from 40001 to 40002"));
}

TEST(StandingLimits, ForbidWhatARequestChooses) {
    const RouteResult result =
        EngineUnder({"North Cape", ""}).Plan({{"40001", {}, {}}, {"40002", {}, {{"1", "40001,40002"}}}});
    EXPECT_EQ(result.error, kRouteNoWay);
    EXPECT_EQ(result.message, "the passage North Cape is forbidden");
}

TEST(StandingLimits, HoldBesideThoseOfTheRequest) {
    const RouteResult result =
        EngineUnder({"1", ""}).Plan({{"40001", {}, {}}, {"40002", {}, {}}}, {}, {{"2"}, {}});
    ASSERT_EQ(result.error, kRouteOk) << result.message;
    EXPECT_THAT(result.stops[1].passedIds, ElementsAre("40001", "3", "40002"));
}

// The straight line north past the island, and that to the first node, cross the gate of the cape.
TEST(StandingLimits, HoldForTheWayFromAPosition) {
    const auto farthestNorth = [](const NearestResult& way) {
        double north = -90.0;
        for (const GeoPoint point : way.points) {
            north = std::max(north, point.y);
        }
        return north;
    };
    const NearestResult usual = EngineUnder({}).Nearest({-9, 11}, "40002");
    ASSERT_EQ(usual.error, kRouteOk) << usual.message;
    const NearestResult around = EngineUnder({"North Cape,Canal", ""}).Nearest({-9, 11}, "40002");
    ASSERT_EQ(around.error, kRouteOk) << around.message;
    EXPECT_GT(around.distanceKm, usual.distanceKm + 500.0);
    EXPECT_LT(farthestNorth(around), 11.1);
}

TEST(StandingLimits, ARouteOfTheCommandLineTellsThem) {
    std::string error;
    auto question = ReadRouteQuestion({"west", "east", "--explain"}, error);
    question->standing = *Read({"North Cape", ""}, error);
    const auto text = RouteText(*SmallNetwork(), {}, *question, error);
    ASSERT_TRUE(text) << error;
    EXPECT_THAT(*text, HasSubstr("- South Cape\n"));
    EXPECT_THAT(*text, HasSubstr("forbidden: North Cape, Canal\n"));
}

TEST(StandingLimits, WrongListsAreRefusedWithTheWord) {
    std::string error;
    EXPECT_FALSE(Read({"North Cape, Atlantis", ""}, error));
    EXPECT_EQ(error, "passages_forbidden: there is no passage \"Atlantis\"");
    EXPECT_FALSE(Read({"", "Kanal"}, error));
    EXPECT_EQ(error, "passages_opened: there is no passage \"Kanal\"");
    EXPECT_FALSE(Read({"1,,2", ""}, error));
    EXPECT_EQ(error, "passages_forbidden: there is no passage \"\"");
    EXPECT_FALSE(Read({"Canal", "3"}, error));
    EXPECT_EQ(error, "passages_opened: passage 3 stands in passages_forbidden, too");
    const auto none = Read({"  ", ""}, error);
    ASSERT_TRUE(none);
    EXPECT_THAT(none->forbidden, IsEmpty());
}

}  // namespace
}  // namespace Tarvik::Server
