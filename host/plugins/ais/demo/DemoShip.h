// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tarvik::Ais {

/// A ship that sails a route by a timetable.
struct DemoShip {
    struct Point {
        double longitude = 0;  ///< degrees
        double latitude = 0;   ///< degrees
    };
    std::uint32_t mmsi = 0;
    std::string name;
    double knots = 0;
    std::int64_t departure = 0;  ///< seconds after 1970, UTC
    std::vector<Point> route;    ///< at least one point

    /// Reads "mmsi;name;knots;departure;lon,lat|lon,lat|..."; nothing for any other text. A departure of "+N"
    /// or "-N" is as many seconds from `now`.
    static std::optional<DemoShip> Parse(std::string_view line, std::int64_t now);
};

/// Where a ship of the demonstration is.
struct DemoPlace {
    DemoShip::Point at;
    double course = 0;   ///< degrees
    double knots = 0;    ///< 0 in port
    bool sails = false;  ///< between its departure and its arrival
};

/// Where the ship is at a time: at its first point before it leaves, at its last once it has arrived, and
/// between on rhumb lines from point to point.
DemoPlace PlaceOf(const DemoShip& ship, std::int64_t time);

}  // namespace Tarvik::Ais
