// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include <tarvik/interface/ChartRecords.h>

#include "host/plugins/seamap/core/Projection.h"

namespace Tarvik::Seamap {

/// A piece of the chart in degrees. West is at most east; an extent over the date line has an east above 180.
struct Extent {
    double west = -Util::kMostLongitude;
    double south = -Util::kMostLatitude;
    double east = Util::kMostLongitude;
    double north = Util::kMostLatitude;
    bool operator==(const Extent&) const = default;

    /// Reads two corners given in either order: the greater longitude is the eastern limit, the greater
    /// latitude the northern one; the pair around the world (ChartContract.h) lies over the date line.
    /// Latitudes are brought into ±90, the width to one turn at most. Empty when a number is not finite or
    /// beyond 720 either way.
    static std::optional<Extent> FromCorners(const Interface::TrvMapExtent& corners);
    /// The corners in the order west, south, east, north.
    Interface::TrvMapExtent Corners() const;
    /// The narrowest extent that holds all points, over the date line where that is narrower; empty without
    /// points.
    static std::optional<Extent> Around(const std::vector<GeoPoint>& points);

    bool Contains(GeoPoint point) const;
    double Width() const { return east - west; }
    double Height() const { return north - south; }
};

}  // namespace Tarvik::Seamap
