// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/util/Geodesy.h>
#include <tarvik/util/Jsona.h>

#include "seaplan/controllers/voycal/VoyCalReply.h"

namespace Tarvik::Seaplan {

namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

VoyCalRoute RouteOf(const char* pointset) {
    VoyCalRoute route;
    ReadVoyCalRoute(pointset, route);
    return route;
}

double Km(double x1, double y1, double x2, double y2) {
    return Util::CircleLineUtl::CalculateDistance(x1, y1, x2, y2);
}

VoyCalPoints Points() {
    return {{"1", {1, 10, "1", "One"}}, {"2", {2, 20, "2", "Two"}}, {"3", {3, 30, "3", "Three"}}};
}

std::vector<VoyCalPort> PortsOf(const std::vector<std::string>& ids) {
    std::vector<VoyCalPort> ports;
    for (const auto& id : ids) {
        VoyCalPort port;
        port.point.id = id;
        port.point.name = "port " + id;
        ports.push_back(port);
    }
    return ports;
}

std::string IdsOf(const std::vector<VoyCalPoint>& alternatives) {
    std::string ids;
    for (const auto& point : alternatives) {
        ids += point.id;
    }
    return ids;
}

TEST(VoyCalRoute, SumsItsCorners) {
    const auto route = RouteOf("0,0|1,0|1,2");
    EXPECT_THAT(route.points, ElementsAre(VoyCalCorner{0, 0}, VoyCalCorner{1, 0}, VoyCalCorner{1, 2}));
    EXPECT_DOUBLE_EQ(route.distance, Km(0, 0, 1, 0) + Km(1, 0, 1, 2));
    EXPECT_EQ(route.crossing, -1);
    EXPECT_TRUE(RouteOf("").points.empty());
    EXPECT_EQ(RouteOf("5,5").distance, 0);
}

TEST(VoyCalRoute, TextIsSplitAtItsFirstComma) {
    EXPECT_THAT(RouteOf("1,2,3|x|4,5").points, ElementsAre(VoyCalCorner{1, 2}, VoyCalCorner{4, 5}));
}

TEST(VoyCalRoute, DateLineCountsHoweverItIsWritten) {
    for (const auto* pointset : {"170,0|180,0", "170,0|180.0,0", "170,0|+180,0", "170,0|1.8e2,0"}) {
        const auto route = RouteOf(pointset);
        EXPECT_EQ(route.crossing, 1) << pointset;
        EXPECT_EQ(route.points.at(1).x, 179.99) << pointset;
    }
    EXPECT_EQ(RouteOf("170,0|180.1,0").crossing, -1);
    EXPECT_EQ(RouteOf("-170,0|-180.00,0").points.at(1).x, -179.99);
}

TEST(VoyCalRoute, FirstMeetingWithTheDateLineIsTheCut) {
    const auto route = RouteOf("170,0|180,1|-180,1|-170,2|-180,3");
    EXPECT_EQ(route.crossing, 1);
    EXPECT_EQ(route.points.size(), 5);
    EXPECT_EQ(route.points[2].x, -179.99);
}

TEST(VoyCalRoute, CornerEqualToTheOneBeforeIsLeftOutWithItsMark) {
    const auto route = RouteOf("0,0|0,0|1,0|1.0,0.00");
    EXPECT_EQ(route.points.size(), 2);
    EXPECT_EQ(route.crossing, -1);
    const auto marked = RouteOf("179.99,0|180,0|-170,0");
    EXPECT_EQ(marked.crossing, -1) << "180 beside the line is the corner before";
    EXPECT_EQ(marked.points.size(), 2);
}

TEST(VoyCalGroup, RangesTellTheAlternatives) {
    VoyCalGroup group;
    ASSERT_TRUE(ReadVoyCalGroup("1=a,b;2|3.c,d;3", Points(), group));
    EXPECT_EQ(group.head.name, "One");
    EXPECT_EQ(group.head.y, 10);
    EXPECT_EQ(IdsOf(group.alternatives), "233");
    EXPECT_THAT(group.ranges, ElementsAre(Pair("a,b", "2|3"), Pair("c,d", "3")));
}

TEST(VoyCalGroup, HeadAloneHasNoAlternatives) {
    VoyCalGroup group;
    ASSERT_TRUE(ReadVoyCalGroup("2", Points(), group));
    EXPECT_EQ(group.head.id, "2");
    EXPECT_TRUE(group.alternatives.empty());
    EXPECT_TRUE(group.ranges.empty());
}

TEST(VoyCalGroup, OddItemsAreSkippedAndLaterRangesReplaceEarlier) {
    VoyCalGroup group;
    ASSERT_TRUE(ReadVoyCalGroup("1=a,b.c,d;2;3.c,d;9|3=x", Points(), group));
    EXPECT_EQ(IdsOf(group.alternatives), "23") << "the unknown one is left out";
    EXPECT_THAT(group.ranges, ElementsAre(Pair("c,d", "9|3"))) << "parts behind the second do not count";
}

TEST(VoyCalGroup, UnknownHeadFails) {
    VoyCalGroup group;
    EXPECT_FALSE(ReadVoyCalGroup("9=a,b;2", Points(), group));
    EXPECT_FALSE(ReadVoyCalGroup("", Points(), group));
    EXPECT_FALSE(ReadVoyCalGroup("=a,b;2", Points(), group));
}

TEST(VoyCalReply, FillsThePorts) {
    auto ports = PortsOf({"41", "42"});
    ASSERT_TRUE(ReadVoyCalReply(
        R"([{point_cd:"41"},{point_cd:"42",distance:5,routes:[{from_cd:"41",end_cd:"7",pointset:"0,0|1,0",distance:9},)"
        R"({from_cd:"7",end_cd:"42",pointset:"1,0|2,0"}],rp_groups:["1=a,b;2",""],rp_id_str:"1,7",lock_rp_id_str:"x=y"}])",
        Points(), ports));
    EXPECT_EQ(ports[1].point.name, "port 42");
    ASSERT_EQ(ports[1].routes.size(), 2);
    EXPECT_EQ(ports[1].routes[0].from_cd + ports[1].routes[0].end_cd, "417");
    EXPECT_DOUBLE_EQ(ports[1].distance, Km(0, 0, 1, 0) + Km(1, 0, 2, 0)) << "the reply's own are not used";
    EXPECT_EQ(ports[1].groups.size(), 1);
    EXPECT_EQ(ports[1].rp_id_str, "1,7");
    EXPECT_EQ(ports[1].lock_rp_id_str, "x=y");
    EXPECT_EQ(ports[0].distance, 0);
}

TEST(VoyCalReply, OtherRepliesFailAndLeaveThePorts) {
    for (const auto* reply :
         {"", "x", "[]", "{}", "5", R"([{point_cd:"41"}])", R"({eid:-1})",
          R"({eid:-1,a:{point_cd:"41"},b:{point_cd:"42"}})", R"({eid:{point_cd:"41"},b:{point_cd:"42"}})",
          R"([{point_cd:"42"},{point_cd:"41"}])", R"([{point_cd:"41"},{point_cd:"42"},{point_cd:"43"}])",
          R"([{point_cd:"41"},{point_cd:"42",rp_groups:["9=a,b;1"]}])", R"([{point_cd:"41"},{}])"}) {
        auto ports = PortsOf({"41", "42"});
        ports[1].distance = 77;
        EXPECT_FALSE(ReadVoyCalReply(reply, Points(), ports)) << reply;
        EXPECT_EQ(ports.size(), 2) << reply;
        EXPECT_EQ(ports[1].distance, 77) << reply;
    }
}

TEST(VoyCalReply, DateLineIsLookedForInEveryRoute) {
    auto ports = PortsOf({"41", "42"});
    EXPECT_FALSE(MeetsDateLine(ports));
    ports[1].routes = {RouteOf("0,0|1,0"), RouteOf("170,0|180,0")};
    EXPECT_TRUE(MeetsDateLine(ports));
    EXPECT_FALSE(MeetsDateLine({}));
}

TEST(VoyCalSample, HasThreeStopsWithThirteenAndFourLegs) {
    Util::Jsona root;
    ASSERT_TRUE(root.parse(SampleReply())) << root.ErrorOffset();
    ASSERT_EQ(root.size(), 3);
    EXPECT_EQ(root.get(0).getv("point_cd", ""), "40358");
    EXPECT_EQ(root.get(1).getv("point_cd", ""), "41117");
    EXPECT_EQ(root.get(1).getv("distance", 0.0), 20353.5);
    EXPECT_EQ(root.get(1).get("routes").size(), 13);
    EXPECT_EQ(root.get(1).get("rp_groups").size(), 5);
    EXPECT_EQ(root.get(1).get("routes").get(0).getv("pointset", ""),
              "117.75,38.9833|122.75,37.40761|122.7867,37.395");
    EXPECT_EQ(root.get(1).get("routes").get(0).getv("distance", 0), 474);
    EXPECT_EQ(root.get(2).get("routes").size(), 4);
    EXPECT_EQ(root.get(2).get("rp_groups").size(), 0);
}

// Each leg begins where the one before ended, so that the drawn line has no gap.
TEST(VoyCalSample, LegsFollowOneAnother) {
    Util::Jsona root;
    ASSERT_TRUE(root.parse(SampleReply()));
    std::string id = root.get(0).getv("point_cd", "");
    VoyCalCorner end{117.75, 38.9833};
    for (int stop = 1; stop < 3; ++stop) {
        const auto routes = root.get(stop).get("routes");
        for (int i = 0; i < routes.size(); ++i) {
            EXPECT_EQ(routes.get(i).getv("from_cd", ""), id);
            const auto route = RouteOf(routes.get(i).getv("pointset", "").c_str());
            ASSERT_GE(route.points.size(), 2);
            EXPECT_EQ(route.points.front(), end) << stop << " " << i;
            end = route.points.back();
            id = routes.get(i).getv("end_cd", "");
        }
        EXPECT_EQ(id, root.get(stop).getv("point_cd", ""));
    }
}

}  // namespace
}  // namespace Tarvik::Seaplan
