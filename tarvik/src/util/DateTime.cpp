// SPDX-License-Identifier: MIT
// Dates of the proleptic Gregorian calendar as a count of days, and back, by whole 400-year eras with the
// year beginning in March (H. Hinnant, "chrono-Compatible Low-Level Date Algorithms"). Constant time, exact
// over the 32-bit count; sums beyond it stay at its ends.
#include <algorithm>
#include <array>
#include <ctime>
#include <limits>

#include <fmt/format.h>

#include <tarvik/util/Clock.h>
#include <tarvik/util/DateTime.h>
#include <tarvik/util/DateTimeUtl.h>

#include "Saturate.h"

namespace Tarvik::Util {

namespace {

constexpr int kDaysPerEra = 146'097;  // 400 years

std::int64_t FloorDiv(std::int64_t a, std::int64_t b) {
    return a / b - (a % b < 0 ? 1 : 0);
}

int ClampToInt(std::int64_t value) {
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

struct Civil {
    std::int64_t year;
    int month;
    int day;
};

// Years are counted from 1 March, so that the leap day is the last of its year.
std::int64_t DaysFromCivil(std::int64_t year, std::int64_t month, std::int64_t day) {
    year += FloorDiv(month - 1, 12);
    month = month - 1 - FloorDiv(month - 1, 12) * 12 + 1;
    if (month <= 2) {
        --year;
    }
    const std::int64_t era = FloorDiv(year, 400);
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    return era * kDaysPerEra + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - 719'468;
}

Civil CivilFromDays(std::int64_t days) {
    days += 719'468;
    const std::int64_t era = FloorDiv(days, kDaysPerEra);
    const std::int64_t dayOfEra = days - era * kDaysPerEra;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36'524 - dayOfEra / (kDaysPerEra - 1)) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t shifted = (5 * dayOfYear + 2) / 153;
    const int month = static_cast<int>(shifted < 10 ? shifted + 3 : shifted - 9);
    return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month,
            static_cast<int>(dayOfYear - (153 * shifted + 2) / 5 + 1)};
}

/// Local present time of the machine's own zone.
_datetime_t MachineLocal(std::int64_t utcCsecs) {
    const auto seconds = static_cast<std::time_t>(FloorDiv(utcCsecs, 100));
    std::tm local{};
    if (::localtime_r(&seconds, &local) == nullptr) {
        return _datetime_t::from_csecs_days(utcCsecs, 0);
    }
    return _datetime_t::from_csecs_days(utcCsecs + static_cast<std::int64_t>(local.tm_gmtoff) * 100, 0);
}

}  // namespace

_time_t _time_t::from_csecs(std::int32_t csecs) {
    _time_t span;
    span.csecs_ = csecs;
    return span;
}

_date_t::_date_t(int day, int month, int year) : days_(ClampToInt(DaysFromCivil(year, month, day))) {}

_date_t _date_t::from_days(int days) {
    _date_t date;
    date.days_ = days;
    return date;
}

int _date_t::year() const {
    return static_cast<int>(CivilFromDays(days_).year);
}
int _date_t::month() const {
    return CivilFromDays(days_).month;
}
int _date_t::day() const {
    return CivilFromDays(days_).day;
}

int _date_t::day_of_week() const {
    // Day 0 was a Thursday.
    const std::int64_t shifted = static_cast<std::int64_t>(days_) + 4;
    return static_cast<int>(shifted - FloorDiv(shifted, 7) * 7);
}

int _date_t::month_days() const {
    const Civil civil = CivilFromDays(days_);
    return static_cast<int>(DaysFromCivil(civil.year, civil.month + 1, 1) -
                            DaysFromCivil(civil.year, civil.month, 1));
}

_datetime_t::_datetime_t() : _datetime_t(now()) {}

_datetime_t::_datetime_t(int second, int minute, int hour, int day, int month, int year)
    : csecs_(DaysFromCivil(year, month, day) * kCsecsPerDay +
             (static_cast<std::int64_t>(hour) * 3600 + static_cast<std::int64_t>(minute) * 60 + second) *
                 100) {}

_datetime_t _datetime_t::from_csecs_days(std::int64_t csecs, int days) {
    return _datetime_t(SaturatedAdd(csecs, days * kCsecsPerDay));
}

_datetime_t _datetime_t::now() {
    const std::int64_t utc = Clock::Current().NowUtcCsecs();
    const std::string zone = Clock::LocalZone();
    return zone.empty() ? MachineLocal(utc) : DateTimeUtl::ConvertFromUTC(_datetime_t(utc), zone);
}

_datetime_t _datetime_t::gmt_now() {
    return _datetime_t(Clock::Current().NowUtcCsecs());
}

_datetime_t _datetime_t::from_gmt_timer(std::int64_t seconds) {
    std::int64_t csecs = 0;
    if (__builtin_mul_overflow(seconds, std::int64_t{100}, &csecs)) {
        csecs = Limit(seconds < 0);
    }
    return _datetime_t(csecs);
}

std::int64_t _datetime_t::to_gmt_timer() const {
    return FloorDiv(csecs_, 100);
}

_date_t _datetime_t::date() const {
    return _date_t::from_days(ClampToInt(FloorDiv(csecs_, kCsecsPerDay)));
}

_time_t _datetime_t::time() const {
    const std::int64_t rest = csecs_ % kCsecsPerDay;
    return _time_t::from_csecs(static_cast<std::int32_t>(rest < 0 ? rest + kCsecsPerDay : rest));
}

std::string _datetime_t::fmt(const char* format) const {
    const Civil civil = CivilFromDays(FloorDiv(csecs_, kCsecsPerDay));
    const _time_t clock = time();
    std::string out;
    for (const char* at = format; at != nullptr && *at != 0; ++at) {
        const char code = *at == '%' ? at[1] : '\0';
        switch (code) {
            case 'Y':
                out += fmt::format("{:04}", civil.year);
                break;
            case 'm':
                out += fmt::format("{:02}", civil.month);
                break;
            case 'd':
                out += fmt::format("{:02}", civil.day);
                break;
            case 'H':
                out += fmt::format("{:02}", clock.hour());
                break;
            case 'M':
                out += fmt::format("{:02}", clock.minute());
                break;
            case 'S':
                out += fmt::format("{:02}", clock.second());
                break;
            case '%':
                out += '%';
                break;
            default:
                out += *at;
                continue;
        }
        ++at;
    }
    return out;
}

_datetime_t _datetime_t::operator+(const _time_t& span) const {
    return _datetime_t(SaturatedAdd(csecs_, span.csecs_));
}

_datetime_t _datetime_t::operator-(const _time_t& span) const {
    return _datetime_t(SaturatedSubtract(csecs_, span.csecs_));
}

_datetime_t& _datetime_t::operator+=(const _time_t& span) {
    return *this = *this + span;
}

_datetime_t& _datetime_t::operator-=(const _time_t& span) {
    return *this = *this - span;
}

}  // namespace Tarvik::Util
