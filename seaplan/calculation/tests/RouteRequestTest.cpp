// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/calculation/RouteMessages.h"

namespace Tarvik::Seaplan {

namespace {

RouteStop StopOf(const std::string& id, std::vector<RouteSegment> routes) {
    RouteStop stop;
    stop.point_cd = id;
    stop.routes = std::move(routes);
    return stop;
}

RouteStops ThreeStops() {
    RouteStops stops{StopOf("40389", {}),
                     StopOf("40208", {{"1", "40389", "131", "", 0}, {"2", "131", "40208", "", 0}}),
                     StopOf("40300", {{"3", "40208", "40300", "", 0}})};
    stops[1].rp_groups.push_back({1, "118", "40389,40208", {"105", "116"}});
    stops[1].locks = {{"105", "105=a,b"}, {"7", "7=c,d"}};
    stops[2].rp_groups.push_back({2, "118", "x,y", {}});
    return stops;
}

TEST(RouteRequest, JoinsTheIdsOfTheWholeList) {
    EXPECT_EQ(RouteRequestText({"1", "2", "3"}),
              R"({"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"1#2#3"})");
    EXPECT_EQ(RouteRequestText({"", ""}),
              R"({"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"#"})");
}

TEST(AlternativeRequest, PutsTheChoiceBehindItsStop) {
    std::string text;
    ASSERT_TRUE(AlternativeRequestText(ThreeStops(), "118", "105", text));
    EXPECT_EQ(text, R"({"rp_id":"105","orig_rp_id":"118","leg":1,"rp_group":"40389,40208;105|116|118",)"
                    R"("pointList":"40389#40208|40389,131,40208|105=40389,40208.7=c,d#40300"})");
}

TEST(AlternativeRequest, OtherLocksOfTheStopStay) {
    std::string text;
    ASSERT_TRUE(AlternativeRequestText(ThreeStops(), "118", "116", text));
    EXPECT_NE(text.find("|116=40389,40208.105=a,b.7=c,d#"), std::string::npos) << text;
}

TEST(AlternativeRequest, FailsWithoutGroupOrSegments) {
    std::string text = "as it was";
    EXPECT_FALSE(AlternativeRequestText(ThreeStops(), "999", "105", text));
    auto stops = ThreeStops();
    stops[1].routes.clear();
    EXPECT_FALSE(AlternativeRequestText(stops, "118", "105", text));
    EXPECT_FALSE(AlternativeRequestText({}, "118", "105", text));
    EXPECT_EQ(text, "as it was");
}

TEST(AlternativeRequest, GroupWithoutAnIdIsNeverMatched) {
    auto stops = ThreeStops();
    stops[1].rp_groups[0].rp_id = "";
    std::string text;
    EXPECT_FALSE(AlternativeRequestText(stops, "", "105", text));
}

TEST(AlternativeRequest, FirstGroupOfAllStopsIsTheOneThatChanges) {
    auto stops = ThreeStops();
    stops[1].rp_groups.push_back({1, "118", "second,group", {"9"}});
    std::string text;
    ASSERT_TRUE(AlternativeRequestText(stops, "118", "105", text));
    EXPECT_EQ(text.find("second,group"), std::string::npos) << text;
    EXPECT_EQ(text.find("x,y"), std::string::npos) << text;
}

TEST(AlternativeRequest, GroupWithoutAlternativesNamesOnlyTheOldPoint) {
    auto stops = ThreeStops();
    stops[1].rp_groups.clear();
    std::string text;
    ASSERT_TRUE(AlternativeRequestText(stops, "118", "105", text));
    EXPECT_EQ(text, R"({"rp_id":"105","orig_rp_id":"118","leg":2,"rp_group":"x,y;118",)"
                    R"("pointList":"40389#40208#40300|40208,40300|105=x,y"})");
}

TEST(NearestRequest, WritesNumbersBare) {
    EXPECT_EQ(NearestRequestText("121.5,31.25", "40208"), R"({"nr_point":[121.5,31.25],"dest_port":40208})");
}

}  // namespace
}  // namespace Tarvik::Seaplan
