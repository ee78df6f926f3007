// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/geo/GeoPoint.h"
#include "host/geo/LandTables.h"

namespace Tarvik::Server {

/// The most route points a network can hold; each owns one bit of a gate mask.
inline constexpr std::size_t kMaxRoutePoints = 192;

/// Which gates a way crosses: bit i belongs to route point i of the network.
using GateMask = std::bitset<kMaxRoutePoints>;

/// How an edge came about, which says what it may cross.
enum class EdgeKind : std::uint8_t {
    Sea = 0,    ///< open water, never crosses land
    Chain = 1,  ///< hand-made way through a canal, a strait or a river; may run over land of the map
    Link = 2,   ///< joins a port to the nearest water or chain; may run over land of the map
};

/// A way between two nodes, usable in both directions.
struct NetworkEdge {
    std::uint32_t a = 0;
    std::uint32_t b = 0;
    float nm = 0.0F;         ///< length in nautical miles
    std::uint16_t mask = 0;  ///< index into NetworkData::masks
    EdgeKind kind = EdgeKind::Sea;
};

/// A group of passages that can stand for one another, as indices of route points.
using AlternativeGroup = std::vector<std::uint16_t>;

/// A named passage, cape or canal.
struct RoutePoint {
    std::string id;
    std::string name;
    std::uint32_t node = 0;                ///< its node in the network
    bool shut = false;                     ///< used only when asked for
    std::vector<GeoPoint> gate;            ///< line across the passage; longitudes may run past ±180
    std::vector<AlternativeGroup> groups;  ///< what may be used in its place, one list per group
    float cost = 0.0F;                     ///< miles that the search adds here and the distance does not
};

/// A port and its node.
struct NetworkPort {
    std::string id;
    std::string unlocode;
    std::string name;
    std::uint32_t node = 0;
};

/// How a route point leads to a port or another route point while the passages beside it are forbidden.
struct ReachEntry {
    float nm = 0.0F;        ///< infinite where there is no way
    std::uint8_t side = 0;  ///< side of the gate on which the way leaves: 1 or 2, 0 for the point itself
};

/// What is reckoned from the rest of a network when it is built, so that loading it need not.
struct NetworkTables {
    LandTables land;
    FrozenArray<float> landmarks;     ///< miles from every node to each landmark, node after node
    FrozenArray<std::uint8_t> usual;  ///< per edge 1 when ships between named places take it
    FrozenArray<std::uint8_t> steps;  ///< from every node of these edges to each named node (`NextSteps`)
};

/// Everything the network file holds. Positions have 5 decimals.
struct NetworkData {
    std::vector<GeoPoint> nodes;
    std::vector<NetworkEdge> edges;
    std::vector<GateMask> masks;
    std::vector<RoutePoint> routePoints;
    std::vector<NetworkPort> ports;
    std::vector<std::vector<GeoPoint>> land;     ///< rings, closed implicitly
    std::vector<std::vector<ReachEntry>> reach;  ///< for every route point: to all ports, then route points
    std::vector<std::vector<GeoPoint>> areas;    ///< waters closed to ways in open sea, rings as the land's
    std::optional<NetworkTables> tables;         ///< nothing in a network just put together
};

}  // namespace Tarvik::Server
