// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "seaplan/data/Position.h"

/// Positions as people type and paste them.
namespace Tarvik::Seaplan {

enum class Axis { Latitude, Longitude };

/// One coordinate in degrees, north and east positive. Nothing for a text that is none, or that lies outside
/// -90 to 90 or -180 to 180.
///
/// Legal: "51.9", "-0,5", "51 54.5", "51° 54.5' N", "N51-54.5", "5154.5N", "515430N", "51°54'30\"N",
/// "51 deg 54 min 30 sec N", "429.0E" (degrees and minutes, since 429 degrees are none).
/// Illegal: "", "51 60 N" (minutes go to 59.99), "51.5 30", "N51S", "51E" as a latitude, "-51S", "51 54 30
/// 1".
std::optional<double> ReadTypedDegrees(const std::string& text, Axis axis);
/// Two coordinates at once, parted by a comma, a semicolon, a slash, a tab, blanks or by their letters: the
/// first is the latitude unless letters say otherwise.
std::optional<Position> ReadTypedPosition(const std::string& text);
/// "51° 54.50' N", with three digits of longitude: what people read back.
std::string DegreesText(double degrees, Axis axis);

}  // namespace Tarvik::Seaplan
