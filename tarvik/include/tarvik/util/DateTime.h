// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <string>

#include <tarvik/Export.h>

namespace Tarvik::Util {

/// A span or a time of day in centiseconds.
class TARVIK_API _time_t {
  public:
    _time_t() = default;
    _time_t(int hours, int minutes, int seconds = 0)
        : csecs_((static_cast<std::int64_t>(hours) * 3600 + minutes * 60 + seconds) * 100) {}
    /// A span of whole centiseconds; the argument is 32 bits wide, about 248 days.
    static _time_t from_csecs(std::int32_t csecs);
    std::int64_t to_csecs() const { return csecs_; }
    int hour() const { return static_cast<int>(csecs_ / 360000); }
    int minute() const { return static_cast<int>(csecs_ / 6000 % 60); }
    int second() const { return static_cast<int>(csecs_ / 100 % 60); }
    auto operator<=>(const _time_t&) const = default;

  private:
    friend class _datetime_t;
    std::int64_t csecs_ = 0;
};

/// Times are counted in hundredths of a second.
inline constexpr std::int64_t kCsecsPerHour = 360'000;
inline constexpr std::int64_t kCsecsPerDay = 24 * kCsecsPerHour;

/// A day of the proleptic Gregorian calendar; day count 0 is 1970-01-01.
class TARVIK_API _date_t {
  public:
    _date_t() = default;
    _date_t(int day, int month, int year);
    static _date_t from_days(int days);
    int to_days() const { return days_; }
    int year() const;
    int month() const;
    int day() const;
    /// 0 is Sunday.
    int day_of_week() const;
    /// Days of this date's month.
    int month_days() const;
    /// Day number whose differences count days, also across years.
    int year_julian() const { return days_; }
    auto operator<=>(const _date_t&) const = default;

  private:
    int days_ = 0;
};

/// A date with a time of day, to the centisecond, without a zone: the reader knows whether it is local or
/// UTC.
class TARVIK_API _datetime_t {
  public:
    /// The present local time, by the SDK's clock and local zone (see Clock.h).
    _datetime_t();
    _datetime_t(int second, int minute, int hour, int day, int month, int year);
    static _datetime_t from_csecs_days(std::int64_t csecs, int days);
    /// Present local time.
    static _datetime_t now();
    /// Present time in UTC.
    static _datetime_t gmt_now();
    /// The UTC value of `seconds` after 1970-01-01 00:00:00 UTC.
    static _datetime_t from_gmt_timer(std::int64_t seconds);
    /// Seconds after 1970-01-01 00:00:00, this value read as UTC; centiseconds are dropped.
    std::int64_t to_gmt_timer() const;

    _date_t date() const;
    _time_t time() const;
    int year() const { return date().year(); }
    int month() const { return date().month(); }
    int day() const { return date().day(); }
    int hour() const { return time().hour(); }
    int minute() const { return time().minute(); }
    int second() const { return time().second(); }
    /// Centiseconds after 1970-01-01 00:00:00 of the same reading.
    std::int64_t total_csecs() const { return csecs_; }

    /// Prints with %Y %m %d %H %M %S %%; anything else stands as it is.
    std::string fmt(const char* format) const;

    _datetime_t operator+(const _time_t& span) const;
    _datetime_t operator-(const _time_t& span) const;
    _datetime_t& operator+=(const _time_t& span);
    _datetime_t& operator-=(const _time_t& span);
    auto operator<=>(const _datetime_t&) const = default;

  private:
    explicit _datetime_t(std::int64_t csecs) : csecs_(csecs) {}
    std::int64_t csecs_ = 0;
};

}  // namespace Tarvik::Util
