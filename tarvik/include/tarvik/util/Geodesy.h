// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/Export.h>
#include <tarvik/util/GeoPoint.h>

namespace Tarvik::Util {

/// A position in degrees as the lines below take it, longitude first. Points of all else are GeoPoint.
struct _SPointF {
    float x = 0;  ///< longitude, up to kMostLongitude
    float y = 0;  ///< latitude, up to kMostLatitude
};

/// Lines on the WGS-84 ellipsoid (Karney, "Algorithms for geodesics", J. Geodesy 87, 2013). Degrees in, km
/// out.
class TARVIK_API CircleLineUtl {
  public:
    /// Length of the geodesic ("great circle") from (x1, y1) to (x2, y2) in km.
    static double CalculateDistance(double x1, double y1, double x2, double y2);
    /// The same for track "GC", the rhumb line for any other.
    static double CalculateDistance(double x1, double y1, double x2, double y2, const std::string& track);
    /// Length of the rhumb line by the shorter way round, in km.
    static double CalRhumbDist(double x1, double y1, double x2, double y2);
    /// Points along the great circle from `from` to `to`, every `interval` (1 to 5) degrees of arc counted
    /// from the start; the rest falls before the end. Both ends are included.
    static std::vector<_SPointF> Caculate(const _SPointF& from, const _SPointF& to, int interval);
};

/// Courses.
class TARVIK_API CCourse {
  public:
    /// Course of the rhumb line, at least 0 and below 360 degrees; 0 for two equal points.
    static double CalCourse(double x1, double y1, double x2, double y2);
    /// Course in which the geodesic starts for track "GC", the rhumb line's for any other.
    static double CalCourse(double x1, double y1, double x2, double y2, const std::string& track);
};

/// Number helpers of the host.
class TARVIK_API UnitUtl {
  public:
    /// `value` rounded to `digits` decimals, halves away from zero.
    static double DataFormat(double value, int digits);
};

}  // namespace Tarvik::Util
