// SPDX-License-Identifier: MIT
#include "host/server/graph/RouteEngine.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/server/graph/LegPlanner.h"

namespace Tarvik::Server {

namespace {

/// How far a ship looks for the network, and how many nodes in sight are tried.
constexpr double kSightNm = 900.0;
constexpr std::size_t kMaxEntries = 8;
constexpr std::size_t kMaxLooks = 400;

RouteResult Failed(int error, std::string message) {
    return {error, std::move(message), {}};
}

}  // namespace

RouteEngine::RouteEngine(std::shared_ptr<const SeaNetwork> network) : network_(std::move(network)) {}

RouteResult RouteEngine::Plan(const std::vector<RouteRequestPoint>& points, const RouteLimits& limits) const {
    if (points.size() < 2) {
        return Failed(kRouteTooFewPoints, "a route needs at least two points");
    }
    for (const RouteRequestPoint& point : points) {
        if (!network_->NodeOf(point.id)) {
            return Failed(kRouteUnknownPoint, "there is no port or route point \"" + point.id + "\"");
        }
    }
    const LegPlanner planner(*network_, limits);
    RouteResult result;
    result.stops.push_back({points.front().id, 0.0, {}, {}, {points.front().id}, {}});
    for (std::size_t i = 1; i < points.size(); ++i) {
        std::string error;
        std::optional<PlannedStop> stop = planner.Plan(points[i - 1].id, points[i], error);
        if (!stop) {
            return Failed(kRouteNoWay, error);
        }
        result.stops.push_back(std::move(*stop));
    }
    return result;
}

std::vector<std::uint32_t> RouteEngine::EntryNodes(GeoPoint position, bool& inSight) const {
    const UnitVector here = ToVector(position);
    std::vector<std::pair<double, std::uint32_t>> near;
    for (std::uint32_t i = 0; i < network_->data().nodes.size(); ++i) {
        const double nm = ArcNm(here, network_->Vector(i));
        if (nm <= kSightNm) {
            near.emplace_back(nm, i);
        }
    }
    std::sort(near.begin(), near.end());
    std::vector<std::uint32_t> entries;
    const LandIndex& land = network_->Land();
    if (!land.IsLand(position)) {
        for (std::size_t i = 0; i < near.size() && i < kMaxLooks && entries.size() < kMaxEntries; ++i) {
            const GeoPoint node = network_->data().nodes[near[i].second];
            if (!land.IsLand(node) && !land.Blocks(position, node)) {
                entries.push_back(near[i].second);
            }
        }
    }
    inSight = !entries.empty();
    // In port or on a river the map shows land: the nearest node is then as good as can be had.
    if (!inSight && !near.empty()) {
        entries.push_back(near.front().second);
    }
    return entries;
}

NearestResult RouteEngine::Nearest(GeoPoint position, const std::string& destPort) const {
    const auto invalid = [](int error, std::string message) {
        return NearestResult{error, std::move(message), {}, 0.0};
    };
    if (!std::isfinite(position.x) || !std::isfinite(position.y) || std::abs(position.x) > 180.0 ||
        std::abs(position.y) > 90.0) {
        return invalid(kRouteBadPosition, "the position lies outside the earth");
    }
    const auto target = network_->NodeOf(destPort);
    if (!target) {
        return invalid(kRouteUnknownPoint, "there is no port or route point \"" + destPort + "\"");
    }
    bool inSight = false;
    const std::vector<std::uint32_t> entries = EntryNodes(position, inSight);
    const LegPlanner planner(*network_);
    std::vector<GeoPoint> best;
    double bestKm = 0.0;
    const GeoPoint port = network_->data().nodes[*target];
    if (inSight && !network_->Land().Blocks(position, port)) {
        best = PathShape::Densify({position, port});
        bestKm = PathShape::LengthKm(best);
    }
    for (const std::uint32_t entry : entries) {
        if (!best.empty() && bestKm == 0.0) {
            break;
        }
        std::vector<GeoPoint> rest = planner.Way(entry, *target);
        if (rest.empty()) {
            continue;
        }
        std::vector<GeoPoint> way = PathShape::Densify({position, rest.front()});
        const double shift = way.back().x - rest.front().x;
        for (std::size_t i = 1; i < rest.size(); ++i) {
            way.push_back({rest[i].x + shift, rest[i].y});
        }
        const double km = PathShape::LengthKm(way);
        if (!best.empty() && bestKm <= km) {
            continue;
        }
        best = std::move(way);
        bestKm = km;
    }
    if (best.empty()) {
        return invalid(kRouteNoWay, "there is no way by sea from the position to " + destPort);
    }
    return {kRouteOk, {}, PathShape::CutAtDateLine(best), bestKm};
}

}  // namespace Tarvik::Server
