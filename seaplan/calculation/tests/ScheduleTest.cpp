// SPDX-License-Identifier: MIT
#include "seaplan/calculation/Schedule.h"

#include "seaplan/calculation/tests/Rows.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

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
    ASSERT_EQ(BuildSchedule(at(1, 6), {call("A", 7, 8, 0.5F, 2), call("B", 100, 10, 0.2F, 4)}, out), 0);
    EXPECT_EQ(out[0].pp, "L");
    EXPECT_EQ(out[0].psp, 0);
    EXPECT_EQ(out[0].pw, 0);
    EXPECT_EQ(out[0].steamTime, 0);
    EXPECT_EQ(out[0].distance, 7);
    EXPECT_EQ(out[0].ppi, "4A");
    EXPECT_EQ(text(out[0].eta), "2026-03-01 06:00:00");
    EXPECT_EQ(text(out[0].etd), "2026-03-01 08:00:00");
    EXPECT_EQ(out[1].pp, "D");
    EXPECT_FLOAT_EQ(out[1].steamTime, 12.5F);
    EXPECT_EQ(out[1].pw, 0.2F);
    EXPECT_EQ(text(out[1].eta), "2026-03-01 20:30:00");
    EXPECT_EQ(text(out[1].etd), "2026-03-02 00:30:00");
}

TEST(BuildSchedule, MissingSpeedSailsAtTenKnots) {
    PortCallRows out;
    ASSERT_EQ(BuildSchedule(at(1, 0), {call("A", 0), call("B", 100, 0), call("C", 50, 0.0000009F)}, out), 0);
    EXPECT_EQ(out[1].psp, 10);
    EXPECT_EQ(out[1].steamTime, 10);
    EXPECT_EQ(out[2].psp, 10);
    EXPECT_EQ(out[2].steamTime, 5);
}

TEST(BuildSchedule, NoRowsGiveNoSchedule) {
    PortCallRows out{call("X", 1)};
    EXPECT_EQ(BuildSchedule(at(1, 0), {}, out), 0);
    EXPECT_TRUE(out.empty());
}

TEST(BuildSchedule, WeatherOfOneFailsAndLeavesNothing) {
    PortCallRows out{call("X", 1)};
    EXPECT_EQ(BuildSchedule(at(1, 0), {call("A", 0), call("B", 100, 10, 1)}, out), -1);
    EXPECT_TRUE(out.empty());
}

TEST(BuildSchedule, SpanBeyondTheCalendarFails) {
    PortCallRows out;
    EXPECT_EQ(BuildSchedule(at(1, 0), {call("A", 0), call("B", 1e30F, 10)}, out), -1);
    EXPECT_EQ(BuildSchedule(at(1, 0), {call("A", 0, 10, 0, kInfinity), call("B", 10)}, out), -1);
}

TEST(RecomputeSchedule, StartsAtTheFirstRowsOwnEta) {
    auto rows = PortCallRows{call("A", 0, 9, 0.25F, 1), call("B", 100, 10, 0, 2)};
    rows[0].pp = "B";
    PortCallRows out;
    ASSERT_EQ(RecomputeSchedule(rows, out), 0);
    EXPECT_EQ(out[0].ppi, "");
    EXPECT_EQ(out[1].ppi, "");
    EXPECT_EQ(out[0].pp, "B");
    EXPECT_EQ(out[0].psp, 0);
    EXPECT_EQ(out[0].pw, 0.25F);
    EXPECT_EQ(out[0].steamTime, 0);
    EXPECT_EQ(text(out[0].etd), "2026-03-01 01:00:00");
    EXPECT_EQ(text(out[1].eta), "2026-03-01 11:00:00");
    EXPECT_EQ(text(out[1].etd), "2026-03-01 13:00:00");
}

struct BadRow {
    VoyPortCall row;
    int code;
};

TEST(RecomputeSchedule, BadRowStopsThePassWithNothingReturned) {
    for (const auto& [row, code] :
         {BadRow{call("B", 100, 10, -0.01F), -1}, BadRow{call("B", 100, 10, 1), -1},
          BadRow{call("B", 100, 10, std::nanf("")), -1}, BadRow{call("B", 100, 0), -2},
          BadRow{call("B", 100, 0.009F), -2}, BadRow{call("B", kInfinity), -3},
          BadRow{call("B", 100, 10, 0, kInfinity), -3}}) {
        PortCallRows out{call("X", 1)};
        EXPECT_EQ(RecomputeSchedule({call("A", 0), row}, out), code);
        EXPECT_TRUE(out.empty());
    }
}

TEST(RecomputeSchedule, WeatherOfTheFirstRowIsTested) {
    PortCallRows out;
    EXPECT_EQ(RecomputeSchedule({call("A", 0, 10, 1), call("B", 100)}, out), -1);
    EXPECT_EQ(RecomputeSchedule({call("A", 0, 0, 0), call("B", 100)}, out), 0) << "the first speed is not";
}

TEST(RecomputeSchedule, ThresholdsAreTheDecimalsAsWritten) {
    PortCallRows out;
    EXPECT_EQ(RecomputeSchedule({call("A", 0), call("B", 1, 0.01F)}, out), -2)
        << "the field is just below 0.01";
    EXPECT_EQ(RecomputeSchedule({call("A", 0), call("B", 1, 0.010001F)}, out), 0);
    EXPECT_EQ(RecomputeSchedule({call("A", 0), call("B", 1, 10, 0.9999999F)}, out), 0);
}

TEST(RecomputeSchedule, NoRowsGiveNoSchedule) {
    PortCallRows out{call("X", 1)};
    EXPECT_EQ(RecomputeSchedule({}, out), 0);
    EXPECT_TRUE(out.empty());
}

// An edited ETA leaves distance and weather alone, so the speed follows from the gap.
TEST(RecomputeSchedule, SpeedFromAnEditedEtaMeetsThatEta) {
    float gap = 0;
    ASSERT_EQ(HoursBetween("2026-03-01 15:00:00", "2026-03-01 10:00:00", gap), 0);
    auto rows = PortCallRows{call("A", 0), call("B", 100), call("C", 100, 3)};
    const float stretch = rows[2].distance / ((1 - rows[2].pw) * gap);
    EXPECT_EQ(stretch, 20);
    rows[2].psp = stretch;
    PortCallRows out;
    ASSERT_EQ(RecomputeSchedule(rows, out), 0);
    EXPECT_EQ(text(out[2].eta), "2026-03-01 15:00:00");
}

TEST(AddHours, LongSpanIsAsExactAsOneAddition) {
    auto time = at(1, 0);
    ASSERT_EQ(AddHours(1200.5F, time), 0);
    EXPECT_EQ(text(time), "2026-04-20 00:30:00");
    auto steps = at(1, 0);
    for (const float step : {500.0F, 500.0F, 200.5F}) {
        ASSERT_EQ(AddHours(step, steps), 0);
    }
    EXPECT_EQ(time, steps);
}

TEST(AddHours, NegativeSpanGoesBack) {
    auto time = at(1, 0);
    ASSERT_EQ(AddHours(-2160, time), 0);
    EXPECT_EQ(text(time), "2025-12-01 00:00:00");
}

TEST(AddHours, CentisecondsAreTruncatedTowardZero) {
    const auto start = at(1, 0);
    auto time = start;
    ASSERT_EQ(AddHours(1.9F / 360000, time), 0);
    EXPECT_EQ(time.total_csecs() - start.total_csecs(), 1);
    time = start;
    ASSERT_EQ(AddHours(-1.9F / 360000, time), 0);
    EXPECT_EQ(time.total_csecs() - start.total_csecs(), -1);
}

TEST(AddHours, RefusesWhatIsNoTime) {
    for (const float hours : {kInfinity, -kInfinity, std::nanf(""), 3e38F, -3e38F, 9e7F}) {
        auto time = at(1, 0);
        EXPECT_EQ(AddHours(hours, time), -1) << hours;
        EXPECT_EQ(time, at(1, 0));
    }
}

TEST(AddHours, ForwardAndBackMeetAgain) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> hours(-20000, 20000);
    for (int i = 0; i < 2000; ++i) {
        const float step = hours(random);
        auto time = at(1, 0);
        ASSERT_EQ(AddHours(step, time), 0);
        // Brute force: the same span in the steps that a 32-bit span allows.
        auto expected = at(1, 0);
        double rest = std::fabs(static_cast<double>(step));
        while (rest > 0) {
            const double chunk = std::min(rest, 500.0);
            const auto span = Util::_time_t::from_csecs(static_cast<std::int32_t>(chunk * 360000));
            expected = step > 0 ? expected + span : expected - span;
            rest -= chunk;
        }
        ASSERT_EQ(time, expected) << step;
        ASSERT_EQ(AddHours(-step, time), 0);
        ASSERT_EQ(time, at(1, 0)) << step;
    }
}

struct HoursCase {
    const char* a;
    const char* b;
    float hours;
};

TEST(HoursBetween, CountsAcrossDaysMonthsAndYears) {
    for (const auto& [a, b, hours] :
         {HoursCase{"2026-03-02 01:00:00", "2026-03-01 23:00:00", 2},
          HoursCase{"2026-01-01 00:30:00", "2025-12-31 23:00:00", 1.5F},
          HoursCase{"2024-03-01 00:00:00", "2024-02-28 00:00:00", 48},
          HoursCase{"2026-03-01 10:00:00", "2026-03-01 10:00:00", 0},
          HoursCase{"2026-03-01 10:00:00", "2026-03-01 12:30:00", -2.5F},
          HoursCase{"2026/03/02T01:00:00", "2026-03-01 23:59:59", 3601.0F / 3600}}) {
        float result = -99;
        EXPECT_EQ(HoursBetween(a, b, result), 0) << a;
        EXPECT_FLOAT_EQ(result, hours) << a << " - " << b;
    }
}

TEST(HoursBetween, RefusesTextsOfAnotherLength) {
    const std::string good = "2026-03-01 10:00:00";
    for (const std::string bad : {"", " ", "2026-03-01 10:00:0", "2026-03-01 10:00:00 "}) {
        float result = -99;
        EXPECT_EQ(HoursBetween(bad, good, result), -1);
        EXPECT_EQ(HoursBetween(good, bad, result), -1);
        EXPECT_EQ(result, -99);
    }
}

TEST(Totals, CountTheStayAtTheFirstPortAndTheSummaryDoesNot) {
    PortCallRows rows;
    ASSERT_EQ(
        BuildSchedule(at(1, 0), {call("A", 0, 10, 0, 6), call("B", 100, 10, 0, 2), call("C", 50)}, rows), 0);
    ScheduleTotals totals;
    ASSERT_TRUE(TotalsOf(rows, totals));
    EXPECT_EQ(totals.portTime, 8);
    EXPECT_EQ(totals.steamTime, 15);
    EXPECT_EQ(totals.distance, 150);
    EXPECT_EQ(text(totals.eta), "2026-03-01 00:00:00");
    EXPECT_EQ(text(totals.etd), "2026-03-01 23:00:00");
    ScheduleSummary summary;
    ASSERT_TRUE(SummaryOf(rows, summary));
    EXPECT_EQ(summary.totalTime, 17);
    EXPECT_EQ(summary.totalDistance, 150);
    EXPECT_EQ(summary.averageSpeed, 150.0F / 17);
}

TEST(Totals, FewerThanTwoRowsLeaveTheFiguresAlone) {
    ScheduleTotals totals;
    totals.distance = 3;
    EXPECT_FALSE(TotalsOf({call("A", 1)}, totals));
    EXPECT_EQ(totals.distance, 3);
    ScheduleSummary summary;
    summary.totalTime = 3;
    EXPECT_FALSE(SummaryOf({call("A", 1)}, summary));
    EXPECT_FALSE(SummaryOf({}, summary));
    EXPECT_EQ(summary.totalTime, 3);
}

TEST(Summary, NoTimeLeavesTheFiguresAlone) {
    ScheduleSummary summary;
    summary.averageSpeed = 3;
    EXPECT_FALSE(SummaryOf({call("A", 0, 10, 0, 9), call("B", 100)}, summary));
    EXPECT_EQ(summary.averageSpeed, 3);
}

}  // namespace
}  // namespace Tarvik::Seaplan
