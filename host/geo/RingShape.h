// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Data {

using Server::GeoPoint;
using Ring = std::vector<GeoPoint>;

/// The direction from one place to another as east and north; length 1, or 0 where they are one.
GeoPoint DirectionTo(GeoPoint from, GeoPoint to);

/// A ring whose longitudes run on past ±180, so that neighbours never lie more than 180 degrees apart.
Ring Unwrapped(const Ring& ring);

/// The indices of those points of a closed ring that matter at a tolerance in nautical miles (Douglas and
/// Peucker's method).
std::vector<std::size_t> OutlineOf(const Ring& ring, double toleranceNm);

/// A closed ring with only those points.
Ring SimplifyRing(const Ring& ring, double toleranceNm);

/// How far p lies to the left of the line from a to b, in nautical miles; negative to the right.
double LeftOf(GeoPoint p, GeoPoint a, GeoPoint b);

/// True when the inside of a closed ring lies to the left of its direction.
bool RunsLeft(const Ring& ring);

/// True for a place inside a ring that does not cross the date line.
bool IsInside(GeoPoint p, const Ring& ring);

/// The places so many nautical miles outside a ring's corners, where ships turn that keep clear of it;
/// longitudes within ±180.
std::vector<GeoPoint> CornersOutside(const Ring& ring, double nm);

}  // namespace Tarvik::Data
