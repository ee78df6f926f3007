// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "host/server/graph/Landmarks.h"
#include "host/server/graph/NetworkData.h"

namespace Tarvik::Server {

/// On which side of its own gate a direction leaves a route point: 1 or 2.
std::uint8_t SideOfGate(const RoutePoint& point, GeoPoint at, GeoPoint next);

/// The shortest ways from a route point to some nodes, over the arcs that are not blocked: miles as the
/// search counts them, and the side of the gate on which each leaves.
std::vector<ReachEntry> ReachFrom(const NetworkData& data, const ArcTable& table, const RoutePoint& point,
                                  const GateMask& forbidden, const std::vector<std::uint32_t>& targets);

}  // namespace Tarvik::Server
