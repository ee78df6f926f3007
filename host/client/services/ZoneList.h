// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Tarvik::Client {

/// A time zone as a person chooses it.
struct ZoneLine {
    std::string name;       ///< as preferences keep it
    std::string place;      ///< city and country, "Rome, Italy"; empty where the zone has none
    int offsetMinutes = 0;  ///< ahead of UTC
    std::string words;      ///< by which it is found, folded

    /// The whole line, "Europe/Rome · Rome, Italy · UTC+02:00".
    std::string Text() const;
    /// Whether each of the typed words is in its name, city or country, in any case, or is its offset ("+8",
    /// "UTC+05:30"). Nothing typed means every zone.
    bool Answers(const std::string& typed) const;
};

/// All zones to choose from, the one of plan times and UTC first. Places are told in `language` ("zh-CN") and
/// found in English too; offsets are those of the moment, in seconds since 1970.
std::vector<ZoneLine> ListZones(const std::string& language, std::int64_t moment);

}  // namespace Tarvik::Client
