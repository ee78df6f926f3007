// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Server {

/// Where a way meets a gate: behind piece `index` of the way, `t` (0..1) along it, at `at`.
struct GateCrossing {
    std::size_t index = 0;
    double t = 0.0;
    GeoPoint at;
};

/// The smallest box in longitude and latitude that holds a line.
struct Bounds {
    GeoPoint low;
    GeoPoint high;
};

/// `line` must not be empty.
Bounds BoundsOf(const std::vector<GeoPoint>& line);

/// False when lines with these bounds cannot meet, whatever full turns lie between their longitudes.
bool MayMeet(const Bounds& a, const Bounds& b);

/// The first place where a way (straight pieces in longitude and latitude) crosses a gate line; nothing when
/// it stays on one side. Longitudes of both may run past ±180.
std::optional<GateCrossing> FirstCrossing(const std::vector<GeoPoint>& way,
                                          const std::vector<GeoPoint>& gate);

}  // namespace Tarvik::Server
