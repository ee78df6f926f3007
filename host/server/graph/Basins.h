// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "host/server/graph/NetworkData.h"

namespace Tarvik::Server {

/// The waters between the gates: nodes that reach each other without crossing any gate share a basin.
///
/// There are few basins, so whether two places are joined at all under some choice of gates is told in
/// microseconds, where the search would have to walk through the whole network to find that they are not.
class Basins {
  public:
    Basins() = default;
    explicit Basins(const NetworkData& data);

    std::uint32_t BasinOf(std::uint32_t node) const { return basin_[node]; }
    std::size_t Count() const { return start_.empty() ? 0 : start_.size() - 1; }

    /// For every basin 1 when it can be reached from a node without crossing a forbidden gate, else 0.
    std::vector<char> Reached(std::uint32_t node, const GateMask& forbidden) const;

    /// True when some way joins the two nodes.
    bool Joined(std::uint32_t a, std::uint32_t b, const GateMask& forbidden) const;

  private:
    struct Passage {
        std::uint32_t to = 0;
        std::uint16_t mask = 0;
    };
    std::vector<std::uint32_t> basin_;
    std::vector<std::uint32_t> start_;  // one more than there are basins
    std::vector<Passage> passages_;
    std::vector<GateMask> masks_;
};

}  // namespace Tarvik::Server
