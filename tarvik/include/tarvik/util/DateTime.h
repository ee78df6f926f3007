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
    /// Hours may exceed a day, and each part may be negative.
    _time_t(int hours, int minutes, int seconds = 0)
        : csecs_((hours * std::int64_t{3600} + minutes * std::int64_t{60} + seconds) * 100) {}
    /// A span of whole centiseconds; the argument is 32 bits wide, about 248 days.
    static _time_t from_csecs(std::int32_t csecs);
    /// Whole span in centiseconds.
    std::int64_t to_csecs() const { return csecs_; }
    ///@{
    /// A part of the span: whole hours, minutes below 60, seconds below 60.
    int hour() const { return static_cast<int>(csecs_ / 360000); }
    int minute() const { return static_cast<int>(csecs_ / 6000 % 60); }
    int second() const { return static_cast<int>(csecs_ / 100 % 60); }
    ///@}
    /// Order by length.
    auto operator<=>(const _time_t&) const = default;

  private:
    friend class _datetime_t;
    std::int64_t csecs_ = 0;
};

// Times are counted in hundredths of a second.
inline constexpr std::int64_t kCsecsPerHour = 360'000;            ///< hundredths in an hour
inline constexpr std::int64_t kCsecsPerDay = 24 * kCsecsPerHour;  ///< hundredths in a day

/// A day of the proleptic Gregorian calendar; day count 0 is 1970-01-01.
class TARVIK_API _date_t {
  public:
    _date_t() = default;
    /// Day and month count from 1.
    _date_t(int day, int month, int year);
    /// The day with this count.
    static _date_t from_days(int days);
    /// Day count, negative before 1970.
    int to_days() const { return days_; }
    ///@{
    /// A part of the date; day and month count from 1.
    int year() const;
    int month() const;
    int day() const;
    ///@}
    /// 0 is Sunday.
    int day_of_week() const;
    /// Days of this date's month.
    int month_days() const;
    /// Day number whose differences count days, also across years.
    int year_julian() const { return days_; }
    /// Order by day.
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
    /// Day and month count from 1; the time of day is from 0.
    _datetime_t(int second, int minute, int hour, int day, int month, int year);
    /// `csecs` hundredths after the beginning of the day with this count.
    static _datetime_t from_csecs_days(std::int64_t csecs, int days);
    /// Present local time.
    static _datetime_t now();
    /// Present time in UTC.
    static _datetime_t gmt_now();
    /// The UTC value of `seconds` after 1970-01-01 00:00:00 UTC.
    static _datetime_t from_gmt_timer(std::int64_t seconds);
    /// Seconds after 1970-01-01 00:00:00, this value read as UTC; centiseconds are dropped.
    std::int64_t to_gmt_timer() const;

    /// The day.
    _date_t date() const;
    /// The time of day.
    _time_t time() const;
    ///@{
    /// A part of date or time; day and month count from 1.
    int year() const { return date().year(); }
    int month() const { return date().month(); }
    int day() const { return date().day(); }
    int hour() const { return time().hour(); }
    int minute() const { return time().minute(); }
    int second() const { return time().second(); }
    ///@}
    /// Centiseconds after 1970-01-01 00:00:00 of the same reading.
    std::int64_t total_csecs() const { return csecs_; }

    /// Prints with %Y %m %d %H %M %S %%; anything else stands as it is.
    std::string fmt(const char* format) const;

    ///@{
    /// Later or earlier by a span.
    _datetime_t operator+(const _time_t& span) const;
    _datetime_t operator-(const _time_t& span) const;
    _datetime_t& operator+=(const _time_t& span);
    _datetime_t& operator-=(const _time_t& span);
    ///@}
    /// Order in time, of two values of one reading.
    auto operator<=>(const _datetime_t&) const = default;

  private:
    explicit _datetime_t(std::int64_t csecs) : csecs_(csecs) {}
    std::int64_t csecs_ = 0;
};

}  // namespace Tarvik::Util
