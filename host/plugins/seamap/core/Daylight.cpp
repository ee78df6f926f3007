// SPDX-License-Identifier: MIT
/// Day and night. Method: the sun's mean longitude and anomaly with the two greatest terms of its equation of
/// centre, as "The Astronomical Almanac" gives them in its low precision formulas; the edge of the night is
/// the great circle 90 degrees from the place under the sun, of which each meridian is crossed once. Cost:
/// one tangent for each few pixels of the window's width.
#include "host/plugins/seamap/core/Daylight.h"

#include <algorithm>
#include <cmath>

#include "host/geo/Sphere.h"

namespace Tarvik::Seamap {

namespace {

constexpr double kCsecsPerDay = 8640000;
constexpr double kEpochToJ2000 = 10957.5;  ///< days from 1970-01-01 00:00 to 2000-01-01 12:00
constexpr int kStep = 4;                   ///< pixels between the corners of the edge
/// With the sun over the equator the edge is a pair of meridians, which no latitude by longitude describes.
constexpr double kLeastDeclination = 0.01;

double Sine(double degrees) {
    return std::sin(degrees * Server::kDegree);
}

double Cosine(double degrees) {
    return std::cos(degrees * Server::kDegree);
}

}  // namespace

GeoPoint SunAt(std::int64_t utcCsecs) {
    const double days = static_cast<double>(utcCsecs) / kCsecsPerDay - kEpochToJ2000;
    const double meanLongitude = 280.460 + 0.9856474 * days;
    const double anomaly = 357.528 + 0.9856003 * days;
    const double longitude = meanLongitude + 1.915 * Sine(anomaly) + 0.020 * Sine(2 * anomaly);
    const double obliquity = 23.439 - 0.0000004 * days;
    const double ascension =
        std::atan2(Cosine(obliquity) * Sine(longitude), Cosine(longitude)) / Server::kDegree;
    const double declination = std::asin(Sine(obliquity) * Sine(longitude)) / Server::kDegree;
    const double sidereal = 280.46062 + 360.98564737 * days;
    return {Server::WrapLongitude(ascension - sidereal), declination};
}

bool IsNight(GeoPoint place, GeoPoint sun) {
    return Server::Dot(Server::ToVector(place), Server::ToVector(sun)) < 0;
}

std::vector<PixelPoint> NightIn(const MercatorView& view, GeoPoint sun) {
    const double declination =
        std::fabs(sun.y) < kLeastDeclination ? std::copysign(kLeastDeclination, sun.y) : sun.y;
    const double steepness = std::tan(declination * Server::kDegree);
    // The pole away from the sun has night.
    const double darkEdge = declination > 0 ? view.Height() + kStep : -kStep;
    std::vector<PixelPoint> night{{0, darkEdge}};
    for (int x = 0; x < view.Width() + kStep; x += kStep) {
        const double at = std::min(x, view.Width());
        const GeoPoint below = view.ToGeo({at, 0});
        const double lat = std::atan(-Cosine(below.x - sun.x) / steepness) / Server::kDegree;
        const WorldPoint edge = Project({below.x, lat});
        const double y = view.ToScreen(edge).y;
        night.push_back({at, std::clamp(y, -double(kStep), double(view.Height() + kStep))});
    }
    night.push_back({double(view.Width()), darkEdge});
    return night;
}

}  // namespace Tarvik::Seamap
