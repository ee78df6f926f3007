// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(SteamTime, WeatherReducesTheSpeed) {
    EXPECT_DOUBLE_EQ(SteamTime(100, 10, 0.2), 12.5);
    EXPECT_DOUBLE_EQ(SteamTime(100, 10, 0), 10);
}

TEST(BuildSchedule, TimesEveryRowFromTheStart) {
    PortCallRows out;
    ASSERT_EQ(BuildSchedule(At(1, 6), {Call("A", 7, 8, 0.5F, 2), Call("B", 100, 10, 0.2F, 4)}, out), 0);
    EXPECT_EQ(out[0].pp, "L");
    EXPECT_EQ(out[0].psp, 0);
    EXPECT_EQ(out[0].pw, 0);
    EXPECT_EQ(out[0].steamTime, 0);
    EXPECT_EQ(out[0].distance, 7);
    EXPECT_EQ(out[0].ppi, "4A");
    EXPECT_EQ(Text(out[0].eta), "2026-03-01 06:00:00");
    EXPECT_EQ(Text(out[0].etd), "2026-03-01 08:00:00");
    EXPECT_EQ(out[1].pp, "D");
    EXPECT_FLOAT_EQ(out[1].steamTime, 12.5F);
    EXPECT_EQ(out[1].pw, 0.2F);
    EXPECT_EQ(Text(out[1].eta), "2026-03-01 20:30:00");
    EXPECT_EQ(Text(out[1].etd), "2026-03-02 00:30:00");
}

TEST(BuildSchedule, MissingSpeedSailsAtTenKnots) {
    PortCallRows out;
    ASSERT_EQ(BuildSchedule(At(1, 0), {Call("A", 0), Call("B", 100, 0), Call("C", 50, 0.0000009F)}, out), 0);
    EXPECT_EQ(out[1].psp, 10);
    EXPECT_EQ(out[1].steamTime, 10);
    EXPECT_EQ(out[2].psp, 10);
    EXPECT_EQ(out[2].steamTime, 5);
}

TEST(BuildSchedule, SmallestSpeedsAndAnyWeatherAreTakenAsTheyStand) {
    PortCallRows out;
    ASSERT_EQ(BuildSchedule(At(1, 0),
                            {Call("A", 0), Call("B", 0.00011F, 0.0000011F), Call("C", 100, 10, -0.25F)}, out),
              0);
    EXPECT_EQ(out[1].psp, 0.0000011F);
    EXPECT_NEAR(out[1].steamTime, 100, 0.001);
    EXPECT_EQ(out[2].pw, -0.25F);
    EXPECT_EQ(out[2].steamTime, 8);
}

TEST(BuildSchedule, FirstPurposeBecomesLoadingWhateverItWas) {
    auto rows = PortCallRows{Call("A", 0), Call("B", 100)};
    rows[0].pp = "B";
    rows[1].pp = " ";
    PortCallRows out;
    ASSERT_EQ(BuildSchedule(At(1, 0), rows, out), 0);
    EXPECT_EQ(out[0].pp, "L");
    EXPECT_EQ(out[1].pp, " ");
    EXPECT_EQ(out[1].ppi, "4B");
}

TEST(BuildSchedule, NoRowsGiveNoSchedule) {
    PortCallRows out{Call("X", 1)};
    EXPECT_EQ(BuildSchedule(At(1, 0), {}, out), 0);
    EXPECT_TRUE(out.empty());
}

TEST(BuildSchedule, WeatherOfOneFailsAndLeavesNothing) {
    PortCallRows out{Call("X", 1)};
    EXPECT_EQ(BuildSchedule(At(1, 0), {Call("A", 0), Call("B", 100, 10, 1)}, out), -1);
    EXPECT_TRUE(out.empty());
}

TEST(BuildSchedule, SpanBeyondTheCalendarFails) {
    PortCallRows out;
    EXPECT_EQ(BuildSchedule(At(1, 0), {Call("A", 0), Call("B", 1e30F, 10)}, out), -1);
    EXPECT_EQ(BuildSchedule(At(1, 0), {Call("A", 0, 10, 0, kInfinity), Call("B", 10)}, out), -1);
}

TEST(RecomputeSchedule, StartsAtTheFirstRowsOwnEta) {
    auto rows = PortCallRows{Call("A", 0, 9, 0.25F, 1), Call("B", 100, 10, 0, 2)};
    rows[0].pp = "B";
    PortCallRows out;
    ASSERT_EQ(RecomputeSchedule(rows, out), 0);
    EXPECT_EQ(out[0].ppi, "");
    EXPECT_EQ(out[1].ppi, "");
    EXPECT_EQ(out[0].pp, "B");
    EXPECT_EQ(out[0].psp, 0);
    EXPECT_EQ(out[0].pw, 0.25F);
    EXPECT_EQ(out[0].steamTime, 0);
    EXPECT_EQ(Text(out[0].etd), "2026-03-01 01:00:00");
    EXPECT_EQ(Text(out[1].eta), "2026-03-01 11:00:00");
    EXPECT_EQ(Text(out[1].etd), "2026-03-01 13:00:00");
}

struct BadRow {
    VoyPortCall row;
    int code;
};

TEST(RecomputeSchedule, BadRowStopsThePassWithNothingReturned) {
    for (const auto& [row, code] :
         {BadRow{Call("B", 100, 10, -0.01F), -1}, BadRow{Call("B", 100, 10, 1), -1},
          BadRow{Call("B", 100, 10, std::nanf("")), -1}, BadRow{Call("B", 100, 0), -2},
          BadRow{Call("B", 100, 0.009F), -2}, BadRow{Call("B", kInfinity), -3},
          BadRow{Call("B", 100, 10, 0, kInfinity), -3}}) {
        PortCallRows out{Call("X", 1)};
        EXPECT_EQ(RecomputeSchedule({Call("A", 0), row}, out), code);
        EXPECT_TRUE(out.empty());
    }
}

TEST(RecomputeSchedule, WeatherOfTheFirstRowIsTested) {
    PortCallRows out;
    EXPECT_EQ(RecomputeSchedule({Call("A", 0, 10, 1), Call("B", 100)}, out), -1);
    EXPECT_EQ(RecomputeSchedule({Call("A", 0, 0, 0), Call("B", 100)}, out), 0) << "the first speed is not";
}

TEST(RecomputeSchedule, ThresholdsAreTheDecimalsAsWritten) {
    PortCallRows out;
    EXPECT_EQ(RecomputeSchedule({Call("A", 0), Call("B", 1, 0.01F)}, out), -2)
        << "the field is just below 0.01";
    EXPECT_EQ(RecomputeSchedule({Call("A", 0), Call("B", 1, 0.010001F)}, out), 0);
    EXPECT_EQ(RecomputeSchedule({Call("A", 0), Call("B", 1, 10, 0.9999999F)}, out), 0);
}

TEST(RecomputeSchedule, NoRowsGiveNoSchedule) {
    PortCallRows out{Call("X", 1)};
    EXPECT_EQ(RecomputeSchedule({}, out), 0);
    EXPECT_TRUE(out.empty());
}

TEST(Totals, CountTheStayAtTheFirstPortAndTheSummaryDoesNot) {
    PortCallRows rows;
    ASSERT_EQ(
        BuildSchedule(At(1, 0), {Call("A", 0, 10, 0, 6), Call("B", 100, 10, 0, 2), Call("C", 50)}, rows), 0);
    ScheduleTotals totals;
    ASSERT_TRUE(TotalsOf(rows, totals));
    EXPECT_EQ(totals.portTime, 8);
    EXPECT_EQ(totals.steamTime, 15);
    EXPECT_EQ(totals.distance, 150);
    EXPECT_EQ(Text(totals.eta), "2026-03-01 00:00:00");
    EXPECT_EQ(Text(totals.etd), "2026-03-01 23:00:00");
    ScheduleSummary summary;
    ASSERT_TRUE(SummaryOf(rows, summary));
    EXPECT_EQ(summary.totalTime, 17);
    EXPECT_EQ(summary.totalDistance, 150);
    EXPECT_EQ(summary.averageSpeed, 150.0F / 17);
}

TEST(Totals, FewerThanTwoRowsLeaveTheFiguresAlone) {
    ScheduleTotals totals;
    totals.distance = 3;
    EXPECT_FALSE(TotalsOf({Call("A", 1)}, totals));
    EXPECT_EQ(totals.distance, 3);
    ScheduleSummary summary;
    summary.totalTime = 3;
    EXPECT_FALSE(SummaryOf({Call("A", 1)}, summary));
    EXPECT_FALSE(SummaryOf({}, summary));
    EXPECT_EQ(summary.totalTime, 3);
}

TEST(Summary, NoTimeLeavesTheFiguresAlone) {
    ScheduleSummary summary;
    summary.averageSpeed = 3;
    EXPECT_FALSE(SummaryOf({Call("A", 0, 10, 0, 9), Call("B", 100)}, summary));
    EXPECT_EQ(summary.averageSpeed, 3);
}

}  // namespace
}  // namespace Tarvik::Seaplan
