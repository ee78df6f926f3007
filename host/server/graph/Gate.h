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

/// Where the piece a-b crosses the piece c-d, as a share (0..1) of a-b; nothing when it does not.
std::optional<double> CrossingShare(GeoPoint a, GeoPoint b, GeoPoint c, GeoPoint d);

/// The first place where a way (straight pieces in longitude and latitude) crosses a gate line; nothing when
/// it stays on one side. Longitudes of both may run past ±180.
std::optional<GateCrossing> FirstCrossing(const std::vector<GeoPoint>& way,
                                          const std::vector<GeoPoint>& gate);

}  // namespace Tarvik::Server
