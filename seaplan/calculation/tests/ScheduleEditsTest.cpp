// SPDX-License-Identifier: MIT
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

PortCallRows Recomputed(const PortCallRows& rows) {
    PortCallRows out;
    EXPECT_EQ(RecomputeSchedule(rows, out), 0);
    return out;
}

// An edited ETA leaves distance and weather alone, so the speed gives way.
TEST(ScheduleEdits, ArrivalFiveHoursOnAsksForTwentyKnotsWhateverTheSpeedWas) {
    float gap = 0;
    ASSERT_EQ(HoursBetween("2026-03-01 15:00:00", "2026-03-01 10:00:00", gap), 0);
    for (const float before : {3.0F, 10.0F, 20.0F, 40.0F}) {
        auto rows = PortCallRows{Call("A", 0), Call("B", 100), Call("C", 100, before)};
        rows[2].psp = static_cast<float>(SpeedForSteamTime(rows[2].distance, gap, rows[2].pw));
        EXPECT_EQ(rows[2].psp, 20);
        EXPECT_EQ(Text(Recomputed(rows)[2].eta), "2026-03-01 15:00:00");
    }
}

TEST(ScheduleEdits, LaterRowsShiftWithTheirOwnSpeeds) {
    const auto before = Recomputed({Call("A", 0), Call("B", 100), Call("C", 50, 5, 0, 2), Call("D", 60, 12)});
    auto rows = before;
    rows[1].psp = static_cast<float>(SpeedForSteamTime(100, 4, 0));
    const auto after = Recomputed(rows);
    EXPECT_EQ(Text(after[1].eta), "2026-03-01 04:00:00");
    for (const std::size_t i : {2U, 3U}) {
        EXPECT_EQ(after[i].psp, before[i].psp);
        EXPECT_EQ(before[i].eta.total_csecs() - after[i].eta.total_csecs(), 6 * 360000);
    }
}

TEST(ScheduleEdits, WeatherCountsInTheSpeedThatAnArrivalAsksFor) {
    EXPECT_DOUBLE_EQ(SpeedForSteamTime(100, 12.5, 0.2), 10);
    EXPECT_DOUBLE_EQ(SpeedForSteamTime(0, 5, 0), 0);
    EXPECT_FALSE(std::isfinite(SpeedForSteamTime(100, 0, 0)));
    EXPECT_FALSE(std::isfinite(SpeedForSteamTime(100, 5, 1)));
}

TEST(ScheduleEdits, SpeedAndSteamTimeAreEachOthersInverse) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> value(0.1, 5000);
    std::uniform_real_distribution<double> weather(0, 0.99);
    for (int i = 0; i < 1000; ++i) {
        const double distance = value(random);
        const double hours = value(random);
        const double w = weather(random);
        const double speed = SpeedForSteamTime(distance, hours, w);
        ASSERT_NEAR(SteamTime(distance, speed, w), hours, hours * 1e-12);
    }
}

TEST(ScheduleEdits, DepartureEqualToTheArrivalIsAStayOfNothing) {
    float stay = -1;
    ASSERT_EQ(HoursBetween("2026-03-01 10:00:00", "2026-03-01 10:00:00", stay), 0);
    auto rows = PortCallRows{Call("A", 0), Call("B", 100, 10, 0, 7), Call("C", 10)};
    rows[1].apt = stay;
    const auto out = Recomputed(rows);
    EXPECT_EQ(out[1].eta, out[1].etd);
    EXPECT_EQ(Text(out[2].eta), "2026-03-01 11:00:00");
}

TEST(ScheduleEdits, NewStartMovesTheWholeScheduleAndWipesTheFirstStay) {
    auto rows = PortCallRows{Call("A", 0, 10, 0, 9), Call("B", 100)};
    rows[0].eta = At(5, 12);
    rows[0].apt = 0;
    const auto out = Recomputed(rows);
    EXPECT_EQ(Text(out[0].etd), "2026-03-05 12:00:00");
    EXPECT_EQ(Text(out[1].eta), "2026-03-05 22:00:00");
}

// A stored number is the whole expression in double, rounded once: rounding in between gives another number.
TEST(ScheduleNumbers, SteamTimeIsRoundedOnce) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> value(1, 5000);
    std::uniform_real_distribution<float> weather(0, 0.9F);
    int differing = 0;
    for (int i = 0; i < 2000; ++i) {
        const float distance = value(random);
        const float speed = value(random);
        const float w = weather(random);
        const auto expected = static_cast<float>(static_cast<double>(distance) /
                                                 ((1 - static_cast<double>(w)) * static_cast<double>(speed)));
        const float inSteps = distance / ((1.0F - w) * speed);
        differing += inSteps != expected ? 1 : 0;
        PortCallRows out;
        ASSERT_EQ(RecomputeSchedule({Call("A", 0), Call("B", distance, speed, w)}, out), 0);
        ASSERT_EQ(out[1].steamTime, expected);
        ASSERT_EQ(BuildSchedule(At(1, 0), {Call("A", 0), Call("B", distance, speed, w)}, out), 0);
        ASSERT_EQ(out[1].steamTime, expected);
    }
    EXPECT_GT(differing, 0) << "the numbers can tell the two ways apart";
}

TEST(ScheduleNumbers, SumsRunInDoubleAndAreRoundedOnce) {
    PortCallRows rows(1000, Call("A", 0.1F, 10, 0, 0.1F));
    for (auto& row : rows) {
        row.steamTime = 0.1F;
    }
    float inSteps = 0;
    for (int i = 0; i < 1000; ++i) {
        inSteps += 0.1F;
    }
    const auto exact = static_cast<float>(1000 * static_cast<double>(0.1F));
    ASSERT_NE(inSteps, exact);
    ScheduleTotals totals;
    ASSERT_TRUE(TotalsOf(rows, totals));
    EXPECT_EQ(totals.distance, exact);
    EXPECT_EQ(totals.steamTime, exact);
    EXPECT_EQ(totals.portTime, exact);
    ScheduleSummary summary;
    ASSERT_TRUE(SummaryOf(rows, summary));
    EXPECT_EQ(summary.totalDistance, static_cast<float>(999 * static_cast<double>(0.1F)));
    EXPECT_EQ(summary.averageSpeed, 0.5F);
}

}  // namespace
}  // namespace Tarvik::Seaplan
