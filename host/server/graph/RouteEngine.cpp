// SPDX-License-Identifier: MIT
#include "host/server/graph/RouteEngine.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <tarvik/util/Geodesy.h>

namespace Tarvik::Server {

namespace {

/// How far a ship looks for the network, and how many nodes in sight are tried.
constexpr double kSightNm = 900.0;
constexpr std::size_t kMaxEntries = 8;
constexpr std::size_t kMaxLooks = 400;
/// How far an own port on what the map shows as land may be from the network.
constexpr double kHarbourNm = 50.0;

/// A dense way goes on along another, whose first point is its last.
void Extend(std::vector<GeoPoint>& way, const std::vector<GeoPoint>& more) {
    const double shift = way.back().x - more.front().x;
    for (std::size_t i = 1; i < more.size(); ++i) {
        way.push_back({more[i].x + shift, more[i].y});
    }
}

RouteResult Failed(int error, std::string message) {
    return {error, std::move(message), {}};
}

RouteLimits Both(RouteLimits limits, const RouteLimits& more) {
    limits.forbidden.insert(limits.forbidden.end(), more.forbidden.begin(), more.forbidden.end());
    limits.opened.insert(limits.opened.end(), more.opened.begin(), more.opened.end());
    return limits;
}

}  // namespace

RouteEngine::RouteEngine(std::shared_ptr<const SeaNetwork> network, RouteLimits standing)
    : network_(std::move(network)), standing_(std::move(standing)) {}

RouteResult RouteEngine::Plan(const std::vector<RouteRequestPoint>& points, const std::vector<OwnPort>& own,
                              const RouteLimits& limits) const {
    if (points.size() < 2) {
        return Failed(kRouteTooFewPoints, "a route needs at least two points");
    }
    std::vector<RouteEnd> ends;
    for (const RouteRequestPoint& point : points) {
        std::optional<RouteEnd> end = EndOf(point.id, own);
        if (!end) {
            return Failed(kRouteUnknownPoint, "there is no port or route point \"" + point.id + "\"");
        }
        ends.push_back(std::move(*end));
    }
    const LegPlanner planner(*network_, Both(standing_, limits));
    RouteResult result;
    result.stops.push_back({points.front().id, 0.0, {}, {}, {points.front().id}, {}});
    for (std::size_t i = 1; i < points.size(); ++i) {
        std::string error;
        std::optional<PlannedStop> stop = planner.Plan(ends[i - 1], ends[i], points[i], error);
        if (!stop) {
            return Failed(kRouteNoWay, error);
        }
        result.stops.push_back(std::move(*stop));
    }
    return result;
}

std::optional<RouteEnd> RouteEngine::EndOf(const std::string& id, const std::vector<OwnPort>& own) const {
    if (const auto node = network_->NodeOf(id)) {
        return RouteEnd{id, {*node}, std::nullopt};
    }
    const auto place =
        std::find_if(own.begin(), own.end(), [&id](const OwnPort& port) { return port.id == id; });
    if (place == own.end()) {
        return std::nullopt;
    }
    bool inSight = false;
    RouteEnd end{id, EntryNodes(place->position, inSight), place->position};
    const auto isFar = [&](std::uint32_t node) {
        return ArcNm(ToVector(place->position), network_->Vector(node)) > kHarbourNm;
    };
    if (!inSight) {
        std::erase_if(end.nodes, isFar);
    }
    return end;
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

std::vector<GeoPoint> RouteEngine::ShortestWay(GeoPoint position, const RouteEnd& end, double& km) const {
    bool inSight = false;
    const std::vector<std::uint32_t> entries = EntryNodes(position, inSight);
    const LegPlanner planner(*network_, standing_);
    std::vector<GeoPoint> best;
    const auto offer = [&](std::vector<GeoPoint> way) {
        const double length = PathShape::LengthKm(way);
        if (best.empty() || length < km) {
            best = std::move(way);
            km = length;
        }
    };
    const GeoPoint port = end.beside ? *end.beside : network_->data().nodes[end.nodes.front()];
    if (inSight && planner.MayRun(position, port) && !network_->Land().Blocks(position, port)) {
        offer(PathShape::Densify({position, port}));
    }
    for (const std::uint32_t target : end.nodes) {
        for (const std::uint32_t entry : entries) {
            if (!planner.MayRun(position, network_->data().nodes[entry])) {
                continue;
            }
            const std::vector<GeoPoint> rest = planner.Way(entry, target);
            if (rest.empty() || (!best.empty() && km == 0.0)) {
                continue;
            }
            std::vector<GeoPoint> way = PathShape::Densify({position, rest.front()});
            Extend(way, rest);
            if (end.beside) {
                Extend(way, PathShape::Densify({rest.back(), *end.beside}));
            }
            offer(std::move(way));
        }
    }
    return best;
}

NearestResult RouteEngine::Nearest(GeoPoint position, const std::string& destPort,
                                   const std::vector<OwnPort>& own) const {
    const auto invalid = [](int error, std::string message) {
        return NearestResult{error, std::move(message), {}, 0.0};
    };
    if (!Util::IsOnEarth(position.x, position.y)) {
        return invalid(kRouteBadPosition, "the position lies outside the earth");
    }
    const auto end = EndOf(destPort, own);
    if (!end) {
        return invalid(kRouteUnknownPoint, "there is no port or route point \"" + destPort + "\"");
    }
    double km = 0.0;
    const std::vector<GeoPoint> best = ShortestWay(position, *end, km);
    if (best.empty()) {
        return invalid(kRouteNoWay, "there is no way by sea from the position to " + destPort);
    }
    return {kRouteOk, {}, PathShape::CutAtDateLine(best), km};
}

}  // namespace Tarvik::Server
