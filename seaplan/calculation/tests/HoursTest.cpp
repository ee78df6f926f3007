// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "seaplan/calculation/Schedule.h"
#include "seaplan/calculation/tests/Rows.h"

namespace Tarvik::Seaplan {

namespace {

using namespace Testing;

constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(AddHours, LongSpanIsAsExactAsOneAddition) {
    auto time = At(1, 0);
    ASSERT_EQ(AddHours(1200.5F, time), 0);
    EXPECT_EQ(Text(time), "2026-04-20 00:30:00");
    auto steps = At(1, 0);
    for (const float step : {500.0F, 500.0F, 200.5F}) {
        ASSERT_EQ(AddHours(step, steps), 0);
    }
    EXPECT_EQ(time, steps);
}

TEST(AddHours, NothingAndTheLongestChunkAreExact) {
    auto time = At(1, 0);
    ASSERT_EQ(AddHours(0, time), 0);
    EXPECT_EQ(time, At(1, 0));
    ASSERT_EQ(AddHours(500, time), 0);
    EXPECT_EQ(Text(time), "2026-03-21 20:00:00");
    ASSERT_EQ(AddHours(-500, time), 0);
    EXPECT_EQ(time, At(1, 0));
}

TEST(AddHours, EndsWithTheCalendar) {
    auto time = Util::_datetime_t(0, 0, 23, 31, 12, 9999);
    ASSERT_EQ(AddHours(0.5F, time), 0);
    EXPECT_EQ(AddHours(1, time), -1);
    EXPECT_EQ(Text(time), "9999-12-31 23:30:00");
    time = Util::_datetime_t(0, 0, 1, 1, 1, 1);
    ASSERT_EQ(AddHours(-1, time), 0);
    EXPECT_EQ(AddHours(-1, time), -1);
    EXPECT_EQ(time, Util::_datetime_t(0, 0, 0, 1, 1, 1));
}

TEST(AddHours, NegativeSpanGoesBack) {
    auto time = At(1, 0);
    ASSERT_EQ(AddHours(-2160, time), 0);
    EXPECT_EQ(Text(time), "2025-12-01 00:00:00");
}

TEST(AddHours, CentisecondsAreTruncatedTowardZero) {
    const auto start = At(1, 0);
    auto time = start;
    ASSERT_EQ(AddHours(1.9F / 360000, time), 0);
    EXPECT_EQ(time.total_csecs() - start.total_csecs(), 1);
    time = start;
    ASSERT_EQ(AddHours(-1.9F / 360000, time), 0);
    EXPECT_EQ(time.total_csecs() - start.total_csecs(), -1);
}

TEST(AddHours, RefusesWhatIsNoTime) {
    for (const float hours : {kInfinity, -kInfinity, std::nanf(""), 3e38F, -3e38F, 9e7F}) {
        auto time = At(1, 0);
        EXPECT_EQ(AddHours(hours, time), -1) << hours;
        EXPECT_EQ(time, At(1, 0));
    }
}

TEST(AddHours, ForwardAndBackMeetAgain) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> hours(-20000, 20000);
    for (int i = 0; i < 2000; ++i) {
        const float step = hours(random);
        auto time = At(1, 0);
        ASSERT_EQ(AddHours(step, time), 0);
        // Brute force: the same span in the steps that a 32-bit span allows.
        auto expected = At(1, 0);
        double rest = std::fabs(static_cast<double>(step));
        while (rest > 0) {
            const double chunk = std::min(rest, 500.0);
            const auto span = Util::_time_t::from_csecs(static_cast<std::int32_t>(chunk * 360000));
            expected = step > 0 ? expected + span : expected - span;
            rest -= chunk;
        }
        ASSERT_EQ(time, expected) << step;
        ASSERT_EQ(AddHours(-step, time), 0);
        ASSERT_EQ(time, At(1, 0)) << step;
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

TEST(HoursBetween, ReadsByPositionWhateverStandsBetween) {
    float result = -99;
    EXPECT_EQ(HoursBetween("2026xx03xx02xx01xx0", "2026-03-01 23:00:00", result), 0);
    EXPECT_NE(result, -99);
    EXPECT_EQ(HoursBetween("no time is told her", "no time is told her", result), 0);
    EXPECT_EQ(result, 0) << "every part reads as 0";
}

TEST(HoursBetween, ThereAndBackDifferOnlyInSign) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<std::int64_t> seconds(0, 4102444800);
    for (int i = 0; i < 1000; ++i) {
        const auto a = Util::_datetime_t::from_gmt_timer(seconds(random));
        const auto b = Util::_datetime_t::from_gmt_timer(seconds(random));
        float there = 0;
        float back = 0;
        ASSERT_EQ(HoursBetween(Text(a), Text(b), there), 0);
        ASSERT_EQ(HoursBetween(Text(b), Text(a), back), 0);
        ASSERT_EQ(there, -back) << Text(a) << " " << Text(b);
        const double exact = static_cast<double>(a.to_gmt_timer() - b.to_gmt_timer()) / 3600;
        ASSERT_NEAR(there, exact, std::fabs(exact) * 1e-7) << Text(a) << " " << Text(b);
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

}  // namespace
}  // namespace Tarvik::Seaplan
