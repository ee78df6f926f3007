// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <tarvik/util/GeoPoint.h>

namespace Tarvik::Server {

using Util::GeoPoint;

/// Reads "x,y", longitude first, with a point as decimal sign; blanks around the numbers are allowed.
/// Empty for anything else: a missing comma or number, trailing text, values that are not finite, a latitude
/// beyond 90° or a longitude beyond 720° either way.
std::optional<GeoPoint> ParsePosition(std::string_view text);

/// "51° 54.5' N 004° 29.0' E", rounded to a tenth of a minute. The longitude may run on by whole turns.
std::string FormatPosition(GeoPoint point);

}  // namespace Tarvik::Server
