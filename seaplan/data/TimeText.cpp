// SPDX-License-Identifier: MIT
#include "seaplan/data/TimeText.h"

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

bool Within(int value, int least, int most) {
    return value >= least && value <= most;
}

bool Exists(const TimeFields& fields) {
    return Within(fields.year, 1, 9999) && Within(fields.month, 1, 12) && Within(fields.day, 1, 31) &&
           fields.day <= Util::_date_t(1, fields.month, fields.year).month_days() &&
           Within(fields.hour, 0, 23) && Within(fields.minute, 0, 59) && Within(fields.second, 0, 59);
}

}  // namespace

std::optional<TimeFields> ReadTimeFields(const std::string& text) {
    if (text.size() != kTimeTextLength) {
        return std::nullopt;
    }
    const auto number = [&text](std::size_t at, std::size_t count) {
        return Util::StringUtl::ToInt(text.substr(at, count));
    };
    return TimeFields{number(0, 4), number(5, 2), number(8, 2), number(11, 2), number(14, 2), number(17, 2)};
}

std::optional<Util::_datetime_t> ReadTimeText(const std::string& text) {
    const auto fields = ReadTimeFields(text);
    if (!fields || !Exists(*fields)) {
        return std::nullopt;
    }
    return Util::_datetime_t(fields->second, fields->minute, fields->hour, fields->day, fields->month,
                             fields->year);
}

}  // namespace Tarvik::Seaplan
