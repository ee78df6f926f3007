// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include <tarvik/util/Units.h>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Server {

/// A direction from the earth's centre; length 1.
struct UnitVector {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

inline constexpr double kDegree = 0.017453292519943295;
/// Nautical miles in one degree of arc of the search sphere.
inline constexpr double kNmPerDegree = 60.0;
inline constexpr double kKmPerNm = Util::kKmPerNauticalMile;
/// Great circles are broken into straight pieces of at most this many degrees of arc.
inline constexpr double kChunkDegrees = 1.0;

UnitVector ToVector(GeoPoint p);
GeoPoint ToPoint(const UnitVector& v);
double Dot(const UnitVector& a, const UnitVector& b);

/// Angle between two directions in nautical miles, exact for near and for far points.
double ArcNm(const UnitVector& a, const UnitVector& b);
double ArcNm(GeoPoint a, GeoPoint b);
/// No less than `ArcNm`, at most 0.2 % more where the angle is below 60 degrees, and quicker.
double ArcNmAtMost(const UnitVector& a, const UnitVector& b);

/// Length of the WGS-84 geodesic in km.
double GeodesicKm(GeoPoint a, GeoPoint b);

/// Longitude brought into [-180, 180).
double WrapLongitude(double x);

/// Rounds to 5 decimals (about a metre), the precision in which positions are stored and sent.
GeoPoint RoundPoint(GeoPoint p);

/// The latitude at which the straight piece from a to b passes a longitude; a and b differ in theirs.
inline double LatitudeAt(double x, GeoPoint a, GeoPoint b) {
    return a.y + (x - a.x) / (b.x - a.x) * (b.y - a.y);
}

/// The great circle from a to b as points at most `kChunkDegrees` apart, ends included. The longitudes run on
/// past ±180 where the way crosses the date line, so that neighbours never lie more than 180 degrees apart.
std::vector<GeoPoint> GreatCircle(GeoPoint a, GeoPoint b);

/// The point at a share (0..1) of the great circle from a to b; longitude within ±180.
GeoPoint Between(GeoPoint a, GeoPoint b, double share);

/// The point at a distance (NM) from `from` in a direction (degrees clockwise from north).
GeoPoint Destination(GeoPoint from, double bearingDegrees, double nm);

/// The globe in square cells of degrees: columns count eastwards from 180 W, rows northwards from the south
/// pole. `CellsPerDegree` is the number of cells along a degree.
template <int CellsPerDegree>
struct DegreeGrid {
    static constexpr int kCellsPerDegree = CellsPerDegree;
    static constexpr int kColumns = 360 * CellsPerDegree;
    static constexpr int kRows = 180 * CellsPerDegree;

    /// Column of a longitude from -180 to 180 degrees; what lies outside belongs to the outermost column.
    static int ColumnOf(double x) {
        return std::clamp(static_cast<int>(std::floor((x + 180.0) * CellsPerDegree)), 0, kColumns - 1);
    }
    /// Row of a latitude; what lies outside belongs to the outermost row.
    static int RowOf(double y) {
        return std::clamp(static_cast<int>(std::floor((y + 90.0) * CellsPerDegree)), 0, kRows - 1);
    }
};

}  // namespace Tarvik::Server
