// SPDX-License-Identifier: MIT
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

namespace {

using Texts = std::vector<std::string>;

constexpr const char* kRequestAb =
    R"({"rp_id":"","orig_rp_id":"","leg":-1,"rp_group":"","pointList":"40001#40002"})";

constexpr const char* kBookRequestAb =
    R"(["5","0","0|A|0.000|0.000|GC|5|0.000|5","1||0.500|0.000|GC|5|18.520|0",)"
    R"("2|B|1.000|0.000|GC|5|18.520|5"])";

class SaveScheduleTest : public ScheduleFixture {
  protected:
    SaveScheduleTest() { folder.WriteSamplePoints(); }

    void ReplySave() {
        host.Reply(11, "{eid:0}");
        host.Reply(7, "[]");
        host.Reply(8, R"({eid:0,psb:"5"})");
        host.Reply(9, "{eid:0}");
    }
};

TEST_F(SaveScheduleTest, PortIdsComeFromTheDictionaryAndUnknownNamesGetNone) {
    rows = TypedRows();
    rows[0].ppi.clear();
    rows[1].ppn = "nowhere";
    rows[1].ppi.clear();
    EXPECT_EQ(voyages.ResolvePortIds(rows), 0);
    EXPECT_EQ(rows[0].ppi, "40001");
    EXPECT_EQ(rows[1].ppi, "");
}

TEST_F(SaveScheduleTest, CalculationAsksForTheWholeRouteAndTimesTheRows) {
    host.Reply(1, kRouteAb);
    EXPECT_EQ(voyages.CalculatePortCalls(TypedRows(), rows), 0);
    EXPECT_EQ(host.Texts(), Texts{std::string("1 ") + kRequestAb});
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_NEAR(rows[1].distance, 60.107F, 0.01F);
    EXPECT_EQ(rows[0].eta.fmt("%Y-%m-%d %H:%M:%S"), "2024-03-01 08:00:00");
    EXPECT_EQ(rows[0].etd.fmt("%Y-%m-%d %H:%M:%S"), "2024-03-01 14:00:00");
    EXPECT_EQ(rows[1].eta.fmt("%Y-%m-%d %H:%M"), "2024-03-01 20:00");
    EXPECT_TRUE(module.Pending().IsThere());
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_ADD_LINE").size(), 1U);
    EXPECT_TRUE(Voyage().portCalls.empty()) << "the store waits for the save";
}

TEST_F(SaveScheduleTest, EnteredSpeedOfALegSurvivesTheBook) {
    host.Reply(1, kRouteAb);
    PortCallRows typed = TypedRows();
    typed[1].psp = 15.0F;
    EXPECT_EQ(voyages.CalculatePortCalls(typed, rows), 0);
    EXPECT_NEAR(rows[1].psp, 15.0F, 1e-4F);
}

TEST_F(SaveScheduleTest, FailedOrShortRouteReplyFailsTheCalculation) {
    EXPECT_LT(voyages.CalculatePortCalls(TypedRows(), rows), 0);
    host.Reply(1, R"([{point_cd:"40001"}])");
    EXPECT_LT(voyages.CalculatePortCalls(TypedRows(), rows), 0);
    EXPECT_TRUE(rows.empty());
    EXPECT_FALSE(module.Pending().IsThere());
    EXPECT_LT(voyages.CalculatePortCalls({}, rows), 0);
}

TEST_F(SaveScheduleTest, FailedCalculationLeavesThePendingRouteThatTheTableShows) {
    host.Reply(1, kRouteAb);
    voyages.CalculatePortCalls(TypedRows(), rows);
    PortCallRows changed = TypedRows();
    changed[1].pw = 1.0F;
    host.Reply(1, R"([{point_cd:"40002"},{point_cd:"40001"}])");
    EXPECT_EQ(voyages.CalculatePortCalls(changed, rows), -2) << "the steam time is not finite";
    EXPECT_TRUE(rows.empty());
    ASSERT_TRUE(module.Pending().IsThere());
    EXPECT_EQ(module.Pending().Stops()[0].point_cd, "40001");
}

TEST_F(SaveScheduleTest, FailedRecalculationLeavesTheVoyageAsItWas) {
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    PortCallRows changed = TypedRows();
    changed[1].pw = 1.0F;
    host.Reply(1, kRouteAb);
    EXPECT_EQ(voyages.CalculateKeepingLegs("9", changed, rows), -3);
    EXPECT_FALSE(module.Pending().IsThere());
    EXPECT_EQ(Voyage().portCalls[1].pw, 0.0F);
    EXPECT_EQ(Voyage().positionBook.points.size(), 3U);
}

TEST_F(SaveScheduleTest, CalculationForAVoyageTellsWhetherItHadPortCalls) {
    int had = 7;
    EXPECT_EQ(voyages.CalculateForVoyage("", TypedRows(), rows, had), -1);
    EXPECT_EQ(voyages.CalculateForVoyage("x", TypedRows(), rows, had), -2);
    host.Reply(1, kRouteAb);
    EXPECT_EQ(voyages.CalculateForVoyage("9", TypedRows(), rows, had), 0);
    EXPECT_EQ(had, 0);
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    host.Reply(1, kRouteAb);
    EXPECT_EQ(voyages.CalculateForVoyage("9", TypedRows(), rows, had), 0);
    EXPECT_EQ(had, 1);
}

TEST_F(SaveScheduleTest, RecalculationKeepsTheWaypointsOfALegBetweenTheSamePorts) {
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    Voyage().positionBook.points[1].position = "0.500,2.000";
    host.Reply(1, kRouteAb);
    EXPECT_EQ(voyages.CalculateKeepingLegs("9", TypedRows(), rows), 0);
    ASSERT_EQ(Voyage().positionBook.points.size(), 3U);
    EXPECT_EQ(Voyage().positionBook.points[1].position, "0.500,2.000");
    EXPECT_EQ(Voyage().portCalls[1].ppi, "40002");
}

TEST_F(SaveScheduleTest, KeepingLegsNeedsTwoRowsOnBothSides) {
    EXPECT_EQ(voyages.CalculateKeepingLegs("9", TypedRows(), rows), -1);
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    EXPECT_EQ(voyages.CalculateKeepingLegs("9", PortCallRows(1), rows), -1);
}

TEST_F(SaveScheduleTest, NewVoyageSavesPortCallsDateAndRowsInThisOrder) {
    host.Reply(1, kRouteAb);
    voyages.CalculatePortCalls(TypedRows(), rows);
    module.Pending().Assign("9");
    ReplySave();
    EXPECT_EQ(voyages.SaveSchedule("9", rows, -1), 0);
    EXPECT_EQ(host.Texts(), (Texts{std::string("1 ") + kRequestAb,
                                   R"(11 ["9","0|40001|A|L|0.000|0.000|6.0","1|40002|B|D|18.520|0.000|0.0"])",
                                   R"(7 {vi:"9"})", R"(8 {vi:"9",dt:"2024-03-01 00:00:00"})",
                                   std::string("9 ") + kBookRequestAb}));
    EXPECT_EQ(Voyage().positionBook.pbi, "5");
    EXPECT_EQ(Voyage().positionBook.eta, rows[0].eta);
    EXPECT_EQ(Voyage().positionBook.points.size(), 3U);
    EXPECT_EQ(Voyage().portCalls.size(), 2U);
    EXPECT_FALSE(module.Pending().IsThere());
    EXPECT_EQ(voyages.RouteIsCurrent(), 1);
}

TEST_F(SaveScheduleTest, SavedVoyageChangesTheDateAndSavesItsOwnBook) {
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    rows[0].eta = Util::_datetime_t(0, 0, 10, 2, 3, 2024);
    rows[1].psp = 20.0F;
    host.Reply(11, "{eid:0}");
    host.Reply(14, "{eid:0}");
    host.Reply(9, "{eid:0}");
    EXPECT_EQ(voyages.SaveSchedule("9", rows, -1), 0);
    EXPECT_EQ(host.TextsOf(14), Texts{R"({psb:"5",dt:"2024-03-02 02:00:00"})"});
    EXPECT_NE(host.TextsOf(9)[0].find("0.500|0.000|GC|2|37.040|0"), std::string::npos)
        << "the row's new speed goes into the rows of its leg";
    EXPECT_EQ(Voyage().portCalls[0].eta, rows[0].eta);
}

TEST_F(SaveScheduleTest, SavingWithADrawModeRedrawsTheVoyage) {
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    for (const int mode : {0, 1}) {
        host.Reply(11, "{eid:0}");
        host.Reply(14, "{eid:0}");
        host.Reply(9, "{eid:0}");
        host.chartCalls.clear();
        EXPECT_EQ(voyages.SaveSchedule("9", rows, mode), 0);
        EXPECT_EQ(host.ChartCallsOf("TRV_MAP_DEL_OBJECTS").size(), 10U);
        EXPECT_EQ(host.ChartCallsOf("TRV_MAP_ADD_IMAGE").size(), static_cast<std::size_t>(mode));
        EXPECT_EQ(module.Pending().DrawnVoyage(), mode == 1 ? "9" : "");
    }
}

TEST_F(SaveScheduleTest, SaveNeedsAVoyageAndTwoRows) {
    EXPECT_EQ(voyages.SaveSchedule("x", TypedRows(), -1), -1);
    EXPECT_EQ(voyages.SaveSchedule("9", PortCallRows(1), -1), -1);
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(SaveScheduleTest, EveryFailedStepEndsTheSaveAndEarlierStepsStay) {
    EXPECT_EQ(voyages.SaveSchedule("9", TypedRows(), -1), -5) << "there are no rows to save";
    EXPECT_TRUE(host.requests.empty());
    host.Reply(1, kRouteAb);
    voyages.CalculatePortCalls(TypedRows(), rows);
    module.Pending().Assign("9");
    EXPECT_EQ(voyages.SaveSchedule("9", rows, -1), -2);
    EXPECT_TRUE(Voyage().portCalls.empty());
    host.Reply(11, "{eid:0}");
    EXPECT_EQ(voyages.SaveSchedule("9", rows, -1), -3);
    EXPECT_EQ(Voyage().portCalls.size(), 2U) << "the port calls are on the server and stay";
    host.Reply(11, "{eid:0}");
    host.Reply(7, R"([{pbi:"5"}])");
    EXPECT_EQ(voyages.SaveSchedule("9", rows, -1), -6);
    EXPECT_TRUE(module.Pending().IsThere()) << "the route waits for the next save";
    EXPECT_TRUE(Voyage().positionBook.points.empty());
}

TEST_F(SaveScheduleTest, ReloadingDropsThePendingRoute) {
    host.Reply(1, kRouteAb);
    voyages.CalculatePortCalls(TypedRows(), rows);
    module.Pending().Assign("9");
    ReplySchedule();
    EXPECT_EQ(voyages.LoadSchedule("9", rows, -1), 0);
    EXPECT_FALSE(module.Pending().IsThere());
}

}  // namespace
}  // namespace Tarvik::Seaplan
