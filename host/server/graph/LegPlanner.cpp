// SPDX-License-Identifier: MIT
// The way between two stops under choices of passages, and which other passages it could take. A choice is a
// node that the way has to pass, so that the way falls into searches between fixed nodes (PathSearch), with
// the gates of the other passages shut as a mask of bits. An alternative is offered where the ways from it to
// both ends, which are reckoned ahead for ports and searched for other places, do not leave it to the same
// side and make the way at most twice as long. Own method. Cost: one search between each two fixed nodes, and
// for each passage of the groups on the way a reading of the table, or a search for an end that is no port.
#include "host/server/graph/LegPlanner.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "host/server/graph/PassageReach.h"

namespace Tarvik::Server {

namespace {

/// A passage that makes the way this many times as long is no alternative.
constexpr double kFarthestOffer = 2.0;

bool ShareGroup(const NetworkData& data, std::uint16_t a, std::uint16_t b) {
    const auto& groups = data.routePoints[a].groups;
    return std::any_of(groups.begin(), groups.end(), [b](const AlternativeGroup& group) {
        return std::find(group.begin(), group.end(), b) != group.end();
    });
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
        // A way may touch its point and turn back there without going through: it must not come to that.
        if (never_[stretch.chosen]) {
            error = "the passage " + network_.data().routePoints[stretch.chosen].name + " is forbidden";
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

std::vector<std::string> LegPlanner::Offers(const RouteEnd& from, const RouteEnd& to, std::uint16_t passed,
                                            double nm) const {
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
        const ReachEntry before = ReachOf(other, from);
        const ReachEntry behind = ReachOf(other, to);
        const bool turnsBack = before.side == behind.side && before.side != 0;
        if (!turnsBack && before.nm + behind.nm <= kFarthestOffer * nm && !never_[other]) {
            ids.push_back(data.routePoints[other].id);
        }
    }
    return ids;
}

ReachEntry LegPlanner::ReachOf(std::uint16_t passage, const RouteEnd& end) const {
    if (!end.beside) {
        return network_.Reach(passage, end.id);
    }
    const RoutePoint& point = network_.data().routePoints[passage];
    const std::uint32_t node = end.nodes.front();
    const auto path = FindPath(network_, point.node, node, network_.ForbiddenBy(passage));
    if (!path) {
        return {std::numeric_limits<float>::infinity(), 0};
    }
    const auto nm = static_cast<float>(path->nm + NmAside(end, node));
    const auto& nodes = network_.data().nodes;
    const bool leaves = path->nodes.size() > 1;
    return {nm, leaves ? SideOfGate(point, nodes[path->nodes[0]], nodes[path->nodes[1]]) : std::uint8_t{0}};
}

std::optional<PlannedStop> LegPlanner::Plan(const std::string& fromId, const RouteRequestPoint& to,
                                            std::string& error) const {
    return Plan({fromId, {*network_.NodeOf(fromId)}, std::nullopt},
                {to.id, {*network_.NodeOf(to.id)}, std::nullopt}, to, error);
}

std::optional<PlannedStop> LegPlanner::Plan(const RouteEnd& from, const RouteEnd& to,
                                            const RouteRequestPoint& request, std::string& error) const {
    const std::optional<Stretches> chosen = StretchesOf(from.id, request, error);
    if (!chosen) {
        return std::nullopt;
    }
    const std::optional<Drawn> way = Corners(from, to, *chosen);
    if (!way) {
        error = "there is no way by sea from " + from.id + " to " + to.id;
        return std::nullopt;
    }
    PlannedStop stop;
    stop.pointId = to.id;
    for (const Stretch& stretch : *chosen) {
        stop.locks += (stop.locks.empty() ? "" : ".") + stretch.text;
    }
    stop.legs = shape_.Split(PathShape::Densify(way->corners), from.id, to.id);
    stop.passedIds.push_back(from.id);
    for (const RouteLeg& leg : stop.legs) {
        stop.distanceKm += leg.distanceKm;
        stop.passedIds.push_back(leg.endId);
        const auto passed = network_.RoutePointIndex(leg.endId);
        if (!passed || leg.endId == to.id) {
            continue;
        }
        std::vector<std::string> alternatives = Offers(from, to, *passed, way->nm);
        if (!alternatives.empty()) {
            stop.groups.push_back({leg.endId, from.id, to.id, std::move(alternatives)});
        }
    }
    return stop;
}

}  // namespace Tarvik::Server
