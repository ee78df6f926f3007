// SPDX-License-Identifier: MIT
#include "host/server/graph/LegPlanner.h"

#include <algorithm>
#include <numeric>

namespace Tarvik::Server {

namespace {

/// More choices on one leg than this are tried in the order given only.
constexpr std::size_t kMaxPermuted = 4;
/// Passages north of this latitude that are shut are shut for ice.
constexpr double kIceLatitude = 65.0;

bool ShareGroup(const NetworkData& data, std::uint16_t a, std::uint16_t b) {
    const auto& groups = data.routePoints[a].groups;
    return std::any_of(groups.begin(), groups.end(), [b](const AlternativeGroup& group) {
        return std::find(group.begin(), group.end(), b) != group.end();
    });
}

bool IsIce(const SeaNetwork& network, std::uint16_t point) {
    const RoutePoint& p = network.data().routePoints[point];
    return p.shut && network.data().nodes[p.node].y > kIceLatitude;
}

/// One passage in the ice is of no use without its neighbours, so that all of them open together.
void OpenIce(const SeaNetwork& network, GateMask& forbidden) {
    for (std::size_t i = 0; i < network.data().routePoints.size(); ++i) {
        if (IsIce(network, static_cast<std::uint16_t>(i))) {
            forbidden[i] = false;
        }
    }
    forbidden[kIceBit] = false;
}

void Join(NodePath& path, const NodePath& more) {
    path.nodes.insert(path.nodes.end(), more.nodes.begin() + 1, more.nodes.end());
    path.edges.insert(path.edges.end(), more.edges.begin(), more.edges.end());
    path.nm += more.nm;
}

}  // namespace

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
    GateMask forbidden = network_.ShutGates();
    for (const Stretch& stretch : chosen) {
        for (const AlternativeGroup& group : network_.data().routePoints[stretch.chosen].groups) {
            for (const std::uint16_t other : group) {
                forbidden[other] = true;
            }
        }
    }
    for (const Stretch& stretch : chosen) {
        if (IsIce(network_, stretch.chosen)) {
            OpenIce(network_, forbidden);
        }
        forbidden[stretch.chosen] = false;
    }
    return forbidden;
}

std::optional<NodePath> LegPlanner::PathThrough(const std::vector<std::uint32_t>& stations,
                                                const GateMask& forbidden) const {
    NodePath path;
    path.nodes.push_back(stations.front());
    for (std::size_t i = 1; i < stations.size(); ++i) {
        const std::optional<NodePath> more = FindPath(network_, stations[i - 1], stations[i], forbidden);
        if (!more) {
            return std::nullopt;
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

std::vector<std::string> LegPlanner::Offers(std::uint32_t from, std::uint32_t to,
                                            std::uint16_t passed) const {
    const NetworkData& data = network_.data();
    const Basins& basins = network_.Waters();
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
        const std::uint32_t node = data.routePoints[other].node;
        const std::vector<char> reached = basins.Reached(node, ForbiddenFor({{other, {node}, {}}}));
        if (reached[basins.BasinOf(from)] != 0 && reached[basins.BasinOf(to)] != 0) {
            ids.push_back(data.routePoints[other].id);
        }
    }
    return ids;
}

std::vector<GeoPoint> LegPlanner::Way(std::uint32_t from, std::uint32_t to) const {
    GateMask forbidden = network_.ShutGates();
    std::optional<NodePath> path = FindPath(network_, from, to, forbidden);
    if (!path) {
        forbidden.reset();
        path = FindPath(network_, from, to, forbidden);
    }
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
    std::optional<NodePath> path = BestOrder(fromNode, toNode, *chosen, forbidden);
    if (!path) {
        forbidden.reset();
        path = BestOrder(fromNode, toNode, *chosen, forbidden);
    }
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
        std::vector<std::string> alternatives = Offers(fromNode, toNode, *passed);
        if (!alternatives.empty()) {
            stop.groups.push_back({leg.endId, fromId, to.id, std::move(alternatives)});
        }
    }
    return stop;
}

}  // namespace Tarvik::Server
