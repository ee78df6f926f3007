// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tarvik/util/DateTimeUtl.h>
#include <tarvik/util/Log.h>

namespace Tarvik::Util {

namespace {

constexpr const char* kChina = "China Standard Time";

_datetime_t At(const std::string& text) {
    const auto value = DateTimeUtl::Parse(text);
    EXPECT_TRUE(value.has_value()) << text;
    return value.value_or(_datetime_t::from_gmt_timer(0));
}

std::string Text(const _datetime_t& value) {
    return DateTimeUtl::Format(value, "%Y-%m-%d %H:%M:%S");
}

std::string ToUtc(const std::string& local, const std::string& zone) {
    return Text(DateTimeUtl::ConvertToUTC(At(local), zone));
}

std::string FromUtc(const std::string& utc, const std::string& zone) {
    return Text(DateTimeUtl::ConvertFromUTC(At(utc), zone));
}

TEST(DateTimeParseTest, ReadsTheOneForm) {
    EXPECT_EQ(Text(At("2024-02-29 23:59:59")), "2024-02-29 23:59:59");
    EXPECT_EQ(Text(At("0001-01-01 00:00:00")), "0001-01-01 00:00:00");
}

TEST(DateTimeParseTest, RefusesEverythingElse) {
    for (const char* text : {"",
                             "2024-02-29",
                             "2024-02-29 23:59:5",
                             "2024-02-29 23:59:590",
                             " 2024-02-29 23:59:5",
                             "2023-02-29 00:00:00",
                             "2024-04-31 00:00:00",
                             "2024-13-01 00:00:00",
                             "2024-00-01 00:00:00",
                             "2024-01-00 00:00:00",
                             "2024-01-01 24:00:00",
                             "2024-01-01 00:60:00",
                             "2024-01-01 00:00:60",
                             "2024/01/01 00:00:00",
                             "2024-01-01T00:00:00",
                             "2024-01-01 00.00:00",
                             "2024-01-01 00:00.00",
                             "+024-01-01 00:00:00",
                             "2024-1 -01 00:00:00",
                             "2024-01-01 -1:00:00"}) {
        EXPECT_FALSE(DateTimeUtl::Parse(text).has_value()) << text;
    }
}

TEST(ZoneTest, ChinaIsEightHoursAheadToday) {
    EXPECT_EQ(ToUtc("2024-01-01 07:00:00", kChina), "2023-12-31 23:00:00");
    EXPECT_EQ(FromUtc("2023-12-31 23:00:00", kChina), "2024-01-01 07:00:00");
    EXPECT_EQ(FromUtc("2024-07-01 00:00:00", "Asia/Shanghai"), "2024-07-01 08:00:00");
}

TEST(ZoneTest, ChinaHadSummerTimeFrom1986To1991) {
    EXPECT_EQ(FromUtc("1985-07-01 00:00:00", kChina), "1985-07-01 08:00:00");
    for (const char* year : {"1986", "1987", "1988", "1989", "1990", "1991"}) {
        const std::string summer = std::string(year) + "-07-01 ";
        EXPECT_EQ(FromUtc(summer + "00:00:00", kChina), summer + "09:00:00");
        EXPECT_EQ(ToUtc(summer + "09:00:00", kChina), summer + "00:00:00");
        const std::string winter = std::string(year) + "-12-01 ";
        EXPECT_EQ(FromUtc(winter + "00:00:00", kChina), winter + "08:00:00");
    }
    EXPECT_EQ(FromUtc("1992-07-01 00:00:00", kChina), "1992-07-01 08:00:00");
}

// Berlin, 31 March 2024: 02:00 to 03:00 is skipped; 27 October 2024: 02:00 to 03:00 comes twice.
TEST(ZoneTest, TimesThatDoNotExistTakeTheOffsetBeforeTheChange) {
    EXPECT_EQ(ToUtc("2024-03-31 01:59:59", "Europe/Berlin"), "2024-03-31 00:59:59");
    EXPECT_EQ(ToUtc("2024-03-31 02:30:00", "Europe/Berlin"), "2024-03-31 01:30:00");
    EXPECT_EQ(ToUtc("2024-03-31 03:00:00", "Europe/Berlin"), "2024-03-31 01:00:00");
}

TEST(ZoneTest, TimesThatExistTwiceTakeTheOffsetBeforeTheChange) {
    EXPECT_EQ(ToUtc("2024-10-27 01:59:59", "Europe/Berlin"), "2024-10-26 23:59:59");
    EXPECT_EQ(ToUtc("2024-10-27 02:30:00", "Europe/Berlin"), "2024-10-27 00:30:00");
    EXPECT_EQ(ToUtc("2024-10-27 03:00:00", "Europe/Berlin"), "2024-10-27 02:00:00");
    EXPECT_EQ(FromUtc("2024-10-27 00:30:00", "Europe/Berlin"), "2024-10-27 02:30:00");
    EXPECT_EQ(FromUtc("2024-10-27 01:30:00", "Europe/Berlin"), "2024-10-27 02:30:00");
}

TEST(ZoneTest, HalfHoursAndHostNamesWork) {
    EXPECT_EQ(FromUtc("2024-01-01 00:00:00", "India Standard Time"), "2024-01-01 05:30:00");
    EXPECT_EQ(FromUtc("2024-01-01 00:00:00", "Newfoundland Standard Time"), "2023-12-31 20:30:00");
    EXPECT_EQ(FromUtc("2024-07-01 00:00:00", "Eastern Standard Time"), "2024-06-30 20:00:00");
    EXPECT_EQ(FromUtc("2024-07-01 00:00:00", "UTC"), "2024-07-01 00:00:00");
}

TEST(ZoneTest, NamesAreKnownOrNot) {
    EXPECT_TRUE(DateTimeUtl::IsKnownZone(kChina));
    EXPECT_TRUE(DateTimeUtl::IsKnownZone("Asia/Shanghai"));
    EXPECT_TRUE(DateTimeUtl::IsKnownZone("UTC"));
    for (const char* zone : {"", "Nowhere Standard Time", "GMT+8:15", "Etc/Unknown", "\xff\xfe"}) {
        EXPECT_FALSE(DateTimeUtl::IsKnownZone(zone)) << zone;
    }
}

TEST(ZoneTest, UnknownZoneIsUtcAndLoggedOnce) {
    std::vector<std::string> lines;
    SetLogSink([&lines](LogLevel level, const std::string& text) {
        EXPECT_EQ(level, LogLevel::Warning);
        lines.push_back(text);
    });
    EXPECT_FALSE(DateTimeUtl::IsKnownZone("Atlantis Standard Time"));
    EXPECT_TRUE(lines.empty());
    EXPECT_EQ(ToUtc("2024-07-01 12:00:00", "Atlantis Standard Time"), "2024-07-01 12:00:00");
    EXPECT_EQ(FromUtc("2024-07-01 12:00:00", "Atlantis Standard Time"), "2024-07-01 12:00:00");
    SetLogSink({});
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NE(lines[0].find("Atlantis Standard Time"), std::string::npos);
}

TEST(LogTest, WithoutASinkLinesAreDropped) {
    SetLogSink({});
    Log(LogLevel::Error, "nobody hears this");
    std::vector<std::string> lines;
    SetLogSink([&lines](LogLevel, const std::string& text) { lines.push_back(text); });
    Log(LogLevel::Info, "heard");
    SetLogSink({});
    EXPECT_EQ(lines, std::vector<std::string>{"heard"});
}

TEST(AddHourTest, CrossesYearEnds) {
    EXPECT_EQ(Text(DateTimeUtl::AddHour(At("2023-12-31 23:30:00"), 1.5)), "2024-01-01 01:00:00");
    EXPECT_EQ(Text(DateTimeUtl::AddHour(At("2024-01-01 01:00:00"), -1.5)), "2023-12-31 23:30:00");
    EXPECT_EQ(Text(DateTimeUtl::AddHour(At("2024-01-01 00:00:00"), 8784)), "2025-01-01 00:00:00");
}

TEST(AddHourTest, RoundsToTheNearest) {
    const _datetime_t start = At("2024-01-01 00:00:00");
    const auto csecs = [&](double hours) {
        return DateTimeUtl::AddHour(start, hours).total_csecs() - start.total_csecs();
    };
    EXPECT_EQ(csecs(0.99999999999), 360000);
    EXPECT_EQ(csecs(1.0 / 3), 120000);
    EXPECT_EQ(csecs(0.1), 36000);
    EXPECT_EQ(csecs(14.0 / 3'600'000), 1);
    EXPECT_EQ(csecs(15.0 / 3'600'000), 2);
    EXPECT_EQ(csecs(-14.0 / 3'600'000), -1);
    EXPECT_EQ(csecs(4.4 / 3'600'000), 0);
    EXPECT_EQ(csecs(4.6 / 3'600'000), 1);
}

TEST(AddHourTest, ValueThatIsNotFiniteAddsNothing) {
    const _datetime_t start = At("2024-01-01 00:00:00");
    EXPECT_EQ(DateTimeUtl::AddHour(start, std::nan("")), start);
    EXPECT_EQ(DateTimeUtl::AddHour(start, std::numeric_limits<double>::infinity()), start);
    EXPECT_GT(DateTimeUtl::AddHour(start, 1e300), start);
}

TEST(DiffTest, CountsHoursFromTheSecondToTheFirst) {
    EXPECT_DOUBLE_EQ(DateTimeUtl::Diff(At("2024-01-01 01:00:00"), At("2023-12-31 23:00:00")), 2.0);
    EXPECT_DOUBLE_EQ(DateTimeUtl::Diff(At("2023-12-31 23:00:00"), At("2024-01-01 01:30:00")), -2.5);
}

}  // namespace
}  // namespace Tarvik::Util
