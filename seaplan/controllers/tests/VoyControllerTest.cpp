// SPDX-License-Identifier: MIT
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

namespace {

using Texts = std::vector<std::string>;

class VoyControllerTest : public ScheduleFixture {};

TEST_F(VoyControllerTest, LoadReadsPortCallsAndBookAndTimesTheRows) {
    ReplySchedule();
    EXPECT_EQ(voyages.LoadSchedule("9", rows, -1), 0);
    EXPECT_EQ(host.Texts(), (Texts{R"(10 {vi:"9"})", R"(7 {vi:"9"})"}));
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].eta.fmt("%Y-%m-%d %H:%M:%S"), "2024-03-01 08:00:00");
    EXPECT_EQ(rows[0].etd.fmt("%Y-%m-%d %H:%M:%S"), "2024-03-01 14:00:00");
    EXPECT_NEAR(rows[1].distance, 60.107F, 0.01F);
    EXPECT_NEAR(rows[1].steamTime, 6.0107F, 0.001F);
    EXPECT_EQ(Voyage().portCalls.size(), 2U);
    EXPECT_EQ(Voyage().positionBook.pbi, "5");
    EXPECT_EQ(voyages.RouteIsCurrent(), 1);
    EXPECT_EQ(module.Pending().DrawnVoyage(), "") << "only drawing it remembers a voyage";
    EXPECT_TRUE(host.chartCalls.empty());
}

TEST_F(VoyControllerTest, LoadedScheduleIsNotReadAgain) {
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    rows.clear();
    EXPECT_EQ(voyages.LoadSchedule("9", rows, -1), 0);
    EXPECT_EQ(rows.size(), 2U);
    EXPECT_EQ(host.requests.size(), 2U);
}

TEST_F(VoyControllerTest, PortCallsWithoutBookAreReadAgainBoth) {
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    Voyage().positionBook.points.clear();
    ReplySchedule();
    EXPECT_EQ(voyages.LoadSchedule("9", rows, -1), 0);
    EXPECT_EQ(host.requests.size(), 4U);
    EXPECT_EQ(Voyage().positionBook.points.size(), 3U);
}

TEST_F(VoyControllerTest, LoadLadder) {
    EXPECT_EQ(voyages.LoadSchedule("", rows, -1), -1);
    EXPECT_EQ(voyages.LoadSchedule("x", rows, -1), -2);
    EXPECT_TRUE(host.requests.empty());
    host.Reply(10, "[]");
    EXPECT_EQ(voyages.LoadSchedule("9", rows, -1), -3);
    host.Reply(10, kPortCallsAb);
    host.Reply(7, "[]");
    EXPECT_EQ(voyages.LoadSchedule("9", rows, -1), -4);
    host.Reply(10, kPortCallsAb);
    host.Reply(7, R"([{pbi:"5",eta:"2024-03-01 00:00:00",pb:[{lon:0,pst:"5"}]}])");
    EXPECT_EQ(voyages.LoadSchedule("9", rows, -1), -5);
    EXPECT_TRUE(Voyage().portCalls.empty());
    EXPECT_EQ(Voyage().positionBook.pbi, "5") << "the book is in the record before it is applied";
    for (const int mode : {2, -2}) {
        Voyage().positionBook.points.clear();
        ReplySchedule();
        EXPECT_EQ(voyages.LoadSchedule("9", rows, mode), -8) << mode;
        EXPECT_EQ(Voyage().portCalls.size(), 2U) << "the mode is looked at behind the schedule";
    }
    EXPECT_EQ(voyages.RouteIsCurrent(), -1);
    EXPECT_TRUE(host.chartCalls.empty());
}

TEST_F(VoyControllerTest, DrawModeOneShowsTheProgressAndRemembersTheVoyage) {
    clock.SetUtc(2024, 3, 1, 9);
    ReplySchedule();
    EXPECT_EQ(voyages.LoadSchedule("9", rows, 1), 0);
    EXPECT_EQ(module.Pending().DrawnVoyage(), "9");
    ASSERT_EQ(host.ChartCallsOf("TRV_MAP_ADD_IMAGE").size(), 1U);
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_ADD_IMAGE")[0].id, "9");
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_ADD_IMAGE")[0].position, "0.000,0.000");
    ASSERT_EQ(host.ChartCallsOf("TRV_MAP_ADD_LINE").size(), 1U);
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_ADD_LINE")[0].id, "9_5");
}

TEST_F(VoyControllerTest, ScheduleWithTheBookOfMorePortsIsNeitherLoadedNorTheOneOnShow) {
    host.Reply(10, kPortCallsAb);
    std::string book = kBookAb;
    book.insert(book.find("]}]"), R"(,{lon:3,psn:"C",xc:3.0,yc:0.0,psp:"18.52",pst:"5"})");
    host.Reply(7, book);
    EXPECT_EQ(voyages.LoadSchedule("9", rows, 1), -5) << "the book has a port more than the schedule";
    EXPECT_EQ(rows.size(), 2U) << "they wait to be calculated";
    EXPECT_TRUE(Voyage().portCalls.empty());
    EXPECT_EQ(module.Pending().DrawnVoyage(), "");
    EXPECT_EQ(voyages.RouteIsCurrent(), -1);
}

TEST_F(VoyControllerTest, DrawnProgressNeedsRowsOnBothSides) {
    EXPECT_EQ(module.DrawPlannedProgress(Voyage()), -1);
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    VoyInfo other = Voyage();
    other.positionBook.points.resize(1);
    EXPECT_EQ(module.DrawPlannedProgress(other), -1);
    other = Voyage();
    other.portCalls.push_back(other.portCalls[1]);
    EXPECT_EQ(module.DrawPlannedProgress(other), -5);
    other = Voyage();
    other.portCalls[1].pw = 1.5F;
    EXPECT_EQ(module.DrawPlannedProgress(other), -7);
    other = Voyage();
    other.vi.clear();
    EXPECT_EQ(module.DrawPlannedProgress(other), -14);
    EXPECT_TRUE(host.ChartCallsOf("TRV_MAP_ADD_LINE").empty());
    EXPECT_EQ(module.DrawPlannedProgress(Voyage()), 0);
}

TEST_F(VoyControllerTest, ShipUnderWayCutsTheVoyageInTwoLines) {
    clock.SetUtc(2024, 3, 1, 18);
    ReplySchedule();
    EXPECT_EQ(voyages.LoadSchedule("9", rows, 1), 0);
    const auto lines = host.ChartCallsOf("TRV_MAP_ADD_LINE");
    ASSERT_EQ(lines.size(), 2U);
    const std::string ship = host.ChartCallsOf("TRV_MAP_ADD_IMAGE").at(0).position;
    EXPECT_EQ(lines[0].id, "9_5");
    EXPECT_EQ(lines[0].points.front(), ship);
    EXPECT_EQ(lines[0].points.back(), "1.000,0.000");
    EXPECT_EQ(lines[1].id, "9_0");
    EXPECT_EQ(lines[1].points.front(), "0.000,0.000");
    EXPECT_EQ(lines[1].points.back(), ship);
    EXPECT_EQ(host.chartCalls.back().service, "TRV_MAP_SET_EXTENT");
}

TEST_F(VoyControllerTest, DrawModeZeroShowsTheBookWithoutAShip) {
    ReplySchedule();
    EXPECT_EQ(voyages.LoadSchedule("9", rows, 0), 0);
    EXPECT_EQ(module.Pending().DrawnVoyage(), "");
    EXPECT_TRUE(host.ChartCallsOf("TRV_MAP_ADD_IMAGE").empty());
    ASSERT_EQ(host.ChartCallsOf("TRV_MAP_ADD_LINE").size(), 1U);
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_ADD_LINE")[0].points,
              (Texts{"0.000,0.000", "0.500,0.000", "1.000,0.000"}));
}

TEST_F(VoyControllerTest, FiguresAreWrittenAfterTheServerAgreed) {
    BunkerFigures figures{};
    EXPECT_EQ(voyages.GetFigures("", figures), -1);
    EXPECT_EQ(voyages.GetFigures("x", figures), -2);
    EXPECT_EQ(voyages.SaveFigures("", figures), -1);
    const BunkerFigures wanted{1, 2, 3, 4, 5, 6, 7};
    EXPECT_EQ(voyages.SaveFigures("9", wanted), -2);
    EXPECT_EQ(voyages.GetFigures("9", figures), 0);
    EXPECT_EQ(figures, BunkerFigures{});
    host.Reply(6, "{eid:0}");
    EXPECT_EQ(voyages.SaveFigures("x", wanted), -3);
    host.Reply(6, "{eid:0}");
    EXPECT_EQ(voyages.SaveFigures("9", wanted), 0);
    EXPECT_EQ(voyages.GetFigures("9", figures), 0);
    EXPECT_EQ(figures, wanted);
}

TEST_F(VoyControllerTest, ClearingCorrectionsStaysInMemory) {
    Voyage().modais = 2;
    Voyage().aisModTimes = {"a", "b"};
    int count = 7;
    EXPECT_EQ(voyages.GetModAis("9", count), 0);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(voyages.ClearAisMod(""), -1);
    EXPECT_EQ(voyages.ClearAisMod("x"), -2);
    EXPECT_EQ(voyages.ClearAisMod("9"), 0);
    EXPECT_EQ(Voyage().modais, 0);
    EXPECT_TRUE(Voyage().aisModTimes.empty());
    EXPECT_TRUE(host.requests.empty());
}

TEST_F(VoyControllerTest, DistanceTableHasNoCorrectionsAndLeavesTheCountAlone) {
    int count = 7;
    EXPECT_EQ(voyages.GetModAis("DISTANCE TABLE USE", count), 0);
    EXPECT_EQ(count, 7);
    EXPECT_LT(voyages.GetModAis("x", count), 0);
}

TEST_F(VoyControllerTest, DiscardedChangesGiveWayToWhatWasSaved) {
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    Voyage().portCalls[1].ppn = "edited";
    Voyage().modais = 1;
    ReplySchedule();
    EXPECT_EQ(voyages.DiscardPortCalls("9"), 0);
    EXPECT_EQ(Voyage().portCalls[1].ppn, "B");
    EXPECT_EQ(Voyage().modais, 0);
    EXPECT_LT(voyages.DiscardPortCalls(""), 0);
    EXPECT_LT(voyages.DiscardPortCalls("x"), 0);
}

TEST_F(VoyControllerTest, DiscardedChangesLeaveACorrectedVoyageCorrected) {
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    Voyage().modais = 2;
    Voyage().aisModTimes = {"2024-03-01 12:00:00"};
    ReplySchedule();
    EXPECT_EQ(voyages.DiscardPortCalls("9"), 0);
    EXPECT_EQ(Voyage().modais, 2);
}

TEST_F(VoyControllerTest, ClearingTheChartRemovesAllFiveTypes) {
    EXPECT_EQ(voyages.ClearChart(), 0);
    Texts types;
    for (const auto& call : host.ChartCallsOf("TRV_MAP_DEL_OBJECT_BY_TYPE")) {
        types.push_back(call.type);
    }
    EXPECT_EQ(types,
              (Texts{"VOYAGETYPE", "VOYLINETYPE", "RPOINTTYPE", "AISSHIPTYPE", "VOYPOSTBOOKLINETYPE"}));
}

TEST_F(VoyControllerTest, RemovingAVoyageMakesAllItsCallsFiveTimesOver) {
    EXPECT_EQ(voyages.RemoveVoyageObjects(""), -1);
    EXPECT_EQ(voyages.RemoveVoyageObjects("9"), 0);
    const auto calls = host.ChartCallsOf("TRV_MAP_DEL_OBJECTS");
    ASSERT_EQ(calls.size(), 10U);
    EXPECT_EQ(calls[0].type, "VOYPOSTBOOKLINETYPE");
    EXPECT_EQ(calls[1].type, "AISSHIPTYPE");
    ASSERT_EQ(calls[9].points.size(), 11U);
    EXPECT_EQ(calls[9].points.front(), "9_0");
    EXPECT_EQ(calls[9].points.back(), "9");
}

TEST_F(VoyControllerTest, ShownVoyageMustBeInUse) {
    EXPECT_EQ(voyages.ShowVoyage(""), -1);
    EXPECT_EQ(voyages.ShowVoyage("none"), -3) << "an id that no category holds counts as deleted";
    store.categoryVoyages["1"]["9"] = InRecycleBin;
    EXPECT_EQ(voyages.ShowVoyage("9"), -3);
    store.categoryVoyages["1"]["ghost"] = InUse;
    EXPECT_EQ(voyages.ShowVoyage("ghost"), -4);
    EXPECT_TRUE(host.chartCalls.empty());
}

TEST_F(VoyControllerTest, ShownVoyageIsClearedAndDrawn) {
    EXPECT_EQ(voyages.ShowVoyage("9"), -6) << "nothing can be loaded";
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_DEL_OBJECTS").size(), 10U);
    ReplySchedule();
    EXPECT_EQ(voyages.ShowVoyage("9"), 0);
    EXPECT_EQ(module.Pending().DrawnVoyage(), "9");
    EXPECT_EQ(host.ChartCallsOf("TRV_MAP_ADD_IMAGE").size(), 1U);
}

TEST_F(VoyControllerTest, MovedAndDeletedRowsMakeTheRouteStale) {
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    PortCallRows out;
    EXPECT_LT(voyages.MoveRowUp(rows, 0, out), 0);
    EXPECT_LT(voyages.MoveRowDown(rows, 1, out), 0);
    EXPECT_LT(voyages.DeleteRow(rows, 2, out), 0);
    EXPECT_EQ(voyages.RouteIsCurrent(), 1);
    EXPECT_EQ(voyages.MoveRowUp(rows, 1, out), 0);
    EXPECT_EQ(out[0].ppn, "B");
    EXPECT_EQ(voyages.RouteIsCurrent(), -1);
    voyages.LoadSchedule("9", rows, -1);
    EXPECT_EQ(voyages.MoveRowDown(rows, 0, out), 0);
    EXPECT_EQ(voyages.RouteIsCurrent(), -1);
    voyages.LoadSchedule("9", rows, -1);
    EXPECT_EQ(voyages.DeleteRow(rows, 0, out), 0);
    EXPECT_EQ(out.size(), 1U);
    EXPECT_EQ(voyages.RouteIsCurrent(), -1);
}

}  // namespace
}  // namespace Tarvik::Seaplan
