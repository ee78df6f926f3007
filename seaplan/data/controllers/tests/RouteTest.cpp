// SPDX-License-Identifier: MIT
#include "seaplan/data/controllers/tests/ScheduleFixture.h"

#include <fstream>
#include <sstream>

namespace Tarvik::Seaplan {
namespace {

using Texts = std::vector<std::string>;

/// The route with a point 118 on it that has the alternatives 105 and 116.
constexpr const char* kRouteWithAlternatives =
    R"([{point_cd:"40001",distance:0,routes:[],rp_groups:[]},{point_cd:"40002",distance:1.5,)"
    R"(routes:[{route:"1",from_cd:"40001",end_cd:"118",pointset:"0.000,0.000|0.500,0.000",distance:1.0},)"
    R"({route:"2",from_cd:"118",end_cd:"40002",pointset:"0.500,0.000|1.000,0.000",distance:1.0}],)"
    R"(rp_groups:["118=40001,40002;105|116"],rp_id_str:"118"}])";

void click(const char* event, const std::string& id, std::string& answer) {
    const auto answers = Core::TrvKernel::Instance()->RaiseTrvEvent(event, const_cast<std::string*>(&id));
    answer = answers.size() == 1 && answers[0] != nullptr ? static_cast<const char*>(answers[0]) : "";
}

class RouteTest : public ScheduleFixture {
  protected:
    RouteTest() {
        std::filesystem::create_directories(Folder() / "businessdata");
        std::filesystem::copy_file(std::filesystem::path(__FILE__).parent_path() / "points.db",
                                   Folder() / "businessdata" / "trvdb.db");
    }
    std::string clickPoint(const std::string& id) {
        std::string answer;
        click("TRV_MAP_LCLICK_VOYAGETYPE", id, answer);
        return answer;
    }
    std::string clickAlternative(const std::string& id) {
        std::string answer;
        click("TRV_MAP_LCLICK_RPOINTTYPE", id, answer);
        return answer;
    }
    std::filesystem::path cacheFile() const { return Folder() / "businessdata" / "seaplan" / "Ports.dat"; }
    std::string cacheText() const {
        std::ifstream in(cacheFile());
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }
};

TEST_F(RouteTest, WholeListLadder) {
    EXPECT_EQ(module.GetRoute(PortCallRows(1), rows, true), -1);
    EXPECT_EQ(module.GetRoute(typedRows(), rows, true), -2);
    host.Reply(1, "{eid:5}");
    EXPECT_EQ(module.GetRoute(typedRows(), rows, true), -3);
    host.Reply(1, R"([{point_cd:"40001"}])");
    EXPECT_EQ(module.GetRoute(typedRows(), rows, true), -5);
    EXPECT_TRUE(module.CurrentStops().empty());
}

TEST_F(RouteTest, RowsTakeIdAndDistanceFromTheRouteAndKeepWhatWasEntered) {
    host.Reply(1, kRouteAb);
    PortCallRows typed = typedRows();
    typed[1].ppi = "other";
    typed[1].psp = 12.0F;
    typed[1].pw = 0.25F;
    EXPECT_EQ(module.GetRoute(typed, rows, true), 0);
    EXPECT_EQ(rows[1].ppi, "40002");
    EXPECT_EQ(rows[1].ppn, "B");
    EXPECT_EQ(rows[1].psp, 12.0F);
    EXPECT_EQ(rows[1].pw, 0.25F);
    EXPECT_NEAR(rows[1].distance, 60.107F, 0.01F) << "nautical miles worked out from the points";
}

TEST_F(RouteTest, CachedLegIsFetchedOnceAndMeasuredInKilometres) {
    host.Reply(1, kRouteAb);
    EXPECT_EQ(module.GetRoute(typedRows(), rows, false), 0);
    EXPECT_NEAR(rows[1].distance, 111.319F, 0.01F);
    EXPECT_EQ(cacheText().rfind("2024-03-01 00:00:00:-:A:-:B:-:40001:-:40002:---:", 0), 0U) << cacheText();
    EXPECT_EQ(module.GetRoute(typedRows(), rows, false), 0);
    EXPECT_NEAR(rows[1].distance, 111.319F, 0.01F);
    EXPECT_EQ(host.requests.size(), 1U);
}

TEST_F(RouteTest, CacheFileServesTheNextRun) {
    host.Reply(1, kRouteAb);
    module.GetRoute(typedRows(), rows, false);
    LegCache cache;
    EXPECT_EQ(module.LoadCache("", cache), 0);
    EXPECT_EQ(cache.count("A-B"), 1U);
    EXPECT_EQ(cache.count("B-A"), 0U) << "direction matters";
}

TEST_F(RouteTest, MissingCacheFileIsAnEmptyCache) {
    LegCache cache;
    EXPECT_EQ(module.LoadCache("none.dat", cache), 0);
    EXPECT_TRUE(cache.empty());
}

TEST_F(RouteTest, LegOlderThanNinetyDaysIsFetchedAgainAndOneOfExactlyThatAgeIsNot) {
    host.Reply(1, kRouteAb);
    module.GetRoute(typedRows(), rows, false);
    clock.AdvanceSeconds(INT64_C(2160) * 3600);
    EXPECT_EQ(module.GetRoute(typedRows(), rows, false), 0);
    EXPECT_EQ(host.requests.size(), 1U);
    clock.AdvanceSeconds(1);
    EXPECT_EQ(module.GetRoute(typedRows(), rows, false), -6);
    host.Reply(1, kRouteAb);
    EXPECT_EQ(module.GetRoute(typedRows(), rows, false), 0);
    EXPECT_EQ(host.requests.size(), 3U);
}

TEST_F(RouteTest, CacheLadder) {
    RouteStops stops;
    EXPECT_EQ(module.GetStopsByCache(PortCallRows(1), stops), -1);
    EXPECT_EQ(module.GetStopsByCache(typedRows(), stops), -3);
    host.Reply(1, R"([{point_cd:"40001"}])");
    EXPECT_EQ(module.GetStopsByCache(typedRows(), stops), -3) << "a leg has two stops";
}

TEST_F(RouteTest, GroupsOfACachedLegCarryTheIndexOfTheirRow) {
    host.Reply(1, kRouteAb);
    host.Reply(1, kRouteWithAlternatives);
    PortCallRows three = typedRows();
    three.push_back(three[1]);
    three[2].ppn = "C";
    RouteStops stops;
    EXPECT_EQ(module.GetStopsByCache(three, stops), 0);
    ASSERT_EQ(stops.size(), 3U);
    ASSERT_EQ(stops[2].rp_groups.size(), 1U);
    EXPECT_EQ(stops[2].rp_groups[0].leg, 2);
}

TEST_F(RouteTest, ClickOnARoutePointShowsItsAlternatives) {
    host.Reply(1, kRouteWithAlternatives);
    module.GetRoute(typedRows(), rows, true);
    EXPECT_EQ(clickPoint("118"), "-1") << "route points are known once the route is drawn";
    EXPECT_EQ(module.DrawCurrentRoute(), 0);
    host.chartCalls.clear();
    EXPECT_EQ(clickPoint("118"), "");
    const auto labels = host.ChartCallsOf("TRV_MAP_ADD_POINT_LABEL");
    ASSERT_EQ(labels.size(), 2U);
    EXPECT_EQ(labels[0].id, "105");
    EXPECT_EQ(labels[0].type, "RPOINTTYPE");
    EXPECT_EQ(labels[0].points, Texts{"South Cape"});
    EXPECT_EQ(labels[1].id, "116");
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_SET_EXTENT").size(), 1U);
    EXPECT_EQ(clickPoint("none"), "-1");
}

TEST_F(RouteTest, ClickOnAPointOfNoGroupRemovesTheAlternativesShown) {
    host.Reply(1, kRouteWithAlternatives);
    module.GetRoute(typedRows(), rows, true);
    module.DrawCurrentRoute();
    host.chartCalls.clear();
    EXPECT_EQ(clickPoint("105"), "");
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_DEL_OBJECT_BY_TYPE").size(), 1U);
    EXPECT_TRUE(host.ChartCallsOf("TRV_MAP_ADD_POINT_LABEL").empty());
}

TEST_F(RouteTest, ChosenAlternativeAsksForTheOtherRouteAndRedraws) {
    EXPECT_EQ(clickAlternative("105"), "-1") << "nothing was clicked before";
    host.Reply(1, kRouteWithAlternatives);
    module.GetRoute(typedRows(), rows, true);
    module.DrawCurrentRoute();
    clickPoint("118");
    EXPECT_EQ(clickAlternative("105"), "-3");
    EXPECT_EQ(host.Texts().back(),
              R"(1 {"rp_id":"105","orig_rp_id":"118","leg":1,"rp_group":"40001,40002;105|116|118",)"
              R"("pointList":"40001#40002|40001,118,40002|105=40001,40002"})");
    host.Reply(1, "{eid:1}");
    EXPECT_EQ(clickAlternative("105"), "-4");
    EXPECT_EQ(module.CurrentStops().size(), 2U) << "a failed request leaves the stops";
    host.Reply(1, kRouteAb);
    host.chartCalls.clear();
    EXPECT_EQ(clickAlternative("105"), "");
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_ADD_LINE").size(), 1U);
    EXPECT_EQ(clickAlternative("105"), "-2") << "the new route has no such group";
}

TEST_F(RouteTest, BookOfTheCurrentRouteNeedsTheTableOfPoints) {
    host.Reply(1, kRouteWithAlternatives);
    module.GetRoute(typedRows(), rows, true);
    BookPoints book;
    EXPECT_EQ(module.BookFromCurrentStops(book), 0);
    ASSERT_EQ(book.size(), 3U);
    EXPECT_EQ(book[0].psn, "A");
    EXPECT_EQ(book[1].psn, "Mid Cape");
    EXPECT_EQ(book[2].pst, PortPoint);
    VoyPortCallModule second(&store);
    std::filesystem::remove(Folder() / "businessdata" / "trvdb.db");
    EXPECT_EQ(second.BookFromCurrentStops(book), -2);
}

TEST(ClickChannelTest, ChannelsComeAndGoWithTheModule) {
    const auto* kernel = Core::TrvKernel::Instance();
    VoyageStore store;
    {
        const VoyPortCallModule module(&store);
        EXPECT_TRUE(kernel->IsBound("TRV_MAP_LCLICK_VOYAGETYPE"));
        EXPECT_TRUE(kernel->IsBound("TRV_MAP_LCLICK_RPOINTTYPE"));
    }
    EXPECT_FALSE(kernel->IsBound("TRV_MAP_LCLICK_VOYAGETYPE"));
    EXPECT_FALSE(kernel->IsBound("TRV_MAP_LCLICK_RPOINTTYPE"));
}

}  // namespace
}  // namespace Tarvik::Seaplan
