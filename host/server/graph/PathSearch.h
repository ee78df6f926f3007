// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "host/server/graph/SeaNetwork.h"

namespace Tarvik::Server {

/// A way through the network: one more node than edges; `nm` is its length in nautical miles.
struct NodePath {
    std::vector<std::uint32_t> nodes;
    std::vector<std::uint32_t> edges;
    double nm = 0.0;
};

/// The shortest way from one node to another that uses no edge over a forbidden gate; nothing when there is
/// none. It is walked where the network tells it, else found by A* with the larger of the great-circle and
/// the landmark bound, between named places over the usual ways alone (`SeaNetwork::ArcsBetween`).
std::optional<NodePath> FindPath(const SeaNetwork& network, std::uint32_t from, std::uint32_t to,
                                 const GateMask& forbidden);

}  // namespace Tarvik::Server
