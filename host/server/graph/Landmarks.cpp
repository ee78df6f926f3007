// SPDX-License-Identifier: MIT
#include "host/server/graph/Landmarks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <queue>
#include <utility>

namespace Tarvik::Server {

std::vector<float> DistancesFrom(const ArcTable& table, std::uint32_t node) {
    std::vector<float> best(table.start.size() - 1, std::numeric_limits<float>::infinity());
    using Item = std::pair<float, std::uint32_t>;
    std::priority_queue<Item, std::vector<Item>, std::greater<>> open;
    best[node] = 0.0F;
    open.emplace(0.0F, node);
    while (!open.empty()) {
        const auto [nm, at] = open.top();
        open.pop();
        if (nm > best[at]) {
            continue;
        }
        for (std::uint32_t k = table.start[at]; k < table.start[at + 1]; ++k) {
            const Arc& arc = table.arcs[k];
            if (nm + arc.nm >= best[arc.to]) {
                continue;
            }
            best[arc.to] = nm + arc.nm;
            open.emplace(best[arc.to], arc.to);
        }
    }
    return best;
}

Landmarks::Landmarks(const ArcTable& table, std::size_t count) {
    const std::size_t nodes = table.start.size() - 1;
    if (nodes == 0) {
        return;
    }
    std::vector<float> nearest(nodes, std::numeric_limits<float>::infinity());
    std::vector<std::vector<float>> columns;
    // The first landmark is the node farthest from node 0, each next one the farthest from all before it.
    std::vector<float> reach = DistancesFrom(table, 0);
    for (std::size_t k = 0; k < count; ++k) {
        std::uint32_t next = 0;
        float farthest = -1.0F;
        for (std::uint32_t i = 0; i < nodes; ++i) {
            const float d = k == 0 ? reach[i] : nearest[i];
            if (std::isfinite(d) && d > farthest) {
                farthest = d;
                next = i;
            }
        }
        columns.push_back(DistancesFrom(table, next));
        for (std::size_t i = 0; i < nodes; ++i) {
            nearest[i] = std::min(nearest[i], columns.back()[i]);
        }
    }
    count_ = count;
    distances_.resize(nodes * count);
    for (std::size_t k = 0; k < count; ++k) {
        for (std::size_t i = 0; i < nodes; ++i) {
            distances_[i * count + k] = columns[k][i];
        }
    }
}

float Landmarks::Bound(std::uint32_t a, std::uint32_t b) const {
    // Four at a time, which the machine does in one step.
    constexpr std::size_t kLanes = 4;
    std::array<float, kLanes> best{};
    const float* fromA = distances_.data() + a * count_;
    const float* fromB = distances_.data() + b * count_;
    std::size_t k = 0;
    const auto take = [](float& most, float x, float y) {
        const float difference = std::abs(x - y);
        most = difference > most ? difference : most;  // false for infinity minus infinity
    };
    for (; k + kLanes <= count_; k += kLanes) {
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            take(best[lane], fromA[k + lane], fromB[k + lane]);
        }
    }
    for (; k < count_; ++k) {
        take(best[0], fromA[k], fromB[k]);
    }
    return *std::max_element(best.begin(), best.end());
}

}  // namespace Tarvik::Server
