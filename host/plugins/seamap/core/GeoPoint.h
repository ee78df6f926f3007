// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Tarvik::Seamap {

/// A place in degrees, east and north positive.
struct GeoPoint {
    double lon = 0;
    double lat = 0;
    bool operator==(const GeoPoint&) const = default;
};

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

/// Brings a longitude into -180 (included) to 180 (excluded).
double NormaliseLongitude(double lon);

/// Reads "x,y", longitude first, with a point as decimal sign; blanks around the numbers are allowed.
/// Empty for anything else: a missing comma or number, trailing text, values that are not finite, a latitude
/// beyond 90° or a longitude beyond 720° either way.
std::optional<GeoPoint> ParsePosition(std::string_view text);

/// "51° 54.5' N 004° 29.0' E", rounded to a tenth of a minute.
std::string FormatPosition(GeoPoint point);

}  // namespace Tarvik::Seamap
