// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "seaplan/calculation/PlannedProgress.h"
#include "testsupport/ManualClock.h"

namespace Tarvik::Seaplan {

namespace {

using Util::_datetime_t;

_datetime_t At(int day, int hour, int minute = 0, int second = 0) {
    return {second, minute, hour, day, 3, 2024};
}

PosBookPoint Point(const std::string& position, float speed, int kind = PlainPoint) {
    PosBookPoint made;
    made.position = position;
    made.psp = speed;
    made.pst = kind;
    return made;
}

/// A at 0,0 from day 1 06:00 on; B at 2,0, two degrees of the equator (120.2 NM) away, reached after some 12
/// hours.
class PlannedProgressTest : public testing::Test {
  protected:
    PlannedProgressTest() {
        ports.resize(2);
        ports[0].eta = At(1, 0);
        ports[0].etd = At(1, 6);
        ports[1].eta = At(1, 18, 1);
        ports[1].etd = At(2, 0);
        groups[0] = {Point("0.000,0.000", 0.0F, PortPoint)};
        groups[1] = {Point("1.000,0.000", 10.0F), Point("2.000,0.000", 10.0F, PortPoint)};
    }
    int Run(const _datetime_t& now) { return PlanProgress(ports, groups, now, progress); }

    TestSupport::ManualClock clock;
    PortCallRows ports;
    std::map<int, BookPoints> groups;
    PlannedProgress progress;
};

TEST_F(PlannedProgressTest, BeforeDepartureEverythingRemains) {
    EXPECT_EQ(Run(At(1, 5)), 0);
    EXPECT_EQ(progress.current, "0.000,0.000");
    EXPECT_EQ(progress.sailed, PointTexts{"0.000,0.000"});
    EXPECT_EQ(progress.remaining, (PointTexts{"0.000,0.000", "1.000,0.000", "2.000,0.000"}));
}

TEST_F(PlannedProgressTest, ExactlyAtArrivalTheWholeLegIsSailed) {
    EXPECT_EQ(Run(At(1, 18, 1)), 0);
    EXPECT_EQ(progress.current, "2.000,0.000");
    EXPECT_EQ(progress.sailed, (PointTexts{"0.000,0.000", "1.000,0.000", "2.000,0.000"}));
    EXPECT_TRUE(progress.remaining.empty());
}

TEST_F(PlannedProgressTest, UnderWayTheShipStandsBetweenTheRows) {
    EXPECT_EQ(Run(At(1, 9)), 0);
    // The first row is 60.107 NM and 6.0107 hours away, reached at 12:00:38. Three whole hours are left,
    // so 30.107 NM are covered.
    EXPECT_EQ(progress.current, "0.501,0.000");
    EXPECT_EQ(progress.sailed, (PointTexts{"0.000,0.000", "0.501,0.000"}));
    EXPECT_EQ(progress.remaining, (PointTexts{"0.501,0.000", "1.000,0.000", "2.000,0.000"}));
}

TEST_F(PlannedProgressTest, RowsPassedBelongToTheSailedPart) {
    EXPECT_EQ(Run(At(1, 15)), 0);
    EXPECT_EQ(progress.sailed.size(), 3U);
    EXPECT_EQ(progress.sailed[1], "1.000,0.000");
    EXPECT_EQ(progress.remaining.size(), 2U);
    EXPECT_EQ(progress.current, "1.498,0.000");
}

TEST_F(PlannedProgressTest, SecondsDoNotMoveTheShip) {
    EXPECT_EQ(Run(At(1, 9, 0, 59)), 0);
    EXPECT_EQ(progress.current, "0.501,0.000");
}

TEST_F(PlannedProgressTest, WeatherSlowsTheShip) {
    ports[1].pw = 0.5F;
    ports[1].eta = At(2, 6);
    EXPECT_EQ(Run(At(1, 12)), 0);
    EXPECT_EQ(progress.current, "0.500,0.000");
}

TEST_F(PlannedProgressTest, LegAcrossTheDateLineIsInterpolatedTheLongWayRound) {
    groups[0] = {Point("179.000,0.000", 0.0F, PortPoint)};
    groups[1] = {Point("-179.000,0.000", 10.0F, PortPoint)};
    EXPECT_EQ(Run(At(1, 12)), 0);
    const double x = std::stod(progress.current);
    EXPECT_GT(x, -1.0);
    EXPECT_LT(x, 1.0);
}

TEST_F(PlannedProgressTest, LegWithoutLengthHasTheShipAtItsEnd) {
    groups[1] = {Point("0.000,0.000", 10.0F, PortPoint)};
    EXPECT_EQ(Run(At(1, 9)), 0);
    EXPECT_EQ(progress.current, "0.000,0.000");
    EXPECT_EQ(progress.sailed, (PointTexts{"0.000,0.000", "0.000,0.000"}));
    EXPECT_TRUE(progress.remaining.empty());
}

TEST_F(PlannedProgressTest, WeatherFactorOfOneEndsTheDrawingAndAboveIsRefused) {
    ports[1].pw = 1.0F;
    EXPECT_EQ(Run(At(1, 9)), -13);
    ports[1].pw = 1.01F;
    EXPECT_EQ(Run(At(1, 9)), -7);
}

TEST_F(PlannedProgressTest, EveryOtherFailureHasItsNumber) {
    groups[1][0].psp = 0.0001F;
    EXPECT_EQ(Run(At(1, 9)), -12);
    groups[1][0].position = "1.0";
    EXPECT_EQ(Run(At(1, 9)), -10);
    groups[0][0].position = "0";
    EXPECT_EQ(Run(At(1, 9)), -9);
    groups[1][0].position = "1,0";
    groups[0][0].position = ",0";
    EXPECT_EQ(Run(At(1, 9)), -11);
    groups.erase(1);
    EXPECT_EQ(Run(At(1, 9)), -6);
}

}  // namespace
}  // namespace Tarvik::Seaplan
