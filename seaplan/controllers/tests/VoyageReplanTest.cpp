// SPDX-License-Identifier: MIT
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/tests/CorrectionFixture.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kWayRequest = R"(2 {"nr_point":[0.400,0.100],"dest_port":40002})";
constexpr const char* kRouteRequestBc =
    R"(1 {"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"40002#40003"})";
constexpr const char* kRouteBc =
    R"([{point_cd:"40002",distance:0,routes:[],rp_groups:[],rp_id_str:"",lock_rp_id_str:""},)"
    R"({point_cd:"40003",distance:1.5,routes:[{route:"1",from_cd:"40002",end_cd:"40003",)"
    R"(pointset:"1,0|2,0.5|3,0",distance:1.5}],rp_groups:[],rp_id_str:"",lock_rp_id_str:""}])";

/// A corrected voyage, split, with 12 knots and weather of a quarter planned to B.
class VoyageReplanTest : public CorrectionFixture {
  protected:
    VoyageReplanTest() {
        ReplyWay();
        voyages.ApplyAisPosition("9", applied);
        voyages.SplitAisRows("9", before, after);
        after.at(0).psp = 12;
        after.at(0).pw = 0.25F;
        host.requests.clear();
    }
    int Replan() { return voyages.ReplanFromAis("9", before, after, rows); }
    /// Plans on to C.
    void PlanC() {
        after.push_back(after[0]);
        after[1].ppn = "C";
        after[1].ppi.clear();
        after[1].psp = 20;
        after[1].pw = 0;
    }
};

TEST_F(VoyageReplanTest, RestOfTheVoyageFollowsTheServersWayAtThePlannedSpeed) {
    ReplyWay("0.4,0.1|0.6,0.2|0.8,0.1|1,0");
    EXPECT_EQ(Replan(), 0);
    EXPECT_EQ(host.Texts(), Texts{kWayRequest});
    EXPECT_EQ(Positions(), (Texts{"0.000,0.000", "0.4,0.1", "0.6,0.2", "0.8,0.1", "1,0"}));
    const BookPoints& points = Voyage().positionBook.points;
    EXPECT_EQ(points[1].pst, AisTrackPoint) << "the history stays";
    EXPECT_EQ(points[2].psp, 9) << "what the weather leaves of 12 knots";
    EXPECT_EQ(points[4].pst, PortPoint);
    EXPECT_EQ(points[4].psn, "B");
    EXPECT_EQ(NameList(Voyage().portCalls), "A B");
    EXPECT_EQ(NameList(rows), "A B");
    EXPECT_GT(rows[1].distance, 60.107F) << "by way of the position";
    EXPECT_GT(rows[1].eta, rows[0].etd);
    EXPECT_TRUE(host.chartCalls.empty()) << "one port ahead needs no route between ports";
}

TEST_F(VoyageReplanTest, PortsBehindTheFirstAreRoutedAnew) {
    PlanC();
    ReplyWay();
    host.Reply(1, kRouteBc);
    EXPECT_EQ(Replan(), 0);
    EXPECT_EQ(host.Texts(), (Texts{kWayRequest, kRouteRequestBc}));
    EXPECT_EQ(Positions(), (Texts{"0.000,0.000", "0.4,0.1", "0.7,0.05", "1,0", "2,0.5", "3,0"}));
    const BookPoints& points = Voyage().positionBook.points;
    EXPECT_NEAR(points[4].psp, 20, 1e-4) << "scaled to the speed planned to C";
    EXPECT_EQ(points[5].psn, "C");
    EXPECT_EQ(NameList(Voyage().portCalls), "A B C");
    EXPECT_FALSE(module.Pending().IsThere());
}

TEST_F(VoyageReplanTest, PurposesThatAreMissingInThePlanBecomeDischarging) {
    after[0].pp = " ";
    ReplyWay();
    EXPECT_EQ(Replan(), 0);
    EXPECT_EQ(Voyage().portCalls[0].pp, "L");
    EXPECT_EQ(Voyage().portCalls[1].pp, "D");
}

// A route that was calculated before must not become this voyage's book at the next save.
TEST_F(VoyageReplanTest, PendingRouteOfAnotherCalculationIsDropped) {
    host.Reply(1, kRouteAb);
    PortCallRows calculated;
    voyages.CalculatePortCalls(TypedRows(), calculated);
    module.Pending().Assign("9");
    ASSERT_TRUE(module.Pending().IsThere());
    ReplyWay();
    EXPECT_EQ(Replan(), 0);
    EXPECT_EQ(Positions().size(), 4U);
    EXPECT_FALSE(module.Pending().IsThere());
}

TEST_F(VoyageReplanTest, PendingRouteOfAnotherVoyageStays) {
    host.Reply(1, kRouteAb);
    PortCallRows calculated;
    voyages.CalculatePortCalls(TypedRows(), calculated);
    module.Pending().Assign("8");
    PlanC();
    ReplyWay();
    host.Reply(1, kRouteBc);
    EXPECT_EQ(Replan(), 0);
    EXPECT_TRUE(module.Pending().IsFor("8"));
    EXPECT_EQ(module.Pending().Stops().at(1).point_cd, "40002") << "it is the one that was there";
}

TEST_F(VoyageReplanTest, EveryFailureHasItsNumberAndLeavesTheVoyageAndThePendingRoute) {
    module.Pending().Take(RouteStops(2));
    const Texts old = Positions();
    const VoyInfo whole = Voyage();
    EXPECT_EQ(voyages.ReplanFromAis("", before, after, rows), -1);
    EXPECT_EQ(voyages.ReplanFromAis("x", before, after, rows), -1);
    EXPECT_EQ(voyages.ReplanFromAis("9", {}, after, rows), -1);
    EXPECT_EQ(voyages.ReplanFromAis("9", before, {}, rows), -1);
    EXPECT_EQ(voyages.ReplanFromAis("9", after, after, rows), -3) << "the history ends in a port";
    EXPECT_EQ(Replan(), -6) << "nobody answers";
    ReplyWay();
    Voyage().positionBook.points[1].position = "0.41,0.1";
    EXPECT_EQ(Replan(), -4);
    Voyage() = whole;
    ReplyWay("1,0");
    EXPECT_EQ(Replan(), -5);
    PlanC();
    ReplyWay();
    EXPECT_EQ(Replan(), -7) << "no route between B and C";
    after[0].psp = 0;
    after.resize(1);
    ReplyWay();
    EXPECT_EQ(Replan(), -9) << "no speed to sail with";
    EXPECT_EQ(Positions(), old);
    EXPECT_EQ(NameList(Voyage().portCalls), "A B");
    EXPECT_EQ(Voyage().portCalls[1].psp, whole.portCalls[1].psp);
    EXPECT_TRUE(rows.empty());
    EXPECT_EQ(module.Pending().Stops().size(), 2U);
}

TEST_F(VoyageReplanTest, PortThatTheDictionaryLacksIsNotAskedFor) {
    after[0].ppn = "nowhere";
    after[0].ppi.clear();
    EXPECT_EQ(Replan(), -6);
    EXPECT_TRUE(host.requests.empty());
}

// What the person does: correct, calculate, save, record the time, draw. Every request in order.
TEST_F(VoyageReplanTest, CorrectionIsPlannedSavedRecordedAndDrawn) {
    ReplyWay();
    ASSERT_EQ(Replan(), 0);
    const PortCallRows saved = Voyage().portCalls;
    host.Reply(11, "{eid:0}");
    host.Reply(14, "{eid:0}");
    host.Reply(9, "{eid:0}");
    host.Reply(13, "{eid:0}");
    ASSERT_EQ(voyages.SaveSchedule("9", saved, -1), 0);
    ASSERT_EQ(catalog.AddAisModTime("9", "2024-03-01 17:00:00"), 0);
    const Texts texts = host.Texts();
    ASSERT_EQ(texts.size(), 5U);
    EXPECT_EQ(texts[0], kWayRequest);
    EXPECT_EQ(texts[1].substr(0, 3), "11 ");
    EXPECT_EQ(texts[2], R"(14 {psb:"5",dt:"2024-03-01 00:00:00"})");
    EXPECT_EQ(texts[3], R"(9 ["5","0","0|A|0.000|0.000|GC|2|0.000|5",)"
                        R"("1|AIS track point|0.4|0.1|GC|5|15.293|4","2||0.7|0.05|GC|5|16.668|0",)"
                        R"("3|B|1|0|GC|5|16.668|5"])");
    EXPECT_EQ(texts[4], R"(13 {vi:"9",time:"2024-03-01 09:00:00"})");
    EXPECT_EQ(Voyage().modais, 2);
    clock.SetUtc(2024, 3, 1, 18);
    host.chartCalls.clear();
    EXPECT_EQ(voyages.ShowVoyage("9"), 0);
    const auto lines = host.ChartCallsOf("TRV_MAP_ADD_LINE");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].id, "9_5") << "what remains";
    EXPECT_EQ(lines[1].id, "9_0") << "sailed since the position";
    EXPECT_EQ(lines[1].points.front(), "0.4,0.1");
    EXPECT_EQ(lines[1].points.back(), host.ChartCallsOf("TRV_MAP_ADD_IMAGE").at(0).position);
}

}  // namespace
}  // namespace Tarvik::Seaplan
