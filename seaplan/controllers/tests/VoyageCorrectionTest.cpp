// SPDX-License-Identifier: MIT
#include "seaplan/controllers/tests/CorrectionFixture.h"

namespace Tarvik::Seaplan {

namespace {

constexpr const char* kWayRequest = R"({"nr_point":[0.400,0.100],"dest_port":40002})";

class VoyageCorrectionTest : public CorrectionFixture {};

TEST_F(VoyageCorrectionTest, PositionAndTheWayFromItReplaceTheRestOfTheLeg) {
    ReplyWay();
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), 0);
    EXPECT_EQ(applied, 1);
    EXPECT_EQ(Voyage().modais, 1);
    EXPECT_EQ(Positions(), (Texts{"0.000,0.000", "0.4,0.1", "0.7,0.05", "1.000,0.000"}));
    const PosBookPoint& fix = Voyage().positionBook.points[1];
    EXPECT_EQ(fix.pst, AisTrackPoint);
    EXPECT_EQ(fix.psn, "AIS track point");
    EXPECT_EQ(fix.etd.fmt("%H:%M:%S"), "17:00:00");
    EXPECT_NEAR(fix.psp, 24.755F / 3, 0.02F) << "three hours since departure";
    EXPECT_TRUE(Voyage().aisModTimes.empty()) << "the time is recorded when the plan is made anew";
    EXPECT_TRUE(host.chartCalls.empty());
}

TEST_F(VoyageCorrectionTest, VoyageCorrectedBeforeCountsFromOneAgain) {
    Voyage().modais = 3;
    ReplyWay();
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), 0);
    EXPECT_EQ(Voyage().modais, 1);
}

TEST_F(VoyageCorrectionTest, OneRequestAsksForTheWayToTheNextPort) {
    ReplyWay();
    voyages.ApplyAisPosition("9", applied);
    ASSERT_EQ(host.requests.size(), 1U);
    const std::string text = kWayRequest + std::string(1, '\0');
    const std::string head{static_cast<char>(text.size()), 0, 0, 0, 2, 0, 5, 0};
    EXPECT_EQ(host.requests[0].bytes, head + text);
}

TEST_F(VoyageCorrectionTest, TimeOfThePositionIsReadInTheUsersZone) {
    ReplyWay();
    host.zone = "UTC";
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -9) << "09:00, and the ship leaves at 14:00";
    EXPECT_EQ(Voyage().modais, 0);
    host.zone = "China Standard Time";
    ReplyWay();
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), 0);
}

TEST_F(VoyageCorrectionTest, BehindTheLastDepartureNothingIsDone) {
    SeeShipAt(22, 0);
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), 0);
    EXPECT_EQ(applied, 0);
    EXPECT_EQ(Voyage().modais, 0);
    EXPECT_TRUE(host.requests.empty());
}

// The stay at B has not run out, so B is still ahead and the way leads there: the position goes before it,
// and is measured from the row left last, the port before.
TEST_F(VoyageCorrectionTest, PositionDuringAStayGoesBetweenThePortLeftLastAndThePort) {
    Voyage().positionBook.points.erase(Voyage().positionBook.points.begin() + 1);
    Voyage().portCalls[1].apt = 8;
    SeeShipAt(22, 0);
    ReplyWay("0.9,0|1,0");
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), 0);
    EXPECT_EQ(applied, 1);
    EXPECT_EQ(host.TextsOf(2), Texts{kWayRequest});
    EXPECT_EQ(Positions(), (Texts{"0.000,0.000", "0.9,0", "1.000,0.000"}));
    EXPECT_NEAR(Voyage().positionBook.points[1].psp, 0.9F * 60.107F / 8, 0.01F)
        << "eight hours since A, less than B's stay and the way";
}

TEST_F(VoyageCorrectionTest, ShipThatHardlyMovedGetsNoRowButTheNewWay) {
    Voyage().lastPosText = "0.004,0.000";
    ReplyWay("0.004,0|0.7,0.05|1,0");
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), 0);
    EXPECT_EQ(applied, 0) << "0.24 miles in three hours";
    EXPECT_EQ(Positions(), (Texts{"0.000,0.000", "0.7,0.05", "1.000,0.000"}));
    EXPECT_EQ(Voyage().modais, 1) << "the voyage counts as corrected all the same";
}

TEST_F(VoyageCorrectionTest, SpeedOfExactlyTheLimitGetsNoRow) {
    Voyage().portCalls[1].pw = 0.5F;
    ReplyWay("0.0024,0|1,0");
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), 0);
    EXPECT_EQ(applied, 0) << "0.144 miles in three hours are 0.096 knots through the weather";
    ReplyWay("0.0026,0|1,0");
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), 0);
    EXPECT_EQ(applied, 1) << "0.104 knots";
}

TEST_F(VoyageCorrectionTest, AnswerWithoutPointsTakesTheRestOfTheLegOut) {
    ReplyWay("");
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), 0);
    EXPECT_EQ(applied, 1);
    EXPECT_EQ(Positions(), (Texts{"0.000,0.000", "1.000,0.000"}));
}

TEST_F(VoyageCorrectionTest, EveryFailureHasItsNumberAndLeavesTheVoyage) {
    const VoyInfo whole = Voyage();
    const Texts old = Positions();
    EXPECT_EQ(voyages.ApplyAisPosition("", applied), -1);
    EXPECT_EQ(voyages.ApplyAisPosition("x", applied), -2);
    Voyage().vsi.clear();
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -3);
    Voyage() = whole;
    Voyage().lastPosText.clear();
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -4);
    Voyage() = whole;
    Voyage().lastPosTime = 0;
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -4);
    Voyage() = whole;
    host.zone.reset();
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -5);
    host.zone = "China Standard Time";
    Voyage().portCalls[1].pw = 1.0F;
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -6);
    Voyage() = whole;
    Voyage().portCalls.resize(1);
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -6);
    Voyage() = whole;
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -7) << "nobody answers";
    ReplyWay();
    Voyage().positionBook.points.resize(1);
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -8);
    Voyage() = whole;
    ReplyWay();
    SeeShipAt(13, 59, 59);
    EXPECT_EQ(voyages.ApplyAisPosition("9", applied), -9) << "the ship had not left";
    EXPECT_EQ(Positions(), old);
    EXPECT_EQ(Voyage().modais, 0);
    EXPECT_EQ(applied, 0);
}

TEST_F(VoyageCorrectionTest, WayFromTheServerHasALadder) {
    Texts way{"old"};
    EXPECT_EQ(module.RequestNearestRoute("", "40002", way), -1);
    EXPECT_TRUE(way.empty());
    EXPECT_EQ(module.RequestNearestRoute("1,2", "", way), -1);
    EXPECT_TRUE(host.requests.empty());
    EXPECT_EQ(module.RequestNearestRoute("1,2", "40002", way), -2);
    host.Reply(2, "no json");
    EXPECT_EQ(module.RequestNearestRoute("1,2", "40002", way), -2);
    host.Reply(2, "{}");
    EXPECT_EQ(module.RequestNearestRoute("1,2", "40002", way), -3);
    host.Reply(2, R"({eid:1,emsg:"no such port"})");
    EXPECT_EQ(module.RequestNearestRoute("1,2", "40002", way), -4);
    ReplyWay("1,2|here|3,4");
    EXPECT_EQ(module.RequestNearestRoute("1,2", "40002", way), -5);
    ReplyWay("1,2|,4");
    EXPECT_EQ(module.RequestNearestRoute("1,2", "40002", way), -5);
    EXPECT_TRUE(way.empty());
    host.Reply(2, R"({pointset:"1,2||3,4"})");
    EXPECT_EQ(module.RequestNearestRoute("1,2", "40002", way), 0);
    EXPECT_EQ(way, (Texts{"1,2", "3,4"}));
}

TEST_F(VoyageCorrectionTest, CorrectedVoyageSplitsIntoHistoryAndPlan) {
    ReplyWay();
    voyages.ApplyAisPosition("9", applied);
    EXPECT_EQ(voyages.SplitAisRows("9", before, after), 0);
    EXPECT_EQ(NameList(before), "A 0.100,0.400") << "latitude first";
    EXPECT_EQ(before[1].pp, " ");
    EXPECT_EQ(before[1].eta.fmt("%H:%M"), "17:00");
    EXPECT_NEAR(before[1].steamTime, 3, 0.001);
    EXPECT_EQ(NameList(after), "B");
}

TEST_F(VoyageCorrectionTest, SplitTellsWhatIsMissing) {
    EXPECT_EQ(voyages.SplitAisRows("", before, after), -1);
    EXPECT_EQ(voyages.SplitAisRows("x", before, after), -2);
    EXPECT_EQ(voyages.SplitAisRows("9", before, after), -5) << "no position in it";
    Voyage().portCalls.push_back(Voyage().portCalls[1]);
    EXPECT_EQ(voyages.SplitAisRows("9", before, after), -4);
    Voyage().positionBook.points[1].psp = 0;
    EXPECT_EQ(voyages.SplitAisRows("9", before, after), -3);
}

TEST_F(VoyageCorrectionTest, CorrectedVoyageStaysSoUntilItIsCleared) {
    ReplyWay();
    voyages.ApplyAisPosition("9", applied);
    Voyage().aisModTimes = {"2024-03-01 17:00:00"};
    int count = 0;
    EXPECT_EQ(voyages.GetModAis("9", count), 0);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(voyages.ClearAisMod(""), -1);
    EXPECT_EQ(voyages.ClearAisMod("x"), -2);
    host.requests.clear();
    EXPECT_EQ(voyages.ClearAisMod("9"), 0);
    EXPECT_EQ(Voyage().modais, 0);
    EXPECT_TRUE(Voyage().aisModTimes.empty());
    EXPECT_TRUE(host.requests.empty()) << "only the memory forgets";
}

}  // namespace
}  // namespace Tarvik::Seaplan
