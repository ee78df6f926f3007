// SPDX-License-Identifier: MIT
// Replies are read by the plug-in's own parser, requests are made by its own functions.
#include <filesystem>

#include <gmock/gmock.h>

#include <tarvik/util/Jsona.h>

#include "host/server/graph/adapter/GraphRouteSource.h"
#include "host/server/graph/adapter/RouteMessages.h"
#include "host/server/graph/tests/SmallSea.h"
#include "seaplan/calculation/RouteMessages.h"

namespace Tarvik::Server {

namespace {

using Seaplan::RouteStops;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using Util::Jsona;

class GraphRouteSourceTest : public ::testing::Test {
  protected:
    RouteStops StopsOf(const std::string& request) {
        Jsona reply;
        EXPECT_TRUE(reply.parse(source_.Plan(request)));
        RouteStops stops;
        EXPECT_EQ(Seaplan::ParseRouteReply(reply, stops), 0) << source_.Plan(request);
        return stops;
    }
    /// "eid emsg" of a refused request, which the plug-in's parser refuses as well.
    static std::string Refusal(const std::string& text) {
        Jsona reply;
        EXPECT_TRUE(reply.parse(text)) << text;
        RouteStops stops;
        EXPECT_EQ(Seaplan::ParseRouteReply(reply, stops), -1) << text;
        return std::to_string(reply.getv("eid", 0)) + " " + reply.getv("emsg", "");
    }
    GraphRouteSource source_{SmallNetwork()};
};

TEST_F(GraphRouteSourceTest, AnswersAWholeListWithOneStopForEveryPort) {
    const RouteStops stops = StopsOf(Seaplan::RouteRequestText({"40001", "40002", "40001"}));
    ASSERT_EQ(stops.size(), 3u);
    EXPECT_EQ(stops[0].point_cd, "40001");
    EXPECT_TRUE(stops[0].routes.empty());
    EXPECT_EQ(stops[0].distance, 0.0F);
    const auto& east = stops[1];
    EXPECT_EQ(east.point_cd, "40002");
    EXPECT_EQ(east.rp_id_str, "40001,1,40002");
    ASSERT_EQ(east.routes.size(), 2u);
    EXPECT_EQ(east.routes[0].route, "1");
    EXPECT_EQ(east.routes[0].from_cd, "40001");
    EXPECT_EQ(east.routes[0].end_cd, "1");
    EXPECT_THAT(east.routes[0].pointset, StartsWith("-10,0|"));
    EXPECT_EQ(east.routes[1].end_cd, "40002");
    EXPECT_NEAR(static_cast<double>(east.distance), 2 * GeodesicKm({-10, 0}, {0, 12}) / kKmPerNm, 2.0);
    ASSERT_EQ(east.rp_groups.size(), 1u);
    EXPECT_EQ(east.rp_groups[0].leg, 1);
    EXPECT_EQ(east.rp_groups[0].rp_id, "1");
    EXPECT_EQ(east.rp_groups[0].range, "40001,40002");
    EXPECT_THAT(east.rp_groups[0].alternatives, ElementsAre("2", "3"));
    EXPECT_EQ(stops[2].point_cd, "40001");
    EXPECT_NEAR(static_cast<double>(stops[2].distance), static_cast<double>(east.distance), 0.1);
}

TEST_F(GraphRouteSourceTest, TheReplyHasEveryKeyInItsKind) {
    Jsona reply;
    ASSERT_TRUE(reply.parse(source_.Plan(Seaplan::RouteRequestText({"40001", "40002"}))));
    ASSERT_EQ(reply.kind(), Jsona::Kind::Array);
    EXPECT_EQ(reply.getv("eid", -1), -1);
    for (int i = 0; i < 2; ++i) {
        const Jsona stop = reply.get(i);
        EXPECT_EQ(stop.get("distance").kind(), Jsona::Kind::Real);
        EXPECT_EQ(stop.get("routes").kind(), Jsona::Kind::Array);
        EXPECT_EQ(stop.get("rp_groups").kind(), Jsona::Kind::Array);
        for (const char* key : {"point_cd", "rp_id_str", "lock_rp_id_str"}) {
            EXPECT_EQ(stop.get(key).kind(), Jsona::Kind::Text) << key;
        }
    }
    const Jsona leg = reply.get(1).get("routes").get(0);
    for (const char* key : {"route", "from_cd", "end_cd", "pointset"}) {
        EXPECT_EQ(leg.get(key).kind(), Jsona::Kind::Text) << key;
    }
    EXPECT_EQ(leg.get("distance").kind(), Jsona::Kind::Real);
    EXPECT_EQ(reply.get(1).get("rp_groups").get(0).text(), "1=40001,40002;2|3");
}

TEST_F(GraphRouteSourceTest, AChosenAlternativeIsTakenAndLocked) {
    RouteStops stops = StopsOf(Seaplan::RouteRequestText({"40001", "40002"}));
    std::string request;
    ASSERT_TRUE(Seaplan::AlternativeRequestText(stops, "1", "3", request));
    stops = StopsOf(request);
    EXPECT_EQ(stops.at(1).rp_id_str, "40001,3,40002");
    ASSERT_EQ(stops[1].locks.size(), 1u);
    EXPECT_EQ(stops[1].locks[0].key, "3");
    EXPECT_EQ(stops[1].locks[0].item, "3=40001,40002");
    ASSERT_TRUE(Seaplan::AlternativeRequestText(stops, "3", "2", request));
    EXPECT_EQ(StopsOf(request).at(1).rp_id_str, "40001,2,40002");
}

TEST_F(GraphRouteSourceTest, TheDateLineIsWrittenWithoutFraction) {
    const RouteStops stops = StopsOf(Seaplan::RouteRequestText({"40003", "40004"}));
    EXPECT_THAT(stops.at(1).routes.at(0).pointset, HasSubstr("|180,10.0"));
    EXPECT_THAT(stops[1].routes[0].pointset, HasSubstr("|-180,10.0"));
}

TEST_F(GraphRouteSourceTest, RefusesWhatItCannotAnswerAndSaysWhy) {
    const auto plan = [this](const char* list) {
        return Refusal(source_.Plan(std::string(R"({"pointList":")") + list + "\"}"));
    };
    EXPECT_EQ(plan("40001#49999"), "61 there is no port or route point \"49999\"");
    EXPECT_EQ(plan("40001#40003"), "62 there is no way by sea from 40001 to 40003");
    EXPECT_EQ(plan("40001"), "60 a route needs at least two points");
    EXPECT_EQ(plan(""), "60 a route needs at least two points");
    EXPECT_EQ(plan("40001##40002"), "1 \"\" in pointList is no stop");
    EXPECT_EQ(plan("40001#40002|a|2"), "1 \"2\" in pointList is no choice of a passage");
    EXPECT_EQ(plan("40001#40002|a|2=b,c|d"), "1 \"40002|a|2=b,c|d\" in pointList is no stop");
    EXPECT_THAT(plan("40001#40002||7=40001,40002"), HasSubstr("the choice 7=40001,40002"));
    EXPECT_EQ(Refusal(source_.Plan("{}")), "1 the request has no text pointList");
    EXPECT_EQ(Refusal(source_.Plan("[]")), "1 the request is not an object");
    EXPECT_THAT(Refusal(source_.Plan("{")), StartsWith("1 the request does not parse: "));
    std::string many = "40001";
    for (std::size_t i = 0; i < RouteMessages::kMaxStops; ++i) {
        many += "#40001";
    }
    EXPECT_EQ(plan(many.c_str()), "1 the request names more than 200 stops");
}

TEST_F(GraphRouteSourceTest, TheNearestWayTakesThePortAsNumberOrText) {
    for (const char* port : {"40002", "\"40002\""}) {
        Jsona reply;
        ASSERT_TRUE(reply.parse(source_.Nearest(Seaplan::NearestRequestText("-12.5,1", port))));
        EXPECT_EQ(reply.getv("eid", -1), 0);
        EXPECT_THAT(reply.getv("pointset", ""), StartsWith("-12.5,1|"));
        EXPECT_THAT(reply.getv("pointset", ""), ::testing::EndsWith("|10,0"));
    }
}

TEST_F(GraphRouteSourceTest, TheNearestWayNeedsAPositionAndAPort) {
    EXPECT_EQ(Refusal(source_.Nearest(R"({"nr_point":[1],"dest_port":40002})")),
              "1 nr_point is not a pair of numbers");
    EXPECT_EQ(Refusal(source_.Nearest(R"({"nr_point":["a",2],"dest_port":40002})")),
              "1 nr_point is not a pair of numbers");
    EXPECT_EQ(Refusal(source_.Nearest(R"({"nr_point":[1,2]})")), "1 the request has no dest_port");
    EXPECT_EQ(Refusal(source_.Nearest(R"({"nr_point":[1,95.5],"dest_port":40002})")),
              "63 the position lies outside the earth");
    EXPECT_EQ(Refusal(source_.Nearest(R"({"nr_point":[1,2],"dest_port":"x"})")),
              "61 there is no port or route point \"x\"");
}

TEST(GraphRouteSource, AMissingNetworkFileIsNamedWithWhatToDo) {
    const std::string path =
        (std::filesystem::temp_directory_path() / "no-such-folder" / "network.bin").string();
    std::string error;
    EXPECT_EQ(GraphRouteSource::Open(path, error), nullptr);
    EXPECT_EQ(error, "cannot open the sea network file " + path + ". Build or install the client again.");
}

TEST(RouteMessages, PositionsHaveNoMoreDecimalsThanTheyNeed) {
    NearestResult result;
    result.points = {{180, -0.0}, {-180, 12.5}, {1.23456, -0.000001}};
    EXPECT_EQ(RouteMessages::WriteNearest(result), R"({"eid":0,"pointset":"180,0|-180,12.5|1.23456,0"})");
}

}  // namespace
}  // namespace Tarvik::Server
