// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "host/server/graph/NetworkData.h"

namespace Tarvik::Server {

/// Route points by cells of the globe, so that a way is compared only with those near it.
class GateCells {
  public:
    GateCells() : masks_(kCells) {}
    /// `nodes` are those that the route points lie at.
    GateCells(const std::vector<RoutePoint>& routePoints, const std::vector<GeoPoint>& nodes);

    /// The route points whose gate or place a drawn way may meet: all that it meets, and some beside it.
    /// Longitudes of the way may run past ±180.
    GateMask Near(const std::vector<GeoPoint>& way) const;

  private:
    static constexpr int kCellDegrees = 5;
    static constexpr int kColumns = 360 / kCellDegrees;
    static constexpr int kRows = 180 / kCellDegrees;
    static constexpr std::size_t kCells = std::size_t{kColumns} * kRows;

    template <typename Visit>
    static void VisitBox(GeoPoint a, GeoPoint b, Visit visit);

    std::vector<GateMask> masks_;  ///< row by row from the south pole, each eastwards from 0
};

///@{
/// The gates that a drawn way crosses, and the ice bit where it leaves the latitudes open to all. `cells` of
/// the route points spare comparing the way with all of them.
GateMask GatesCrossed(const std::vector<GeoPoint>& way, const std::vector<RoutePoint>& routePoints);
GateMask GatesCrossed(const std::vector<GeoPoint>& way, const std::vector<RoutePoint>& routePoints,
                      const GateCells& cells);
///@}

}  // namespace Tarvik::Server
