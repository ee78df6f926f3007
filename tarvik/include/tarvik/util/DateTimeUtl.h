// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include <tarvik/Export.h>
#include <tarvik/util/DateTime.h>

namespace Tarvik::Util {

/// Form of a time as text.
inline constexpr const char* kTimeFormat = "%Y-%m-%d %H:%M:%S";
/// The same without seconds, and the day alone.
inline constexpr const char* kMinuteFormat = "%Y-%m-%d %H:%M";
inline constexpr const char* kDayFormat = "%Y-%m-%d";
/// Characters of a text of the form kTimeFormat.
inline constexpr std::size_t kTimeTextLength = 19;
/// Zone of plan times wherever they meet UTC, whatever zone the person has chosen; the choice starts with it.
inline constexpr const char* kPlanZone = "China Standard Time";

/// Zone conversions and arithmetic on date-times. Zones are named as the host names them ("China Standard
/// Time", or a name of the zone data base); an unknown zone behaves as UTC and is logged once.
class TARVIK_API DateTimeUtl {
  public:
    /// Local time of `zone` to UTC. A time that does not exist or exists twice takes the offset before the
    /// change.
    static _datetime_t ConvertToUTC(const _datetime_t& local, const std::string& zone);
    /// UTC to local time of `zone`.
    static _datetime_t ConvertFromUTC(const _datetime_t& utc, const std::string& zone);
    /// _datetime_t::fmt by another name.
    static std::string Format(const _datetime_t& value, const std::string& format);
    /// Reads kTimeTextLength characters in the form kTimeFormat of a date that exists; anything else gives
    /// nothing.
    static std::optional<_datetime_t> Parse(const std::string& text);
    /// Adds hours in whole milliseconds, rounded to the nearest; a value that is not finite adds nothing.
    static _datetime_t AddHour(const _datetime_t& value, double hours);
    /// Hours from b to a.
    static double Diff(const _datetime_t& a, const _datetime_t& b);
    /// Whether the zone's name is known.
    static bool IsKnownZone(const std::string& zone);
};

}  // namespace Tarvik::Util
