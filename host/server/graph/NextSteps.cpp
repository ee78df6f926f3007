// SPDX-License-Identifier: MIT
// Trees of shortest ways, one for each target, kept as the number of the arc that leads on among the arcs of
// its node. Only nodes that have arcs take a byte. Cost: one search of the table for each target when they
// are made, and a byte read for each node of a way.
#include "host/server/graph/NextSteps.h"

#include <utility>

namespace Tarvik::Server {

namespace {

/// No way, or a node with more arcs than a byte counts.
constexpr std::uint8_t kNotTold = 255;
constexpr std::uint32_t kNone = kNoEdge;

/// The nodes with arcs, counted; `width` tells how many there are.
std::vector<std::uint32_t> ColumnsOf(const ArcTable& table, std::size_t& width) {
    std::vector<std::uint32_t> columns(table.start.size() - 1, kNone);
    width = 0;
    for (std::uint32_t node = 0; node < columns.size(); ++node) {
        if (!table.Of(node).empty()) {
            columns[node] = static_cast<std::uint32_t>(width++);
        }
    }
    return columns;
}

std::uint8_t NumberOf(const ArcTable& table, std::uint32_t node, std::uint32_t edge) {
    const auto arcs = table.Of(node);
    for (std::size_t i = 0; i < arcs.size() && i < kNotTold; ++i) {
        if (arcs[i].edge == edge) {
            return static_cast<std::uint8_t>(i);
        }
    }
    return kNotTold;
}

}  // namespace

NextSteps::NextSteps(const ArcTable& table, const std::vector<std::uint32_t>& targets,
                     FrozenArray<std::uint8_t> steps)
    : rows_(table.start.size() - 1, kNone), columns_(ColumnsOf(table, width_)), steps_(std::move(steps)) {
    for (std::size_t i = 0; i < targets.size(); ++i) {
        rows_[targets[i]] = static_cast<std::uint32_t>(i);
    }
}

std::vector<std::uint8_t> NextSteps::Reckon(const ArcTable& table,
                                            const std::vector<std::uint32_t>& targets) {
    std::size_t width = 0;
    const std::vector<std::uint32_t> columns = ColumnsOf(table, width);
    std::vector<std::uint8_t> steps(SizeOf(targets.size(), width), kNotTold);
    for (std::size_t row = 0; row < targets.size(); ++row) {
        std::vector<std::uint32_t> by;
        DistancesFrom(table, targets[row], &by);
        for (std::uint32_t node = 0; node < columns.size(); ++node) {
            if (columns[node] != kNone && by[node] != kNoEdge) {
                steps[row * width + columns[node]] = NumberOf(table, node, by[node]);
            }
        }
    }
    return steps;
}

std::optional<std::vector<Arc>> NextSteps::Walk(const ArcTable& table, std::uint32_t from,
                                                std::uint32_t to) const {
    if (steps_.Empty() || rows_[to] == kNone) {
        return std::nullopt;
    }
    const std::uint8_t* row = steps_.View().data() + rows_[to] * width_;
    constexpr std::size_t kUsualLength = 128;
    std::vector<Arc> way;
    way.reserve(kUsualLength);
    std::uint32_t at = from;
    // A way passes no node twice: more steps are those of a file that contradicts itself.
    while (at != to && way.size() < width_) {
        const auto arcs = table.Of(at);
        const std::uint8_t step = columns_[at] == kNone ? kNotTold : row[columns_[at]];
        if (step >= arcs.size()) {
            return std::nullopt;
        }
        way.push_back(arcs[step]);
        at = arcs[step].to;
    }
    return at == to ? std::optional(std::move(way)) : std::nullopt;
}

}  // namespace Tarvik::Server
