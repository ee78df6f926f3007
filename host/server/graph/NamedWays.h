// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "host/server/graph/Landmarks.h"

namespace Tarvik::Server {

/// For each of the first `edges` edges 1 when it lies on a shortest way over the table's arcs between two of
/// the named nodes, else 0. Of ways of the same length all count.
std::vector<std::uint8_t> EdgesOfWays(const ArcTable& table, const std::vector<std::uint32_t>& named,
                                      std::size_t edges);

/// The arcs of a table whose edge is marked.
ArcTable MarkedArcs(const ArcTable& table, std::span<const std::uint8_t> marks);

}  // namespace Tarvik::Server
