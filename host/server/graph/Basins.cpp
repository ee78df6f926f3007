// SPDX-License-Identifier: MIT
#include "host/server/graph/Basins.h"

#include <algorithm>
#include <numeric>
#include <tuple>
#include <vector>

namespace Tarvik::Server {

namespace {

/// The representative of a node's set; halves the way to it in passing.
std::uint32_t RootOf(std::vector<std::uint32_t>& parents, std::uint32_t node) {
    while (parents[node] != node) {
        node = parents[node] = parents[parents[node]];
    }
    return node;
}

}  // namespace

Basins::Basins(const NetworkData& data) : masks_(data.masks) {
    std::vector<std::uint32_t> parents(data.nodes.size());
    std::iota(parents.begin(), parents.end(), 0U);
    std::vector<char> open(masks_.size());
    std::transform(masks_.begin(), masks_.end(), open.begin(),
                   [](const GateMask& mask) { return mask.none(); });
    for (const NetworkEdge& e : data.edges) {
        if (open[e.mask] != 0) {
            parents[RootOf(parents, e.a)] = RootOf(parents, e.b);
        }
    }
    constexpr std::uint32_t kUnset = 0xFFFFFFFF;
    std::vector<std::uint32_t> numbers(parents.size(), kUnset);
    std::uint32_t count = 0;
    basin_.reserve(parents.size());
    for (std::uint32_t i = 0; i < parents.size(); ++i) {
        std::uint32_t& number = numbers[RootOf(parents, i)];
        number = number == kUnset ? count++ : number;
        basin_.push_back(number);
    }
    std::vector<std::tuple<std::uint32_t, std::uint32_t, std::uint16_t>> passages;
    for (const NetworkEdge& e : data.edges) {
        if (basin_[e.a] == basin_[e.b]) {
            continue;
        }
        passages.emplace_back(basin_[e.a], basin_[e.b], e.mask);
        passages.emplace_back(basin_[e.b], basin_[e.a], e.mask);
    }
    std::sort(passages.begin(), passages.end());
    passages.erase(std::unique(passages.begin(), passages.end()), passages.end());
    passages_.reserve(passages.size());
    start_.assign(count + 1, 0);
    for (const auto& [from, to, mask] : passages) {
        ++start_[from + 1];
        passages_.push_back({to, mask});
    }
    for (std::size_t i = 1; i < start_.size(); ++i) {
        start_[i] += start_[i - 1];
    }
}

std::vector<char> Basins::Reached(std::uint32_t node, const GateMask& forbidden) const {
    std::vector<char> blocked(masks_.size());
    for (std::size_t i = 0; i < blocked.size(); ++i) {
        blocked[i] = (masks_[i] & forbidden).any() ? 1 : 0;
    }
    std::vector<char> seen(Count(), 0);
    std::vector<std::uint32_t> open{basin_[node]};
    seen[basin_[node]] = 1;
    while (!open.empty()) {
        const std::uint32_t at = open.back();
        open.pop_back();
        for (std::uint32_t k = start_[at]; k < start_[at + 1]; ++k) {
            const Passage& passage = passages_[k];
            if (seen[passage.to] != 0 || blocked[passage.mask] != 0) {
                continue;
            }
            seen[passage.to] = 1;
            open.push_back(passage.to);
        }
    }
    return seen;
}

bool Basins::Joined(std::uint32_t a, std::uint32_t b, const GateMask& forbidden) const {
    return basin_[a] == basin_[b] || Reached(a, forbidden)[basin_[b]] != 0;
}

}  // namespace Tarvik::Server
