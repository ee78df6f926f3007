// SPDX-License-Identifier: MIT
// Which gates a way meets: it is compared with those only that share a cell of five degrees with it, a dozen
// of more than a hundred on a long way. Own method. Cost: a look at one or two cells for each piece of the
// way, and the comparison of every piece with each gate found.
#include "host/server/graph/GateCells.h"

#include <algorithm>
#include <cmath>

#include "host/server/graph/Gate.h"
#include "host/server/graph/SeaNetwork.h"

namespace Tarvik::Server {

namespace {

/// Great circles between places on the southern limit bend a little beyond it.
constexpr double kSouthSlack = 0.35;
/// The limit lies south of this in every ocean.
constexpr double kNorthOfSouthLimits = -45.0;

bool IsInIce(GeoPoint p) {
    return p.y > kNorthLimit || (p.y < kNorthOfSouthLimits && p.y < SouthLimit(p.x) - kSouthSlack);
}

}  // namespace

/// Calls `visit` with the number of every cell that the box between two places touches.
template <typename Visit>
void GateCells::VisitBox(GeoPoint a, GeoPoint b, Visit visit) {
    // Places on the border of two cells belong to both, however their degrees are rounded.
    constexpr double kEdge = 1e-6;
    const auto rowOf = [](double y) {
        return std::clamp(static_cast<int>(std::floor((y + 90.0) / kCellDegrees)), 0, kRows - 1);
    };
    const auto columnOf = [](double x) { return static_cast<int>(std::floor(x / kCellDegrees)); };
    const auto [west, east] = std::minmax(a.x, b.x);
    const auto [south, north] = std::minmax(a.y, b.y);
    const int columnFirst = columnOf(west - kEdge);
    const int columnLast = std::min(columnOf(east + kEdge), columnFirst + kColumns - 1);
    const int rowLast = rowOf(north + kEdge);
    for (int row = rowOf(south - kEdge); row <= rowLast; ++row) {
        for (int column = columnFirst; column <= columnLast; ++column) {
            const int turned = (column % kColumns + kColumns) % kColumns;
            visit(static_cast<std::size_t>(row) * kColumns + static_cast<std::size_t>(turned));
        }
    }
}

GateCells::GateCells(const std::vector<RoutePoint>& routePoints, const std::vector<GeoPoint>& nodes)
    : GateCells() {
    for (std::size_t i = 0; i < routePoints.size(); ++i) {
        const auto note = [this, i](std::size_t cell) { masks_[cell][i] = true; };
        const std::vector<GeoPoint>& gate = routePoints[i].gate;
        for (std::size_t k = 1; k < gate.size(); ++k) {
            VisitBox(gate[k - 1], gate[k], note);
        }
        VisitBox(nodes[routePoints[i].node], nodes[routePoints[i].node], note);
    }
}

GateMask GateCells::Near(const std::vector<GeoPoint>& way) const {
    GateMask near;
    const auto add = [this, &near](std::size_t cell) { near |= masks_[cell]; };
    VisitBox(way.front(), way.front(), add);
    for (std::size_t i = 1; i < way.size(); ++i) {
        VisitBox(way[i - 1], way[i], add);
    }
    return near;
}

GateMask GatesCrossed(const std::vector<GeoPoint>& way, const std::vector<RoutePoint>& routePoints,
                      const GateCells& cells) {
    GateMask mask = cells.Near(way);
    for (std::size_t i = 0; mask.any() && i < routePoints.size(); ++i) {
        mask[i] = mask[i] && FirstCrossing(way, routePoints[i].gate).has_value();
    }
    mask[kIceBit] = std::any_of(way.begin(), way.end(), IsInIce);
    return mask;
}

GateMask GatesCrossed(const std::vector<GeoPoint>& way, const std::vector<RoutePoint>& routePoints) {
    GateMask mask;
    for (std::size_t i = 0; i < routePoints.size(); ++i) {
        mask[i] = FirstCrossing(way, routePoints[i].gate).has_value();
    }
    mask[kIceBit] = std::any_of(way.begin(), way.end(), IsInIce);
    return mask;
}

}  // namespace Tarvik::Server
