// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <sstream>

#include "seaplan/calculation/LegCacheText.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/tests/RouteFixture.h"

namespace Tarvik::Seaplan {

namespace {

class LegCacheTest : public RouteFixture {
  protected:
    std::string CacheText() const {
        std::ifstream in(folder.LegCacheFile());
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }
    void WriteCache(const std::string& text) const {
        std::filesystem::create_directories(folder.LegCacheFile().parent_path());
        std::ofstream(folder.LegCacheFile()) << text;
    }
    /// A line for the leg from A to B with one segment.
    static std::string LineAb(const std::string& stamp, const std::string& pointset) {
        return stamp + ":-:A:-:B:-:40001:-:40002:---:1:-:40001:-:40002:-:" + pointset + ":---::---:\n";
    }
    static PortCallRows ReversedRows() {
        PortCallRows typed = TypedRows();
        std::swap(typed[0], typed[1]);
        return typed;
    }
    RouteStops stops;
};

TEST_F(LegCacheTest, LegIsFetchedOnceAndMeasuredInNauticalMiles) {
    host.Reply(1, kRouteAb);
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, false), 0);
    EXPECT_NEAR(rows[1].distance, 60.107F, 0.01F);
    EXPECT_EQ(CacheText(),
              "2024-03-01 00:00:00:-:A:-:B:-:40001:-:40002:---:1:-:40001:-:40002:-:"
              "0.000,0.000|0.500,0.000|1.000,0.000:---::---:\n");
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, false), 0);
    EXPECT_NEAR(rows[1].distance, 60.107F, 0.01F);
    EXPECT_EQ(host.Texts(),
              Texts{R"(1 {"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"40001#40002"})"});
}

TEST_F(LegCacheTest, FileServesTheNextRunWithoutTheServer) {
    WriteCache(LineAb("2024-02-01 00:00:00", "0.000,0.000|1.000,0.000"));
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, false), 0);
    EXPECT_EQ(rows[1].ppi, "40002");
    EXPECT_NEAR(rows[1].distance, 60.107F, 0.01F);
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(LegCacheTest, ReversedPortsAreALegOfTheirOwn) {
    host.Reply(1, kRouteAb);
    module.GetRoute(TypedRows(), rows, false);
    host.Reply(1, LegReply("40002", "40001", "1.000,0.000|0.000,0.000"));
    EXPECT_EQ(module.GetRoute(ReversedRows(), rows, false), 0);
    EXPECT_EQ(host.requests.size(), 2U);
    LegCache cache;
    EXPECT_EQ(module.LoadCache("", cache), 0);
    EXPECT_EQ(cache.count("A-B"), 1U);
    EXPECT_EQ(cache.count("B-A"), 1U);
}

TEST_F(LegCacheTest, EveryNewLegGoesIntoTheFileAtOnce) {
    host.Reply(1, kRouteAb);
    EXPECT_EQ(module.GetStopsByCache(ThreeRows(), stops), -3) << "the second leg has no route";
    EXPECT_EQ(CacheText().rfind("2024-03-01 00:00:00:-:A:-:B:-:", 0), 0U);
    EXPECT_TRUE(stops.empty());
    host.Reply(1, LegReply("40002", "40003", "1.000,0.000|3.000,0.000"));
    EXPECT_EQ(module.GetStopsByCache(ThreeRows(), stops), 0);
    ASSERT_EQ(stops.size(), 3U);
    EXPECT_EQ(stops[0].point_cd, "40001");
    EXPECT_EQ(stops[2].point_cd, "40003");
    LegCache cache;
    module.LoadCache("", cache);
    EXPECT_EQ(cache.size(), 2U);
}

TEST_F(LegCacheTest, MissingFileIsAnEmptyCache) {
    LegCache cache;
    EXPECT_EQ(module.LoadCache("none.dat", cache), 0);
    EXPECT_TRUE(cache.empty());
}

TEST_F(LegCacheTest, NamedFileLiesBesideTheUsualOne) {
    LegCache cache;
    WriteCache(LineAb("2024-02-01 00:00:00", "0,0|1,0"));
    module.LoadCache("", cache);
    EXPECT_EQ(module.SaveCache("other.dat", cache), 0);
    EXPECT_TRUE(std::filesystem::exists(folder.LegCacheFile().parent_path() / "other.dat"));
    LegCache again;
    EXPECT_EQ(module.LoadCache("other.dat", again), 0);
    EXPECT_EQ(again.size(), 1U);
}

TEST_F(LegCacheTest, WriterStopsAtALegWithoutTwoStops) {
    LegCache cache;
    WriteCache(LineAb("2024-02-01 00:00:00", "0,0|1,0"));
    module.LoadCache("", cache);
    cache["B-C"].stops.resize(1);
    EXPECT_EQ(module.SaveCache("", cache), -1);
    EXPECT_EQ(CacheText(), LineAb("2024-02-01 00:00:00", "0,0|1,0")) << "what was written before it stays";
}

TEST_F(LegCacheTest, BadLineIsPassedOver) {
    WriteCache(LineAb("2024-02-01 00:00:0", "0,0|9,0") + LineAb("2024-02-01 00:00:00", "0,0|1,0") +
               LineAb("2024-02-02 00:00:00", "0,0:-:9,0"));
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, false), 0);
    EXPECT_NEAR(rows[1].distance, 60.107F, 0.01F);
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(LegCacheTest, LegOlderThanNinetyDaysIsFetchedAgainAndOneOfExactlyThatAgeIsNot) {
    host.Reply(1, kRouteAb);
    module.GetRoute(TypedRows(), rows, false);
    clock.AdvanceSeconds(INT64_C(2160) * 3600);
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, false), 0);
    EXPECT_EQ(host.requests.size(), 1U);
    clock.AdvanceSeconds(1);
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, false), -6);
    host.Reply(1, kRouteAb);
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, false), 0);
    EXPECT_EQ(host.requests.size(), 3U);
    EXPECT_EQ(CacheText().rfind("2024-05-30 00:00:01:-:", 0), 0U) << CacheText();
}

TEST_F(LegCacheTest, LegStampedBeforeTheEpochIsFetchedAgainWhateverItsAge) {
    clock.SetUtc(2011, 6, 1, 0, 0, 10);
    WriteCache(LineAb("2011-06-01 00:00:00", "0,0|1,0"));
    EXPECT_EQ(module.GetStopsByCache(TypedRows(), stops), 0);
    EXPECT_TRUE(host.requests.empty());
    WriteCache(LineAb("2011-05-31 23:59:59", "0,0|1,0"));
    VoyPortCallModule fresh(&store, &directory);
    host.Reply(1, kRouteAb);
    EXPECT_EQ(fresh.GetStopsByCache(TypedRows(), stops), 0);
    EXPECT_EQ(host.requests.size(), 1U);
}

TEST_F(LegCacheTest, EveryFailureHasItsNumber) {
    EXPECT_EQ(module.GetStopsByCache(PortCallRows(1), stops), -1);
    EXPECT_EQ(module.GetStopsByCache(TypedRows(), stops), -3);
    host.Reply(1, R"([{point_cd:"40001"}])");
    EXPECT_EQ(module.GetStopsByCache(TypedRows(), stops), -3) << "a leg has two stops";
    WriteCache(LineAb("2024-02-01 00:00:00", "0"));
    EXPECT_EQ(module.GetStopsByCache(TypedRows(), stops), -9);
    clock.SetUtc(1, 1, 5);
    EXPECT_EQ(module.GetStopsByCache(TypedRows(), stops), -5) << "ninety days ago is no date";
    EXPECT_EQ(module.GetRoute(TypedRows(), rows, false), -5) << "the route's caller gets the same number";
    EXPECT_TRUE(stops.empty());
}

TEST_F(LegCacheTest, GroupsCarryTheIndexOfTheirRow) {
    host.Reply(1, kRouteAb);
    host.Reply(1, kRouteWithAlternatives);
    EXPECT_EQ(module.GetStopsByCache(ThreeRows(), stops), 0);
    ASSERT_EQ(stops.size(), 3U);
    ASSERT_EQ(stops[2].rp_groups.size(), 1U);
    EXPECT_EQ(stops[2].rp_groups[0].leg, 2);
}

TEST_F(LegCacheTest, CachedRouteKeepsItsAlternatives) {
    host.Reply(1, kRouteWithAlternatives);
    module.GetRoute(TypedRows(), rows, false);
    VoyPortCallModule next(&store, &directory);
    EXPECT_EQ(next.GetRoute(TypedRows(), rows, false), 0);
    ASSERT_EQ(next.Pending().Stops().size(), 2U);
    const RouteStop& end = next.Pending().Stops()[1];
    EXPECT_EQ(end.rp_id_str, "118");
    ASSERT_EQ(end.rp_groups.size(), 1U);
    EXPECT_EQ(end.rp_groups[0].alternatives, (Texts{"105", "116"}));
    EXPECT_EQ(end.rp_groups[0].leg, 1);
    EXPECT_EQ(host.requests.size(), 1U);
}

}  // namespace
}  // namespace Tarvik::Seaplan
