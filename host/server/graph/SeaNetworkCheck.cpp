// SPDX-License-Identifier: MIT
// Whether the parts of a network that was read fit together, so that nothing behind it has to ask again.
#include <cmath>

#include <tarvik/util/Geodesy.h>

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
    return FaultOf(d.tables->land);
}

}  // namespace

std::string FaultOf(const NetworkData& data) {
    for (const std::string& fault :
         {CheckEdges(data), CheckPoints(data), CheckReach(data), CheckTables(data)}) {
        if (!fault.empty()) {
            return fault;
        }
    }
    return {};
}

}  // namespace Tarvik::Server
