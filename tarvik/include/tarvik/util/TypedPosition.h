// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include <tarvik/Export.h>

/// Positions as people type and paste them.
namespace Tarvik::Util {

enum class Axis { Latitude, Longitude };

/// What was typed, in degrees: `x` is the longitude, `y` the latitude.
struct TypedPosition {
    double x = 0;
    double y = 0;
};

/// One coordinate in degrees, north and east positive. Nothing for a text that is none, or that lies outside
/// -90 to 90 or -180 to 180.
///
/// Legal: "51.9", "-0,5", "51 54.5", "51° 54.5' N", "N51-54.5", "5154.5N", "515430N", "51°54'30\"N",
/// "51 deg 54 min 30 sec N", "429.0E" (degrees and minutes, since 429 degrees are none).
/// Illegal: "", "51 60 N" (minutes go to 59.99), "51.5 30", "N51S", "51E" as a latitude, "-51S", "51 54 30
/// 1".
TARVIK_API std::optional<double> ReadTypedDegrees(const std::string& text, Axis axis);
/// Two coordinates at once, parted by a comma, a semicolon, a slash, a tab, blanks or by their letters: the
/// first is the latitude unless letters say otherwise.
TARVIK_API std::optional<TypedPosition> ReadTypedPosition(const std::string& text);
/// "51° 54.50' N", with three digits of longitude: what people read back.
TARVIK_API std::string DegreesText(double degrees, Axis axis);
/// The same to the second: "51°54'30\"N".
TARVIK_API std::string SecondsText(double degrees, Axis axis);

}  // namespace Tarvik::Util
