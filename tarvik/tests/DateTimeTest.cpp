// SPDX-License-Identifier: MIT
#include <limits>

#include <gtest/gtest.h>

#include <tarvik/util/DateTime.h>

namespace Tarvik::Util {

namespace {

constexpr const char* kForm = "%Y-%m-%d %H:%M:%S";

// A time has six parts.  NOLINTNEXTLINE(readability-function-size)
_datetime_t At(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return {second, minute, hour, day, month, year};
}

TEST(TimeSpanTest, CountsCentiseconds) {
    EXPECT_EQ(_time_t().to_csecs(), 0);
    EXPECT_EQ(_time_t(1, 2, 3).to_csecs(), 372300);
    const _time_t span = _time_t::from_csecs(372399);
    EXPECT_EQ(span.hour(), 1);
    EXPECT_EQ(span.minute(), 2);
    EXPECT_EQ(span.second(), 3);
    EXPECT_LT(_time_t(1, 0), span);
    EXPECT_EQ(_time_t::from_csecs(std::numeric_limits<std::int32_t>::max()).hour(), 5965);
}

TEST(TimeSpanTest, PartsOfAnySizeDoNotOverflow) {
    constexpr int kMost = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    EXPECT_EQ(_time_t(0, kMost).to_csecs(), std::int64_t{6000} * kMost);
    EXPECT_EQ(_time_t(0, kMost, kMost).to_csecs(), std::int64_t{6100} * kMost);
    EXPECT_EQ(_time_t(kMost, kMost, kMost).to_csecs(), std::int64_t{366100} * kMost);
    EXPECT_EQ(_time_t(kLeast, kLeast, kLeast).to_csecs(), std::int64_t{366100} * kLeast);
    EXPECT_EQ(_time_t(kMost, 0).hour(), kMost);
}

TEST(DateTest, DayZeroIsTheFirstOf1970) {
    EXPECT_EQ(_date_t(1, 1, 1970).to_days(), 0);
    EXPECT_EQ(_date_t(31, 12, 1969).to_days(), -1);
    EXPECT_EQ(_date_t(1, 1, 2000).to_days(), 10957);
    EXPECT_EQ(_date_t(1, 1, 1).to_days(), -719162);
}

TEST(DateTest, EveryDayOfFourHundredYearsComesBack) {
    int expected = _date_t(1, 1, 1900).to_days();
    for (int year = 1900; year < 2300; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const int days = _date_t(1, month, year).month_days();
            for (int day = 1; day <= days; ++day, ++expected) {
                const _date_t date(day, month, year);
                ASSERT_EQ(date.to_days(), expected);
                ASSERT_TRUE(date.year() == year && date.month() == month && date.day() == day);
            }
        }
    }
    EXPECT_EQ(expected - _date_t(1, 1, 1900).to_days(), 146097);
}

TEST(DateTest, LeapYearsFollowTheGregorianRule) {
    EXPECT_EQ(_date_t(1, 2, 2024).month_days(), 29);
    EXPECT_EQ(_date_t(1, 2, 2023).month_days(), 28);
    EXPECT_EQ(_date_t(1, 2, 2000).month_days(), 29);
    EXPECT_EQ(_date_t(1, 2, 2100).month_days(), 28);
    EXPECT_EQ(_date_t(15, 12, 2023).month_days(), 31);
}

TEST(DateTest, WeekBeginsWithSundayZero) {
    EXPECT_EQ(_date_t(1, 1, 1970).day_of_week(), 4);
    EXPECT_EQ(_date_t(25, 2, 2024).day_of_week(), 0);
    EXPECT_EQ(_date_t(31, 12, 1969).day_of_week(), 3);
    EXPECT_EQ(_date_t(27, 12, 1969).day_of_week(), 6);
}

TEST(DateTest, DayNumbersCountAcrossYears) {
    EXPECT_EQ(_date_t(1, 1, 2025).year_julian() - _date_t(31, 12, 2024).year_julian(), 1);
    EXPECT_EQ(_date_t(1, 3, 2024).year_julian() - _date_t(28, 2, 2024).year_julian(), 2);
    EXPECT_EQ(_date_t(1, 1, 2025).year_julian() - _date_t(1, 1, 2024).year_julian(), 366);
}

TEST(DateTest, DatesBeyondTheRangeAreClamped) {
    EXPECT_EQ(_date_t(1, 1, std::numeric_limits<int>::max()).to_days(), std::numeric_limits<int>::max());
    EXPECT_EQ(_date_t(1, 13, 2023), _date_t(1, 1, 2024));
    EXPECT_EQ(_date_t(1, 0, 2024), _date_t(1, 12, 2023));
}

TEST(DateTimeTest, FieldsComeBack) {
    const _datetime_t value = At(2023, 12, 31, 23, 59, 58);
    EXPECT_EQ(value.year(), 2023);
    EXPECT_EQ(value.month(), 12);
    EXPECT_EQ(value.day(), 31);
    EXPECT_EQ(value.hour(), 23);
    EXPECT_EQ(value.minute(), 59);
    EXPECT_EQ(value.second(), 58);
}

TEST(DateTimeTest, AdditionAndSubtractionCrossYearEnds) {
    EXPECT_EQ((At(2023, 12, 31, 23, 30) + _time_t(1, 0)).fmt(kForm), "2024-01-01 00:30:00");
    EXPECT_EQ((At(2024, 1, 1, 0, 30) - _time_t(1, 0)).fmt(kForm), "2023-12-31 23:30:00");
    EXPECT_EQ((At(2024, 2, 28, 12) + _time_t(24, 0)).fmt(kForm), "2024-02-29 12:00:00");
    EXPECT_EQ((At(1970, 1, 1) - _time_t(0, 0, 1)).fmt(kForm), "1969-12-31 23:59:59");
    _datetime_t value = At(2024, 12, 31, 23, 59, 59);
    value += _time_t::from_csecs(150);
    EXPECT_EQ(value.fmt(kForm), "2025-01-01 00:00:00");
    value -= _time_t::from_csecs(51);
    EXPECT_EQ(value.fmt(kForm), "2024-12-31 23:59:59");
}

TEST(DateTimeTest, Compares) {
    EXPECT_LT(At(2023, 12, 31, 23, 59, 59), At(2024, 1, 1));
    EXPECT_EQ(At(2024, 1, 1), At(2024, 1, 1));
}

TEST(DateTimeTest, GmtTimerIsSecondsSince1970) {
    EXPECT_EQ(_datetime_t::from_gmt_timer(0), At(1970, 1, 1));
    EXPECT_EQ(_datetime_t::from_gmt_timer(1709164799), At(2024, 2, 28, 23, 59, 59));
    EXPECT_EQ(At(2038, 1, 19, 3, 14, 8).to_gmt_timer(), 2147483648);
    EXPECT_EQ(_datetime_t::from_gmt_timer(4294967295).fmt(kForm), "2106-02-07 06:28:15");
    EXPECT_EQ(_datetime_t::from_csecs_days(199, 0).to_gmt_timer(), 1);
    EXPECT_EQ(_datetime_t::from_csecs_days(-1, 0).to_gmt_timer(), -1);
    EXPECT_EQ(_datetime_t::from_csecs_days(50, 1).total_csecs(), 8640050);
}

TEST(DateTimeTest, ExtremesAreClamped) {
    constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(_datetime_t::from_gmt_timer(kMost).total_csecs(), kMost);
    EXPECT_EQ((_datetime_t::from_gmt_timer(kMost) + _time_t(1, 0)).total_csecs(), kMost);
}

TEST(DateTimeTest, FormatKeepsWhatItDoesNotKnow) {
    EXPECT_EQ(At(987, 6, 5, 4, 3, 2).fmt(kForm), "0987-06-05 04:03:02");
    EXPECT_EQ(At(2024, 6, 5).fmt("%d.%m.%Y %% %q x%"), "05.06.2024 % %q x%");
    EXPECT_EQ(At(2024, 6, 5).fmt(""), "");
    EXPECT_EQ(At(2024, 6, 5).fmt(nullptr), "");
}

}  // namespace
}  // namespace Tarvik::Util
