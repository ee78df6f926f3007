// SPDX-License-Identifier: MIT
// Whole voyages on the layer: a route with its labels, a position book, a ship with its track.
#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>

#include "seaplan/chart/ChartLines.h"
#include "seaplan/chart/VoyageLayer.h"
#include "seaplan/data/Position.h"

namespace Tarvik::Seaplan {

namespace {

void AddLabel(Interface::TrvMapPointParams& label, const RoutePointRow& point) {
    label.ref.id = point.id;
    label.position = point.position;
    label.label = ShownName(point);
    Interface::Call(Interface::Bus::MapAddPointLabel, &std::as_const(label));
}

/// All points of the route; neighbouring segments of a stop share one, which is taken once.
bool CollectPoints(const RouteStops& stops, PointTexts& points) {
    for (std::size_t s = 1; s < stops.size(); ++s) {
        const auto& segments = stops[s].routes;
        for (std::size_t r = 0; r < segments.size(); ++r) {
            std::vector<std::string> piece;
            if (!SplitPointset(segments[r].pointset, piece)) {
                return false;
            }
            const std::ptrdiff_t skipped = r > 0 && !piece.empty() ? 1 : 0;
            points.insert(points.end(), piece.begin() + skipped, piece.end());
        }
    }
    return true;
}

}  // namespace

int VoyageLayer::DrawRoute(const RouteStops& stops, PortDirectory& ports) {
    if (stops.size() < 2) {
        return -1;
    }
    if (SetupLayer() != 0) {
        return -2;
    }
    if (ClearRouteObjects() != 0) {
        return -3;
    }
    PointTexts points;
    if (!CollectPoints(stops, points)) {
        return -4;
    }
    mainLine.ref.id.clear();
    if (DrawLine(mainLine, points, 0) != 0) {
        return -5;
    }
    if (SetExtent(points) != 0) {
        return -6;
    }
    return DrawRoutePointLabels(stops, ports) == 0 ? 0 : -7;
}

int VoyageLayer::DrawRoutePointLabels(const RouteStops& stops, PortDirectory& ports) {
    if (stops.size() < 2) {
        return -1;
    }
    std::vector<RoutePointGroup> groups;
    for (const auto& stop : stops) {
        groups.insert(groups.end(), stop.rp_groups.begin(), stop.rp_groups.end());
    }
    if (groups.empty()) {
        return 0;
    }
    const PointMap* routePoints = ports.RoutePoints();
    if (routePoints == nullptr) {
        return -2;
    }
    for (const auto& group : groups) {
        const auto found = routePoints->find(group.rp_id);
        if (found == routePoints->end()) {
            return -3;
        }
        AddLabel(routePointLabel, found->second);
    }
    return 0;
}

int VoyageLayer::DrawBook(const std::string& vi, const PointTexts& positions) {
    if (positions.size() < 2) {
        return -1;
    }
    if (SetupLayer() != 0) {
        return -2;
    }
    if (ClearRouteObjects() != 0) {
        return -3;
    }
    if (vi.empty()) {
        return -4;
    }
    remainingLine.ref.id = vi;
    if (DrawLine(remainingLine, positions, 1) != 0) {
        return -5;
    }
    return SetExtent(positions) == 0 ? 0 : -6;
}

int VoyageLayer::DrawShipAndTrack(const std::string& id, const std::string& position, const PointTexts& first,
                                  const PointTexts& second) {
    shipIcon.ref.id = id;
    if (PlaceShip(shipIcon, position) != 0) {
        return -1;
    }
    const PointTexts track = JoinTracks(first, second);
    remainingLine.ref.id = id;
    return track.size() < 2 || DrawLine(remainingLine, track, 1) == 0 ? 0 : -2;
}

void VoyageLayer::AddAlternativeLabel(const RoutePointRow& point) {
    AddLabel(alternativeLabel, point);
}

}  // namespace Tarvik::Seaplan
