// SPDX-License-Identifier: MIT
// Whether the parts of a network that was read fit together, so that nothing behind it has to ask again.
#include <algorithm>
#include <cmath>

#include <tarvik/util/Geodesy.h>

#include "host/server/graph/NextSteps.h"
#include "host/server/graph/SeaNetworkFile.h"

namespace Tarvik::Server {

namespace {

std::string CheckEdges(const NetworkData& d) {
    for (const NetworkEdge& e : d.edges) {
        if (e.a >= d.nodes.size() || e.b >= d.nodes.size()) {
            return "an edge names a node that does not exist";
        }
        if (e.mask >= d.masks.size()) {
            return "an edge names a gate mask that does not exist";
        }
        if (!std::isfinite(e.nm) || e.nm < 0.0F) {
            return "an edge has an impossible length";
        }
        if (e.kind > EdgeKind::Link) {
            return "an edge has an unknown kind";
        }
    }
    return {};
}

std::string CheckPoints(const NetworkData& d) {
    for (const GeoPoint p : d.nodes) {
        if (!Util::IsOnEarth(p.x, p.y)) {
            return "a node lies outside the earth";
        }
    }
    if (d.routePoints.size() > kMaxRoutePoints) {
        return "there are too many route points";
    }
    for (const RoutePoint& p : d.routePoints) {
        if (p.node >= d.nodes.size()) {
            return "a route point has no node";
        }
        if (p.gate.size() < 2) {
            return "a route point has no gate";
        }
        if (!std::isfinite(p.cost) || p.cost < 0.0F) {
            return "a route point has an impossible cost";
        }
        for (const AlternativeGroup& group : p.groups) {
            for (const std::uint16_t i : group) {
                if (i >= d.routePoints.size()) {
                    return "an alternative does not exist";
                }
            }
        }
    }
    for (const NetworkPort& p : d.ports) {
        if (p.node >= d.nodes.size()) {
            return "a port has no node";
        }
    }
    return {};
}

/// A network without any tells it when it is loaded.
std::string CheckReach(const NetworkData& d) {
    if (d.reach.empty()) {
        return {};
    }
    if (d.reach.size() != d.routePoints.size()) {
        return "it does not tell what every route point reaches";
    }
    for (const auto& row : d.reach) {
        if (row.size() != d.ports.size() + d.routePoints.size()) {
            return "it does not tell the reach to every port";
        }
    }
    return {};
}

/// How many steps lead over the usual edges to the named nodes.
std::size_t StepsOf(const NetworkData& d) {
    std::vector<char> touched(d.nodes.size(), 0);
    for (std::size_t i = 0; i < d.edges.size(); ++i) {
        if (d.tables->usual[i] != 0) {
            touched[d.edges[i].a] = 1;
            touched[d.edges[i].b] = 1;
        }
    }
    std::vector<char> named(d.nodes.size(), 0);
    for (const NetworkPort& p : d.ports) {
        named[p.node] = 1;
    }
    for (const RoutePoint& p : d.routePoints) {
        named[p.node] = 1;
    }
    const auto count = [](const std::vector<char>& marks) {
        return static_cast<std::size_t>(std::count(marks.begin(), marks.end(), 1));
    };
    return NextSteps::SizeOf(count(named), count(touched));
}

std::string CheckTables(const NetworkData& d) {
    if (!d.tables) {
        return {};
    }
    const std::size_t marks = d.tables->landmarks.Size();
    if (d.nodes.empty() ? marks != 0 : marks == 0 || marks % d.nodes.size() != 0) {
        return "it does not tell every node's way to the landmarks";
    }
    if (d.tables->usual.Size() != d.edges.size()) {
        return "it does not tell which edges are usual";
    }
    if (d.tables->steps.Size() != StepsOf(d)) {
        return "it does not tell the steps to every port";
    }
    return FaultOf(d.tables->land);
}

}  // namespace

std::string FaultOf(const NetworkData& data) {
    // Each leans on what those before it found in order.
    for (const auto check : {CheckEdges, CheckPoints, CheckReach, CheckTables}) {
        std::string fault = check(data);
        if (!fault.empty()) {
            return fault;
        }
    }
    return {};
}

}  // namespace Tarvik::Server
