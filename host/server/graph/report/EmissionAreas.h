// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "host/geo/CsvTable.h"
#include "host/geo/LandIndex.h"

namespace Tarvik::Server {

/// The emission control areas: waters in which ships burn other fuel. Kept apart from the network, since they
/// change no way.
class EmissionAreas {
  public:
    /// Reads a table with the columns `name` and `ring` (corners joined by great circles, closed implicitly);
    /// rings may run over land and must not overlap. Throws std::runtime_error with what is wrong.
    explicit EmissionAreas(const Data::CsvTable& table);

    bool Hold(GeoPoint place) const { return inside_.IsLand(place); }
    /// How many nautical miles of a way (pieces of at most a degree) lie inside.
    double NmInside(const std::vector<GeoPoint>& way) const;

  private:
    std::vector<std::vector<GeoPoint>> rings_;  ///< drawn, the first corner again at the end
    LandIndex inside_;
};

}  // namespace Tarvik::Server
