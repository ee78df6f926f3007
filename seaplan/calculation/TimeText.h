// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include <tarvik/util/DateTime.h>

namespace Tarvik::Seaplan {

/// Fields of a 19 character text "%Y-%m-%d %H:%M:%S", taken by position; the characters between them are not
/// looked at.
struct TimeFields {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// Nothing for a text of another length.
std::optional<TimeFields> ReadTimeFields(const std::string& text);
/// The time that a text tells by position; nothing for another length or a time that does not exist.
std::optional<Util::_datetime_t> ReadTimeText(const std::string& text);

}  // namespace Tarvik::Seaplan
