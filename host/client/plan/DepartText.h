// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include <tarvik/util/DateTime.h>

namespace Tarvik::Client {

/// A time as people and programs write it.
struct DepartTime {
    Util::_datetime_t time;          ///< what stands there
    std::optional<int> eastMinutes;  ///< how far its clock is ahead of UTC; empty: the plan's zone

    /// The time in a zone's reading.
    Util::_datetime_t In(const std::string& zone) const;
};

/// Reads a date, alone (then it is midnight) or with hour, minute and perhaps second behind "T" or a blank,
/// and behind a time perhaps "Z" or an offset as "+08:00"; hyphens and colons may be left out, as ISO 8601
/// has it. Empty for another form and for what does not exist.
std::optional<DepartTime> ReadDepart(const std::string& text);

}  // namespace Tarvik::Client
