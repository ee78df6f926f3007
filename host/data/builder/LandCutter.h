// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "host/data/builder/TopoLand.h"
#include "host/geo/LandFile.h"

namespace Tarvik::Data {

/// Cuts polygons at the date line and into cells small enough to draw; see `LandFile` for what a cell is.
std::vector<LandFile::Cell> CutIntoCells(const std::vector<Polygon>& land);

/// The coast as polylines, without the closing lines along the date line and the pole.
std::vector<LandFile::Cell> CutIntoCoasts(const std::vector<Polygon>& land);

}  // namespace Tarvik::Data
