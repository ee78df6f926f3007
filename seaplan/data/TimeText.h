// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <tarvik/util/DateTimeUtl.h>

/// The plan's times: their zone, and their form as text.
namespace Tarvik::Seaplan {

using Util::kPlanZone;
using Util::kTimeFormat;
using Util::kTimeTextLength;

inline Util::_datetime_t UtcOfPlanTime(const Util::_datetime_t& planTime) {
    return Util::DateTimeUtl::ConvertToUTC(planTime, kPlanZone);
}
/// Seconds after 1970-01-01 UTC, as a record's 32-bit field holds them.
inline std::int32_t GmtTimerOfPlanTime(const Util::_datetime_t& planTime) {
    return static_cast<std::int32_t>(UtcOfPlanTime(planTime).to_gmt_timer());
}
inline Util::_datetime_t PlanTimeOfUtc(const Util::_datetime_t& utc) {
    return Util::DateTimeUtl::ConvertFromUTC(utc, kPlanZone);
}

/// Fields of a time text, taken by position; the characters between them are not looked at.
struct TimeFields {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// Nothing for a text that has not kTimeTextLength characters.
std::optional<TimeFields> ReadTimeFields(const std::string& text);
/// The time that a text tells by position; nothing for another length or a time that does not exist.
std::optional<Util::_datetime_t> ReadTimeText(const std::string& text);

}  // namespace Tarvik::Seaplan
