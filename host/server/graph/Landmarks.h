// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "host/geo/FrozenArray.h"

namespace Tarvik::Server {

/// A way out of a node.
struct Arc {
    std::uint32_t to = 0;
    std::uint32_t edge = 0;
    float nm = 0.0F;
    std::uint16_t mask = 0;  ///< the edge's
};

/// The arcs of every node, packed.
struct ArcTable {
    std::vector<std::uint32_t> start;  ///< one more than there are nodes
    std::vector<Arc> arcs;

    std::span<const Arc> Of(std::uint32_t node) const {
        return {arcs.data() + start[node], start[node + 1] - start[node]};
    }
};

/// Lower bounds for the search: the distance of every node to a few nodes far apart, over the edges of the
/// table.
///
/// By the triangle inequality |d(L,a) - d(L,b)| never exceeds the way from a to b; forbidding edges only
/// lengthens ways, so the bounds hold for every search that uses no edge from outside the table.
class Landmarks {
  public:
    Landmarks() = default;
    Landmarks(const ArcTable& table, std::size_t count);
    /// Of distances reckoned before, as many for each of the nodes.
    Landmarks(FrozenArray<float> distances, std::size_t nodes);

    /// A lower bound of the way from a to b in nautical miles; 0 when nothing better is known, infinite when
    /// a landmark reaches only one of them.
    float Bound(std::uint32_t a, std::uint32_t b) const;

    /// Node after node, to every landmark.
    const FrozenArray<float>& Distances() const { return distances_; }

  private:
    std::size_t count_ = 0;
    FrozenArray<float> distances_;
};

/// No edge leads there.
inline constexpr std::uint32_t kNoEdge = 0xFFFFFFFF;

/// Distances in nautical miles from one node to all; infinite where there is no way. `by`, where given, gets
/// the last edge of each node's way; the edges make a tree.
std::vector<float> DistancesFrom(const ArcTable& table, std::uint32_t node,
                                 std::vector<std::uint32_t>* by = nullptr);

}  // namespace Tarvik::Server
