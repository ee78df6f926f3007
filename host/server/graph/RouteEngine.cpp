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
constexpr size_t kMaxEntries = 8;
constexpr size_t kMaxLooks = 400;

RouteResult failed(int error, std::string message) {
    return {error, std::move(message), {}};
}

}  // namespace

RouteEngine::RouteEngine(std::shared_ptr<const SeaNetwork> network) : network_(std::move(network)) {}

RouteResult RouteEngine::plan(const std::vector<RouteRequestPoint>& points) const {
    if (points.size() < 2) return failed(kRouteTooFewPoints, "a route needs at least two points");
    for (const RouteRequestPoint& point : points) {
        if (!network_->nodeOf(point.id))
            return failed(kRouteUnknownPoint, "there is no port or route point \"" + point.id + "\"");
    }
    const LegPlanner planner(*network_);
    RouteResult result;
    result.stops.push_back({points.front().id, 0.0, {}, {}, {points.front().id}, {}});
    for (size_t i = 1; i < points.size(); ++i) {
        std::string error;
        std::optional<PlannedStop> stop = planner.plan(points[i - 1].id, points[i], error);
        if (!stop) return failed(kRouteNoWay, error);
        result.stops.push_back(std::move(*stop));
    }
    return result;
}

std::vector<uint32_t> RouteEngine::entryNodes(GeoPoint position, bool& inSight) const {
    const UnitVector here = toVector(position);
    std::vector<std::pair<double, uint32_t>> near;
    for (uint32_t i = 0; i < network_->data().nodes.size(); ++i) {
        const double nm = arcNm(here, network_->vector(i));
        if (nm <= kSightNm) near.emplace_back(nm, i);
    }
    std::sort(near.begin(), near.end());
    std::vector<uint32_t> entries;
    const LandIndex& land = network_->land();
    if (!land.isLand(position)) {
        for (size_t i = 0; i < near.size() && i < kMaxLooks && entries.size() < kMaxEntries; ++i) {
            const GeoPoint node = network_->data().nodes[near[i].second];
            if (!land.isLand(node) && !land.blocks(position, node)) entries.push_back(near[i].second);
        }
    }
    inSight = !entries.empty();
    // In port or on a river the map shows land: the nearest node is then as good as can be had.
    if (!inSight && !near.empty()) entries.push_back(near.front().second);
    return entries;
}

NearestResult RouteEngine::nearest(GeoPoint position, const std::string& destPort) const {
    const auto invalid = [](int error, std::string message) {
        return NearestResult{error, std::move(message), {}, 0.0};
    };
    if (!std::isfinite(position.x) || !std::isfinite(position.y) || std::abs(position.x) > 180.0 ||
        std::abs(position.y) > 90.0) {
        return invalid(kRouteBadPosition, "the position lies outside the earth");
    }
    const auto target = network_->nodeOf(destPort);
    if (!target) return invalid(kRouteUnknownPoint, "there is no port or route point \"" + destPort + "\"");
    bool inSight = false;
    const std::vector<uint32_t> entries = entryNodes(position, inSight);
    const LegPlanner planner(*network_);
    std::vector<GeoPoint> best;
    double bestKm = 0.0;
    const GeoPoint port = network_->data().nodes[*target];
    if (inSight && !network_->land().blocks(position, port)) {
        best = PathShape::densify({position, port});
        bestKm = PathShape::lengthKm(best);
    }
    for (const uint32_t entry : entries) {
        if (!best.empty() && bestKm == 0.0) break;
        std::vector<GeoPoint> rest = planner.way(entry, *target);
        if (rest.empty()) continue;
        std::vector<GeoPoint> way = PathShape::densify({position, rest.front()});
        const double shift = way.back().x - rest.front().x;
        for (size_t i = 1; i < rest.size(); ++i) way.push_back({rest[i].x + shift, rest[i].y});
        const double km = PathShape::lengthKm(way);
        if (!best.empty() && bestKm <= km) continue;
        best = std::move(way);
        bestKm = km;
    }
    if (best.empty()) return invalid(kRouteNoWay, "there is no way by sea from the position to " + destPort);
    return {kRouteOk, {}, PathShape::cutAtDateLine(best), bestKm};
}

}  // namespace Tarvik::Server
