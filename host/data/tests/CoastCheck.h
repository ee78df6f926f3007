// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "host/server/graph/NetworkData.h"

namespace Tarvik::Data {

using Server::GeoPoint;

/// Looks for the places where a drawn way meets the coast or a line of its own choosing: plainly, segment by
/// segment in cells of a degree, and without anything that the search uses.
class LineCells {
  public:
    void Add(GeoPoint a, GeoPoint b);
    /// Every place where the piece a-b meets a line; both ends within ±180 and less than 180 degrees apart.
    std::vector<GeoPoint> Meetings(GeoPoint a, GeoPoint b) const;
    /// Whether a line passes a place within `degrees`.
    bool PassesNear(GeoPoint p, double degrees) const;

  private:
    std::map<std::pair<int, int>, std::vector<std::pair<GeoPoint, GeoPoint>>> cells_;
};

/// The coast of the land rings; steps over the date line are left out.
LineCells CoastOf(const Server::NetworkData& data);

/// The ways that are made by hand and may run over land of the map: canals, rivers, links to ports.
LineCells HandMadeWays(const Server::NetworkData& data);

}  // namespace Tarvik::Data
