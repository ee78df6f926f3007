// SPDX-License-Identifier: MIT
#pragma once

/// Places on the earth: one type and its limits for the client, its plug-ins and the server. Texts of places
/// are PointText.h, lines between them Geodesy.h.
namespace Tarvik::Util {

/// Degrees of the poles and of the date line, either way.
inline constexpr double kMostLatitude = 90.0;
inline constexpr double kMostLongitude = 180.0;

/// A place on the earth in decimal degrees: `x` is the longitude, `y` the latitude.
struct GeoPoint {
    double x = 0;
    double y = 0;

    friend bool operator==(const GeoPoint&, const GeoPoint&) = default;
};

/// Whether a position in degrees is one, both limits included; what is no number is none.
constexpr bool IsOnEarth(double longitude, double latitude) {
    return longitude >= -kMostLongitude && longitude <= kMostLongitude && latitude >= -kMostLatitude &&
           latitude <= kMostLatitude;
}

}  // namespace Tarvik::Util
