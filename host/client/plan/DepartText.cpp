// SPDX-License-Identifier: MIT
#include <regex>

#include <tarvik/util/DateTimeUtl.h>

#include "host/client/plan/PlanArguments.h"

namespace Tarvik::Client {

namespace {

constexpr int kMinutesPerHour = 60;
constexpr int kMostHours = 14;  ///< that a clock of this world is away from UTC

/// Minutes of "Z", "+8", "-0330" or "+08:00"; empty for what no clock shows.
std::optional<int> ReadOffset(const std::string& text) {
    if (text == "Z" || text == "z") {
        return 0;
    }
    const int hours = std::stoi(text.substr(1, 2));
    const int minutes = text.size() > 3 ? std::stoi(text.substr(text.size() - 2)) : 0;
    if (hours > kMostHours || minutes >= kMinutesPerHour) {
        return std::nullopt;
    }
    const int all = hours * kMinutesPerHour + minutes;
    return text.front() == '-' ? -all : all;
}

}  // namespace

std::optional<DepartTime> ReadDepart(const std::string& text) {
    static const std::regex form(
        R"((\d{4})(-?)(\d{2})\2(\d{2})(?:[Tt ](\d{2}):?(\d{2})(?::?(\d{2}))?([Zz]|[+-]\d{2}(?::?\d{2})?)?)?)");
    std::smatch part;
    if (!std::regex_match(text, part, form)) {
        return std::nullopt;
    }
    const auto two = [&part](std::size_t at) { return part[at].matched ? part[at].str() : "00"; };
    const auto time = Util::DateTimeUtl::Parse(part[1].str() + "-" + two(3) + "-" + two(4) + " " + two(5) +
                                               ":" + two(6) + ":" + two(7));
    if (!time) {
        return std::nullopt;
    }
    if (!part[8].matched) {
        return DepartTime{*time, std::nullopt};
    }
    const auto offset = ReadOffset(part[8].str());
    return offset ? std::optional(DepartTime{*time, offset}) : std::nullopt;
}

Util::_datetime_t DepartTime::In(const std::string& zone) const {
    if (!eastMinutes) {
        return time;
    }
    return Util::DateTimeUtl::ConvertFromUTC(time - Util::_time_t(0, *eastMinutes), zone);
}

}  // namespace Tarvik::Client
