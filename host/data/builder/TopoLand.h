// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Data {

using Server::GeoPoint;
using Ring = std::vector<GeoPoint>;
/// An outer ring and its holes (inland seas).
using Polygon = std::vector<Ring>;

/// Reads the object "land" of a TopoJSON text: polygons with positions rounded to 5 decimals, closed
/// implicitly. Nothing and an error text when the text is not such a file.
std::optional<std::vector<Polygon>> ReadTopoLand(const std::string& text, std::string& error);

}  // namespace Tarvik::Data
