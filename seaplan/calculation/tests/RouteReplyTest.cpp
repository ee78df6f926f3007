// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tarvik/util/Geodesy.h>

#include "seaplan/calculation/RouteMessages.h"
#include "seaplan/data/Position.h"

namespace Tarvik::Seaplan {

namespace {

using ::testing::ElementsAre;

int Parse(const std::string& text, RouteStops& stops) {
    Util::Jsona reply;
    EXPECT_TRUE(reply.parse(text)) << text;
    return ParseRouteReply(reply, stops);
}

/// A stop whose two segments pass the points 105, 104 and 116.
std::string StopWithGroups(const std::string& groups) {
    return R"([{point_cd:"40389"},{point_cd:"40208",routes:[{route:"1",from_cd:"105",end_cd:"104",pointset:"0,0|1,0"},)"
           R"({route:"2",from_cd:"104",end_cd:"116",pointset:"1,0|2,0"}],rp_groups:[)" +
           groups + "]}]";
}

TEST(RouteReply, ReadsStopsSegmentsGroupsAndLocks) {
    RouteStops stops;
    ASSERT_EQ(
        Parse(
            R"([{"point_cd":"40389","distance":0,"routes":[],"rp_groups":[],"rp_id_str":"","lock_rp_id_str":""},
        {"point_cd":"40208","distance":9999.5,"routes":[{"route":"7","from_cd":"40389","end_cd":"131",
        "pointset":"0,0|1,0|1,1","distance":474}],"rp_groups":["","118=40389,40208;105|116"],"rp_id_str":"131,104",
        "lock_rp_id_str":"5=a,b.nothing.6=c,d"}])",
            stops),
        0);
    ASSERT_EQ(stops.size(), 2);
    EXPECT_EQ(stops[0].point_cd, "40389");
    EXPECT_TRUE(stops[0].routes.empty());
    EXPECT_EQ(stops[1].rp_id_str, "131,104");
    const auto& segment = stops[1].routes.at(0);
    EXPECT_EQ(segment.route + segment.from_cd + segment.end_cd + segment.pointset, "7403891310,0|1,0|1,1");
    const double km = Util::CircleLineUtl::CalculateDistance(0, 0, 1, 0) +
                      Util::CircleLineUtl::CalculateDistance(1, 0, 1, 1);
    EXPECT_FLOAT_EQ(segment.distance, static_cast<float>(km / 1.852)) << "the reply's own number is not used";
    EXPECT_EQ(stops[1].distance, segment.distance);
    const auto& group = stops[1].rp_groups.at(0);
    EXPECT_EQ(group.leg, 1);
    EXPECT_EQ(group.rp_id, "118");
    EXPECT_EQ(group.range, "40389,40208");
    EXPECT_THAT(group.alternatives, ElementsAre("105", "116"));
    ASSERT_EQ(stops[1].locks.size(), 2);
    EXPECT_EQ(stops[1].locks[0].key, "5");
    EXPECT_EQ(stops[1].locks[1].item, "6=c,d");
}

TEST(RouteReply, StopDistanceIsTheSumOfItsSegments) {
    RouteStops stops;
    ASSERT_EQ(Parse(StopWithGroups(""), stops), 0);
    EXPECT_FLOAT_EQ(stops[1].distance, stops[1].routes[0].distance + stops[1].routes[1].distance);
    EXPECT_NEAR(stops[1].distance, 120.2, 0.1);
}

struct BadReply {
    const char* text;
    int code;
};

TEST(RouteReply, FailuresLeaveNoStops) {
    for (const auto& [text, code] :
         {BadReply{R"({"eid":0})", -1}, BadReply{R"({eid:12,"ed":"x"})", -1}, BadReply{"[]", -2},
          BadReply{"{}", -2}, BadReply{"5", -2}, BadReply{R"({"eid":-1})", -2},
          BadReply{R"([{point_cd:"1"},{routes:[{pointset:"12"}]}])", -3},
          BadReply{R"([{routes:[{pointset:"|"}]}])", -3}, BadReply{R"([{rp_groups:["118"]}])", -4},
          BadReply{R"([{rp_groups:["118=1,2"]}])", -4}, BadReply{R"([{rp_groups:["118=1,2;3."]}])", -5},
          BadReply{R"([{rp_groups:["118=1,2.3,4;5"]}])", -5},
          BadReply{R"([{rp_groups:["118=1,2;3.4,5;6"]}])", -6}}) {
        RouteStops stops(3);
        EXPECT_EQ(Parse(text, stops), code) << text;
        EXPECT_TRUE(stops.empty()) << text;
    }
}

TEST(RouteReply, ErrorIdOfMinusOneIsNoError) {
    RouteStops stops;
    EXPECT_EQ(Parse(R"({"eid":-1,"first":{"point_cd":"7"}})", stops), 0);
    ASSERT_EQ(stops.size(), 1) << "an object is walked by its members";
    EXPECT_EQ(stops[0].point_cd, "7");
    EXPECT_EQ(Parse(R"({"eid":"5","first":{"point_cd":"7"}})", stops), 0) << "a text is no error number";
}

struct VariantCase {
    const char* group;
    const char* range;
};

// The chain of the stop is 105, 104, 116: places 0, 1, 2.
TEST(RouteReply, ChoosesTheVariantWithTheSmallestSpan) {
    for (const auto& [group, range] : {
             VariantCase{R"("118=105,116;1.105,104;2")", "105,104"},
             VariantCase{R"("118=105,104;1.105,116;2")", "105,104"},
             VariantCase{R"("118=116,105;1.8,9;2")", "116,105"},
             VariantCase{R"("118=105,104;1.104,116;2")", "104,116"},  // a tie: the later
             VariantCase{R"("118=116,9;1.104,8;2")", "104,8"},  // the single end goes on to the next variant
             VariantCase{R"("118=105,104;1.118=105,116;2")", "105,104"},
         }) {
        RouteStops stops;
        ASSERT_EQ(Parse(StopWithGroups(group), stops), 0) << group;
        ASSERT_EQ(stops[1].rp_groups.size(), 1) << group;
        EXPECT_EQ(stops[1].rp_groups[0].range, range) << group;
        EXPECT_EQ(stops[1].rp_groups[0].rp_id, "118") << group;
        EXPECT_EQ(stops[1].rp_groups[0].leg, 1) << group;
    }
}

TEST(RouteReply, NoVariantIsChosenWithoutSpanOrComma) {
    for (const auto* group :
         {R"("118=7,8;1.9,10;2")", R"("118=105;1.104,116;2")", R"("118=105,7;1.8,9;2")"}) {
        RouteStops stops;
        EXPECT_EQ(Parse(StopWithGroups(group), stops), -6) << group;
    }
}

TEST(RouteReply, StopOfOneSegmentHasNoVariantToChoose) {
    RouteStops stops;
    EXPECT_EQ(Parse(R"([{point_cd:"1"},{routes:[{from_cd:"105",end_cd:"104",pointset:"0,0|1,0"}],)"
                    R"(rp_groups:["118=105,104;1.104,105;2"]}])",
                    stops),
              -6)
        << "though both ends of the variants are on its way";
    EXPECT_EQ(Parse(R"([{point_cd:"1"},{routes:[{from_cd:"105",end_cd:"104",pointset:"0,0|1,0"}],)"
                    R"(rp_groups:["118=105,104;1"]}])",
                    stops),
              0)
        << "a group without variants needs no choice";
}

TEST(RouteReply, VariantThatHoldsAnEqualsSignIsPrefixedAllTheSame) {
    RouteStops stops;
    ASSERT_EQ(Parse(StopWithGroups(R"("118=7,116;1.118=105,104;2")"), stops), 0);
    EXPECT_EQ(stops[1].rp_groups.at(0).range, "118=105,104") << "116 then 104 span one place";
}

struct GroupCase {
    const char* text;
    int code;
    const char* id;
    const char* range;
    std::vector<std::string> alternatives;
};

TEST(RoutePointGroup, IsReadByItsFirstSeparators) {
    for (const auto& c :
         {GroupCase{"118=1,2;3|4", 0, "118", "1,2", {"3", "4"}}, GroupCase{"=1,2;3", 0, "", "1,2", {"3"}},
          GroupCase{"118=1,2;", 0, "118", "1,2", {}}, GroupCase{"a=b=c;d;e|f", 0, "a", "b=c", {"d;e", "f"}},
          GroupCase{"a;b=c;d", 0, "a;b", "c", {"d"}}, GroupCase{"118;1,2", -2, "", "", {}},
          GroupCase{"", -2, "", "", {}}, GroupCase{"a;b=c", -3, "", "", {}}}) {
        RoutePointGroup group;
        EXPECT_EQ(ParseRoutePointGroup(c.text, group), c.code) << c.text;
        EXPECT_EQ(group.rp_id, c.id) << c.text;
        EXPECT_EQ(group.range, c.range) << c.text;
        EXPECT_EQ(group.alternatives, c.alternatives) << c.text;
    }
}

TEST(PointsetLength, SumsNeighbouringPairs) {
    const auto degree = static_cast<float>(Util::CircleLineUtl::CalculateDistance(0, 0, 1, 0));
    for (const auto* pointset : {"0,0|1,0", "0,0|0,0|1,0|1,0", "0,0|nothing|1,0", "|0,0||1,0|"}) {
        float km = -1;
        EXPECT_EQ(PointsetLength(pointset, km), 0) << pointset;
        EXPECT_FLOAT_EQ(km, degree) << pointset;
    }
    for (const auto* pointset : {"", "5,6", "5,6|x"}) {
        float km = -1;
        EXPECT_EQ(PointsetLength(pointset, km), 0) << pointset;
        EXPECT_EQ(km, 0) << pointset;
    }
}

TEST(PointsetLength, PointWithoutCommaLeavesTheOneBeforeInPlace) {
    float km = -1;
    EXPECT_EQ(PointsetLength("10,0|nothing|11,0|x|y|12,0", km), 0);
    EXPECT_FLOAT_EQ(km, static_cast<float>(2 * Util::CircleLineUtl::CalculateDistance(10, 0, 11, 0)));
}

TEST(PointsetLength, FailsWithoutPoints) {
    float km = 0;
    EXPECT_EQ(PointsetLength("|", km), -2);
    EXPECT_EQ(PointsetLength("x|1,0", km), -3);
}

}  // namespace
}  // namespace Tarvik::Seaplan
