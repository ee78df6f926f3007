// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "host/geo/FrozenArray.h"
#include "host/server/graph/Landmarks.h"

namespace Tarvik::Server {

/// Which arc leads on from every node to each of some nodes over the ways of a table, a byte each: a way is
/// then walked and not searched.
class NextSteps {
  public:
    NextSteps() = default;
    /// Of steps that `Reckon` made of the same table and targets.
    NextSteps(const ArcTable& table, const std::vector<std::uint32_t>& targets,
              FrozenArray<std::uint8_t> steps);

    /// The steps to each of the targets, which rise; one search of the table for each.
    static std::vector<std::uint8_t> Reckon(const ArcTable& table, const std::vector<std::uint32_t>& targets);

    /// How many steps are told of a table with so many nodes that have arcs.
    static std::size_t SizeOf(std::size_t targets, std::size_t nodesWithArcs) {
        return targets * nodesWithArcs;
    }

    /// The arcs of the shortest way from one node to another; nothing where they are not told.
    std::optional<std::vector<Arc>> Walk(const ArcTable& table, std::uint32_t from, std::uint32_t to) const;

  private:
    std::size_t width_ = 0;               ///< of a row; filled in with the columns, which must follow
    std::vector<std::uint32_t> rows_;     ///< by node, for targets
    std::vector<std::uint32_t> columns_;  ///< by node, for nodes with arcs
    FrozenArray<std::uint8_t> steps_;
};

}  // namespace Tarvik::Server
