// SPDX-License-Identifier: MIT
#include "host/server/graph/LegPlanner.h"

#include <algorithm>
#include <numeric>

namespace Tarvik::Server {

namespace {

/// More choices on one leg than this are tried in the order given only.
constexpr std::size_t kMaxPermuted = 4;
/// A passage that makes the way this many times as long is no alternative.
constexpr double kFarthestOffer = 2.0;

bool ShareGroup(const NetworkData& data, std::uint16_t a, std::uint16_t b) {
    const auto& groups = data.routePoints[a].groups;
    return std::any_of(groups.begin(), groups.end(), [b](const AlternativeGroup& group) {
        return std::find(group.begin(), group.end(), b) != group.end();
    });
}

void Join(NodePath& path, const NodePath& more) {
    path.nodes.insert(path.nodes.end(), more.nodes.begin() + 1, more.nodes.end());
    path.edges.insert(path.edges.end(), more.edges.begin(), more.edges.end());
    path.nm += more.nm;
}

}  // namespace

LegPlanner::LegPlanner(const SeaNetwork& network, const RouteLimits& limits)
    : network_(network), shape_(network), closed_(network.ShutGates()) {
    for (const std::string& id : limits.forbidden) {
        if (const auto point = network.RoutePointIndex(id)) {
            never_[*point] = true;
        }
    }
    for (const std::string& id : limits.opened) {
        const auto point = network.RoutePointIndex(id);
        if (point && network.IsIce(*point)) {
            network.OpenIce(closed_);
        } else if (point) {
            closed_[*point] = false;
        }
    }
    closed_ |= never_;
}

bool LegPlanner::Resolve(const RouteChoice& choice, const std::string& fromId, const std::string& toId,
                         Stretch& out) const {
    const auto chosen = network_.RoutePointIndex(choice.newId);
    const std::size_t comma = choice.range.find(',');
    if (!chosen || comma == std::string::npos) {
        return false;
    }
    out.chosen = *chosen;
    out.text = choice.newId + "=" + choice.range;
    const std::string ends[] = {choice.range.substr(0, comma), choice.range.substr(comma + 1)};
    const auto addEnd = [&](const std::string& id) {
        if (id == fromId || id == toId) {
            return true;
        }
        const auto point = network_.RoutePointIndex(id);
        if (point) {
            out.nodes.push_back(network_.data().routePoints[*point].node);
        }
        return point.has_value();
    };
    if (!addEnd(ends[0])) {
        return false;
    }
    out.nodes.push_back(network_.data().routePoints[*chosen].node);
    return addEnd(ends[1]);
}

std::optional<LegPlanner::Stretches> LegPlanner::StretchesOf(const std::string& fromId,
                                                             const RouteRequestPoint& to,
                                                             std::string& error) const {
    Stretches result;
    for (const RouteChoice& choice : to.locks) {
        Stretch stretch;
        if (!Resolve(choice, fromId, to.id, stretch)) {
            error = "the choice " + choice.newId + "=" + choice.range + " names a point that is not there";
            return std::nullopt;
        }
        // The newest choice comes first; an older one of the same group has been replaced by it.
        const bool replaced = std::any_of(result.begin(), result.end(), [&](const Stretch& newer) {
            return newer.chosen == stretch.chosen ||
                   ShareGroup(network_.data(), newer.chosen, stretch.chosen);
        });
        if (!replaced) {
            result.push_back(std::move(stretch));
        }
    }
    return result;
}

GateMask LegPlanner::ForbiddenFor(const Stretches& chosen) const {
    GateMask forbidden = closed_;
    for (const Stretch& stretch : chosen) {
        for (const AlternativeGroup& group : network_.data().routePoints[stretch.chosen].groups) {
            for (const std::uint16_t other : group) {
                forbidden[other] = true;
            }
        }
    }
    for (const Stretch& stretch : chosen) {
        if (network_.IsIce(stretch.chosen)) {
            network_.OpenIce(forbidden);
        }
        forbidden[stretch.chosen] = false;
    }
    return forbidden | never_;
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

std::vector<std::string> LegPlanner::Offers(const std::string& from, const std::string& to,
                                            std::uint16_t passed, double nm) const {
    const NetworkData& data = network_.data();
    std::vector<std::uint16_t> candidates;
    for (const AlternativeGroup& group : data.routePoints[passed].groups) {
        for (const std::uint16_t other : group) {
            if (std::find(candidates.begin(), candidates.end(), other) == candidates.end()) {
                candidates.push_back(other);
            }
        }
    }
    std::vector<std::string> ids;
    for (const std::uint16_t other : candidates) {
        const ReachEntry& before = network_.Reach(other, from);
        const ReachEntry& behind = network_.Reach(other, to);
        const bool turnsBack = before.side == behind.side && before.side != 0;
        if (!turnsBack && before.nm + behind.nm <= kFarthestOffer * nm && !never_[other]) {
            ids.push_back(data.routePoints[other].id);
        }
    }
    return ids;
}

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

std::vector<GeoPoint> LegPlanner::Way(std::uint32_t from, std::uint32_t to) const {
    GateMask forbidden = closed_;
    const auto path = OpeningBySteps(forbidden, [&] { return PathThrough({from, to}, forbidden); });
    if (!path) {
        return {};
    }
    return PathShape::Densify(shape_.Taut(*path, forbidden, {}));
}

std::optional<PlannedStop> LegPlanner::Plan(const std::string& fromId, const RouteRequestPoint& to,
                                            std::string& error) const {
    const std::optional<Stretches> chosen = StretchesOf(fromId, to, error);
    if (!chosen) {
        return std::nullopt;
    }
    const std::uint32_t fromNode = *network_.NodeOf(fromId);
    const std::uint32_t toNode = *network_.NodeOf(to.id);
    GateMask forbidden = ForbiddenFor(*chosen);
    const std::optional<NodePath> path =
        OpeningBySteps(forbidden, [&] { return BestOrder(fromNode, toNode, *chosen, forbidden); });
    if (!path) {
        error = "there is no way by sea from " + fromId + " to " + to.id;
        return std::nullopt;
    }
    std::vector<std::uint32_t> pinned;
    PlannedStop stop;
    stop.pointId = to.id;
    for (const Stretch& stretch : *chosen) {
        pinned.insert(pinned.end(), stretch.nodes.begin(), stretch.nodes.end());
        stop.locks += (stop.locks.empty() ? "" : ".") + stretch.text;
    }
    stop.legs = shape_.Split(PathShape::Densify(shape_.Taut(*path, forbidden, pinned)), fromId, to.id);
    stop.passedIds.push_back(fromId);
    for (const RouteLeg& leg : stop.legs) {
        stop.distanceKm += leg.distanceKm;
        stop.passedIds.push_back(leg.endId);
        const auto passed = network_.RoutePointIndex(leg.endId);
        if (!passed || leg.endId == to.id) {
            continue;
        }
        std::vector<std::string> alternatives = Offers(fromId, to.id, *passed, path->nm);
        if (!alternatives.empty()) {
            stop.groups.push_back({leg.endId, fromId, to.id, std::move(alternatives)});
        }
    }
    return stop;
}

}  // namespace Tarvik::Server
