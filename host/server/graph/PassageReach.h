// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "host/server/graph/Landmarks.h"
#include "host/server/graph/NetworkData.h"
#include "host/server/graph/SeaNetwork.h"

namespace Tarvik::Server {

/// Lines longer than the first keep the second off the coast, but for their beginning and end.
inline constexpr double kFreeHandNm = 14.0;
inline constexpr double kOffCoastNm = 4.0;

/// What a ship meets that sails straight from one node to another.
struct SightLine {
    bool clear;               ///< neither land nor a closed area, and the coast no nearer than it may be
    const GateMask& crossed;  ///< the gates on the way, when it is clear; until the thread asks again
};

/// Whether a ship may sail straight from a to b: neither land nor a closed area lies between, and a line that
/// is not short keeps off the coast.
bool IsSeaRoom(const LandIndex& land, GeoPoint a, GeoPoint b);

/// The line from a node to another. Ways share most of their lines: each thread keeps a quarter of a million
/// of those it was asked for last.
SightLine SightLineOf(const SeaNetwork& network, std::uint32_t a, std::uint32_t b);

/// On which side of its own gate a direction leaves a route point: 1 or 2.
std::uint8_t SideOfGate(const RoutePoint& point, GeoPoint at, GeoPoint next);

/// The shortest ways from a route point to some nodes, over the arcs that are not blocked: miles as the
/// search counts them, and the side of the gate on which each leaves.
std::vector<ReachEntry> ReachFrom(const NetworkData& data, const ArcTable& table, const RoutePoint& point,
                                  const GateMask& forbidden, const std::vector<std::uint32_t>& targets);

}  // namespace Tarvik::Server
