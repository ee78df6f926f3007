// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/geo/LandFile.h"
#include "host/geo/RingShape.h"

namespace Tarvik::Data {

/// An outer ring and its holes (inland seas).
using Polygon = std::vector<Ring>;

/// Reads the object "land" of a TopoJSON text: polygons with positions rounded to 5 decimals, closed
/// implicitly. Nothing and an error text when the text is not such a file.
std::optional<std::vector<Polygon>> ReadTopoLand(const std::string& text, std::string& error);

/// Cuts polygons at the date line and into cells small enough to draw; see `LandFile` for what a cell is.
std::vector<LandFile::Cell> CutIntoCells(const std::vector<Polygon>& land);

/// The coast as polylines, without the closing lines along the date line and the pole.
std::vector<LandFile::Cell> CutIntoCoasts(const std::vector<Polygon>& land);

}  // namespace Tarvik::Data
