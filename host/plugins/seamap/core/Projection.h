// SPDX-License-Identifier: MIT
#pragma once

#include "host/geo/GeoPoint.h"

namespace Tarvik::Seamap {

// The chart speaks of places as all of the host does.
using Server::FormatPosition;
using Server::GeoPoint;
using Server::ParsePosition;

/// A place on the projected world: x counts turns eastwards from 180° W (one turn is the world's width), y
/// counts the same unit southwards from the upper edge of the square world (85.05° N).
struct WorldPoint {
    double x = 0;
    double y = 0;
};

/// A place in the window in logical pixels, from its upper left corner.
struct PixelPoint {
    double x = 0;
    double y = 0;
};

inline constexpr double kMaxLatitude = 85.0511287798066;  ///< edge of the square world, degrees
inline constexpr double kDrawLatitude = 89.0;  ///< places nearer to a pole are drawn at this latitude

/// Mercator's projection of the sphere.
WorldPoint Project(GeoPoint point);
/// Longitude -180 to 180, also for an x of several turns.
GeoPoint Unproject(WorldPoint point);

}  // namespace Tarvik::Seamap
