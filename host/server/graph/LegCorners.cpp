// SPDX-License-Identifier: MIT
// The way of one leg through the network: the shortest over all nodes of its ends and all orders of the
// chosen points.
#include <algorithm>
#include <numeric>
#include <utility>

#include "host/server/graph/LegPlanner.h"

namespace Tarvik::Server {

namespace {

/// More choices on one leg than this are tried in the order given only.
constexpr std::size_t kMaxPermuted = 4;

void Join(NodePath& path, const NodePath& more) {
    path.nodes.insert(path.nodes.end(), more.nodes.begin() + 1, more.nodes.end());
    path.edges.insert(path.edges.end(), more.edges.begin(), more.edges.end());
    path.nm += more.nm;
}

}  // namespace

template <typename Search>
auto LegPlanner::OpeningBySteps(GateMask& forbidden, Search search) const {
    auto found = search();
    if (found) {
        return found;
    }
    const GateMask before = forbidden;
    network_.OpenIce(forbidden);
    forbidden |= never_;
    found = search();
    for (std::size_t i = 0; !found && i < network_.data().routePoints.size(); ++i) {
        if (before[i] && network_.data().routePoints[i].shut && !never_[i]) {
            forbidden = before;
            forbidden[i] = false;
            found = search();
        }
    }
    if (!found) {
        forbidden = never_;
        found = search();
    }
    return found;
}

std::optional<NodePath> LegPlanner::PathThrough(const std::vector<std::uint32_t>& stations,
                                                const GateMask& forbidden) const {
    NodePath path;
    path.nodes.push_back(stations.front());
    for (std::size_t i = 1; i < stations.size(); ++i) {
        // Looked for from one end whichever way the ship goes, so that both ways are one.
        const auto [low, high] = std::minmax(stations[i - 1], stations[i]);
        std::optional<NodePath> more = FindPath(network_, low, high, forbidden);
        if (!more) {
            return std::nullopt;
        }
        if (low != stations[i - 1]) {
            std::reverse(more->nodes.begin(), more->nodes.end());
            std::reverse(more->edges.begin(), more->edges.end());
        }
        Join(path, *more);
    }
    return path;
}

std::optional<NodePath> LegPlanner::BestOrder(std::uint32_t from, std::uint32_t to, Stretches chosen,
                                              const GateMask& forbidden) const {
    std::vector<std::size_t> order(chosen.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::optional<NodePath> best;
    do {
        std::vector<std::uint32_t> stations{from};
        for (const std::size_t i : order) {
            stations.insert(stations.end(), chosen[i].nodes.begin(), chosen[i].nodes.end());
        }
        stations.push_back(to);
        std::optional<NodePath> path = PathThrough(stations, forbidden);
        if (path && (!best || path->nm < best->nm)) {
            best = std::move(path);
        }
    } while (chosen.size() <= kMaxPermuted && std::next_permutation(order.begin(), order.end()));
    return best;
}

std::vector<GeoPoint> LegPlanner::Way(std::uint32_t from, std::uint32_t to) const {
    GateMask forbidden = closed_;
    const auto path = OpeningBySteps(forbidden, [&] { return PathThrough({from, to}, forbidden); });
    if (!path) {
        return {};
    }
    return PathShape::Densify(shape_.Taut(*path, forbidden, {}));
}

GeoPoint LegPlanner::PlaceOf(const RouteEnd& end) const {
    return end.beside ? *end.beside : network_.data().nodes[end.nodes.front()];
}

double LegPlanner::NmAside(const RouteEnd& end, std::uint32_t node) const {
    return end.beside ? ArcNm(ToVector(*end.beside), network_.Vector(node)) : 0.0;
}

std::optional<NodePath> LegPlanner::BestBetween(const RouteEnd& from, const RouteEnd& to,
                                                const Stretches& chosen, const GateMask& forbidden) const {
    const auto isShut = [&](const RouteEnd& end, std::uint32_t node) {
        const GeoPoint there = network_.data().nodes[node];
        return end.beside && (network_.GatesCrossed(*end.beside, there) & forbidden).any();
    };
    std::optional<NodePath> best;
    for (const std::uint32_t first : from.nodes) {
        for (const std::uint32_t last : to.nodes) {
            if (isShut(from, first) || isShut(to, last)) {
                continue;
            }
            std::optional<NodePath> path = BestOrder(first, last, chosen, forbidden);
            if (!path) {
                continue;
            }
            path->nm += NmAside(from, first) + NmAside(to, last);
            if (!best || path->nm < best->nm) {
                best = std::move(path);
            }
        }
    }
    return best;
}

std::optional<LegPlanner::Drawn> LegPlanner::Corners(const RouteEnd& from, const RouteEnd& to,
                                                     const Stretches& chosen) const {
    if (from.nodes.empty() || to.nodes.empty()) {
        return std::nullopt;
    }
    GateMask forbidden = ForbiddenFor(chosen);
    if ((from.beside || to.beside) && chosen.empty()) {
        const GeoPoint here = PlaceOf(from);
        const GeoPoint there = PlaceOf(to);
        const LandIndex& land = network_.Land();
        if (!land.IsLand(here) && !land.IsLand(there) && !land.Blocks(here, there) &&
            (network_.GatesCrossed(here, there) & forbidden).none()) {
            return Drawn{{here, there}, ArcNm(here, there)};
        }
    }
    const std::optional<NodePath> path =
        OpeningBySteps(forbidden, [&] { return BestBetween(from, to, chosen, forbidden); });
    if (!path) {
        return std::nullopt;
    }
    std::vector<std::uint32_t> pinned;
    for (const Stretch& stretch : chosen) {
        pinned.insert(pinned.end(), stretch.nodes.begin(), stretch.nodes.end());
    }
    Drawn way{shape_.Taut(*path, forbidden, pinned), path->nm};
    if (from.beside) {
        way.corners.insert(way.corners.begin(), *from.beside);
    }
    if (to.beside) {
        way.corners.push_back(*to.beside);
    }
    return way;
}

}  // namespace Tarvik::Server
