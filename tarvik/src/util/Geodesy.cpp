// SPDX-License-Identifier: MIT
// Geodesics and rhumb lines on WGS-84 by GeographicLib (C. F. F. Karney, "Algorithms for geodesics", J.
// Geodesy 87, 2013), exact to nanometres and about a microsecond each; longitudes beyond 180 degrees are
// taken as they mean.
#include <algorithm>
#include <cmath>

#include <GeographicLib/Geodesic.hpp>
#include <GeographicLib/GeodesicLine.hpp>
#include <GeographicLib/Rhumb.hpp>

#include <tarvik/util/Geodesy.h>

namespace Tarvik::Util {

namespace {

constexpr double kMetresPerKm = 1000.0;

struct Leg {
    double metres = 0;
    double course = 0;
};

Leg Rhumb(double x1, double y1, double x2, double y2) {
    Leg leg;
    GeographicLib::Rhumb::WGS84().Inverse(y1, x1, y2, x2, leg.metres, leg.course);
    return leg;
}

Leg Geodesic(double x1, double y1, double x2, double y2) {
    Leg leg;
    double arrives = 0;
    GeographicLib::Geodesic::WGS84().Inverse(y1, x1, y2, x2, leg.metres, leg.course, arrives);
    return leg;
}

/// At least 0 and below 360 degrees; 0 for a leg without a length.
double CourseOf(const Leg& leg) {
    if (leg.metres == 0 || !std::isfinite(leg.course)) {
        return 0;
    }
    const double course = leg.course < 0 ? leg.course + 360.0 : leg.course;
    // A course a hair west of north rounds up to 360.
    return course >= 360.0 || course == 0 ? 0 : course;
}

}  // namespace

double CircleLineUtl::CalculateDistance(double x1, double y1, double x2, double y2) {
    double metres = 0;
    GeographicLib::Geodesic::WGS84().Inverse(y1, x1, y2, x2, metres);
    return metres / kMetresPerKm;
}

double CircleLineUtl::CalculateDistance(double x1, double y1, double x2, double y2,
                                        const std::string& track) {
    return track == "GC" ? CalculateDistance(x1, y1, x2, y2) : CalRhumbDist(x1, y1, x2, y2);
}

double CircleLineUtl::CalRhumbDist(double x1, double y1, double x2, double y2) {
    return Rhumb(x1, y1, x2, y2).metres / kMetresPerKm;
}

std::vector<_SPointF> CircleLineUtl::Caculate(const _SPointF& from, const _SPointF& to, int interval) {
    constexpr double kSameArc = 1e-9;  // no point is put this close before the end
    const double step = std::clamp(interval, 1, 5);
    const GeographicLib::GeodesicLine line =
        GeographicLib::Geodesic::WGS84().InverseLine(from.y, from.x, to.y, to.x);
    std::vector<_SPointF> points{from};
    for (double arc = step; arc < line.Arc() - kSameArc; arc += step) {
        double latitude = 0;
        double longitude = 0;
        line.ArcPosition(arc, latitude, longitude);
        points.push_back({static_cast<float>(longitude), static_cast<float>(latitude)});
    }
    points.push_back(to);
    return points;
}

double CCourse::CalCourse(double x1, double y1, double x2, double y2) {
    return CourseOf(Rhumb(x1, y1, x2, y2));
}

double CCourse::CalCourse(double x1, double y1, double x2, double y2, const std::string& track) {
    return track == "GC" ? CourseOf(Geodesic(x1, y1, x2, y2)) : CalCourse(x1, y1, x2, y2);
}

double UnitUtl::DataFormat(double value, int digits) {
    if (digits > 300) {
        return value;
    }
    const double scale = std::pow(10.0, std::max(digits, 0));
    const double scaled = value * scale;
    return std::isfinite(scaled) ? std::round(scaled) / scale : value;
}

}  // namespace Tarvik::Util
