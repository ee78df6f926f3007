// SPDX-License-Identifier: MIT
#include "seaplan/calculation/PlannedProgress.h"
#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

namespace {

using Util::_datetime_t;

_datetime_t At(int hour, int minute = 0, int second = 0) {
    return {second, minute, hour, 1, 3, 2024};
}

PosBookPoint RowAt(const std::string& position, const _datetime_t& etd) {
    PosBookPoint made;
    made.position = position;
    made.psp = 10.0F;
    made.eta = etd;
    made.etd = etd;
    return made;
}

/// A at 0,0 until 06:00; rows at 1 and 2 degrees, B at 3 degrees. A degree takes 6 hours and 38 seconds.
class CorrectedProgressTest : public testing::Test {
  protected:
    CorrectedProgressTest() {
        ports.resize(2);
        ports[0].eta = At(0);
        ports[0].etd = At(6);
        ports[1].eta = At(23, 59);
        ports[1].etd = At(23, 59);
        groups[0] = {RowAt("0.000,0.000", At(6))};
        groups[1] = {RowAt("1.000,0.000", At(12, 0, 38)), RowAt("2.000,0.000", At(18, 1, 16)),
                     RowAt("3.000,0.000", At(23, 59))};
    }
    int Run(const _datetime_t& correction, const _datetime_t& now) {
        return CorrectedProgress(ports, groups, correction, now, progress);
    }
    TestSupport::ManualClock clock;
    PortCallRows ports;
    std::map<int, BookPoints> groups;
    PlannedProgress progress;
};

TEST_F(CorrectedProgressTest, RowsBeforeTheCorrectionBelongToNeitherLine) {
    EXPECT_EQ(Run(At(13), At(15)), 0);
    EXPECT_EQ(progress.sailed, PointTexts{progress.current}) << "the way from the row before it is not drawn";
    EXPECT_EQ(progress.remaining, (PointTexts{progress.current, "2.000,0.000", "3.000,0.000"}));
    EXPECT_EQ(progress.current, "1.498,0.000");
}

TEST_F(CorrectedProgressTest, RowCountsAsOlderFromThirtyOneSecondsOn) {
    EXPECT_EQ(Run(At(18, 1, 46), At(21)), 0);
    ASSERT_EQ(progress.sailed.size(), 2U) << "30 seconds";
    EXPECT_EQ(progress.sailed[0], "2.000,0.000");
    EXPECT_EQ(Run(At(18, 1, 47), At(21)), 0);
    EXPECT_EQ(progress.sailed.size(), 1U) << "31 seconds";
}

TEST_F(CorrectedProgressTest, RowIsPassedThirtyOneSecondsBehindItsTime) {
    EXPECT_EQ(Run(At(13), At(18, 1, 46)), 0);
    EXPECT_EQ(progress.remaining.size(), 3U) << "30 seconds";
    EXPECT_EQ(Run(At(13), At(18, 1, 47)), 0);
    EXPECT_EQ(progress.remaining.size(), 2U) << "31 seconds";
    EXPECT_EQ(progress.sailed.front(), "2.000,0.000");
}

TEST_F(CorrectedProgressTest, LegWithNothingSailedBeforeItBeginsAtItsFirstRow) {
    EXPECT_EQ(Run(At(6), At(9)), 0);
    EXPECT_EQ(progress.sailed, (PointTexts{"1.000,0.000", "1.501,0.000"}));
    EXPECT_EQ(progress.remaining, (PointTexts{"1.501,0.000", "2.000,0.000", "3.000,0.000"}));
}

TEST_F(CorrectedProgressTest, ReachedPortKeepsWhatTheTrackDoesNotCover) {
    EXPECT_EQ(Run(At(13), At(23, 59)), 0);
    EXPECT_EQ(progress.sailed, (PointTexts{"2.000,0.000", "3.000,0.000"}));
    EXPECT_EQ(progress.current, "3.000,0.000");
    EXPECT_TRUE(progress.remaining.empty());
}

TEST_F(CorrectedProgressTest, BeforeDepartureEverythingButTheFirstPortRemains) {
    EXPECT_EQ(Run(At(0), At(5)), 0);
    EXPECT_TRUE(progress.sailed.empty());
    EXPECT_EQ(progress.remaining, (PointTexts{"1.000,0.000", "2.000,0.000", "3.000,0.000"}));
    EXPECT_EQ(progress.current, "");
}

TEST_F(CorrectedProgressTest, EveryFailureHasItsNumber) {
    ports[1].pw = 1.0F;
    EXPECT_EQ(Run(At(0), At(7)), -13) << "as for a voyage that was not corrected";
    ports[1].pw = 0.9999999F;
    groups[1][0].psp = 0.00011F;
    EXPECT_EQ(Run(At(0), At(7)), -14) << "arrival thousands of years ahead";
    groups[1][0].psp = 10.0F;
    ports[1].pw = 1.5F;
    EXPECT_EQ(Run(At(0), At(7)), -8);
    ports[1].pw = 0;
    groups[1][1].psp = 0.0001F;
    EXPECT_EQ(Run(At(0), At(13)), -12);
    groups[1][1].position = ",1";
    EXPECT_EQ(Run(At(0), At(13)), -11);
    groups[1][1].position = "1";
    EXPECT_EQ(Run(At(0), At(13)), -10);
    groups[1][0].position = "1";
    EXPECT_EQ(Run(At(0), At(13)), -9) << "its own position, for nothing is sailed before";
    groups.erase(1);
    EXPECT_EQ(Run(At(0), At(13)), -7);
}

/// A voyage between A and B that was corrected while under way.
class CorrectedVoyageTest : public ScheduleFixture {
  protected:
    CorrectedVoyageTest() {
        clock.SetUtc(2024, 3, 1, 18, 30);
        Voyage().modais = 1;
    }
    void ReplyTimes(const std::string& serverTime) { host.Reply(12, R"({times:[")" + serverTime + R"("]})"); }
};

TEST_F(CorrectedVoyageTest, IsDrawnWithoutWhatTheRealTrackCovers) {
    ReplySchedule();
    ReplyTimes("2024-03-01 09:30:00");
    EXPECT_EQ(voyages.ShowVoyage("9"), 0);
    const auto lines = host.ChartCallsOf("TRV_MAP_ADD_LINE");
    ASSERT_EQ(lines.size(), 1U) << "the sailed line has one point";
    EXPECT_EQ(lines[0].id, "9_5");
    const auto ships = host.ChartCallsOf("TRV_MAP_ADD_IMAGE");
    ASSERT_EQ(ships.size(), 1U);
    EXPECT_EQ(ships[0].position, lines[0].points.front());
    EXPECT_EQ(module.Pending().DrawnVoyage(), "") << "only the plain drawing remembers the voyage";
}

TEST_F(CorrectedVoyageTest, NeedsScheduleTimesAndAPlaceForTheShip) {
    EXPECT_EQ(voyages.ShowVoyage("9"), -7);
    ReplySchedule();
    EXPECT_EQ(voyages.ShowVoyage("9"), -8);
    ReplyTimes("2024-03-01 09:30:00");
    clock.SetUtc(2024, 3, 1, 8);
    EXPECT_EQ(voyages.ShowVoyage("9"), -9) << "the ship is still in the first port";
}

TEST_F(CorrectedVoyageTest, DrawingLadder) {
    EXPECT_EQ(module.DrawAisProgress(Voyage()), -1);
    ReplySchedule();
    voyages.LoadSchedule("9", rows, -1);
    EXPECT_EQ(module.DrawAisProgress(Voyage()), -6) << "no correction time";
    Voyage().aisModTimes = {"2024-03-01 17:30:00", "no time"};
    EXPECT_EQ(module.DrawAisProgress(Voyage()), -6) << "the last one counts";
    Voyage().aisModTimes = {"2024-03-01 17:30:00"};
    EXPECT_EQ(module.DrawAisProgress(Voyage()), 0);
    VoyInfo other = Voyage();
    other.vi.clear();
    EXPECT_EQ(module.DrawAisProgress(other), -15);
    other = Voyage();
    other.positionBook.points[1].psp = 0;
    EXPECT_EQ(module.DrawAisProgress(other), -3);
    other = Voyage();
    other.portCalls.push_back(other.portCalls[1]);
    EXPECT_EQ(module.DrawAisProgress(other), -5);
}

}  // namespace
}  // namespace Tarvik::Seaplan
