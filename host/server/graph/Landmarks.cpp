// SPDX-License-Identifier: MIT
// Lower bounds of ways by the triangle inequality: a way from a to b is no shorter than the difference of
// their distances from a landmark (Goldberg and Harrelson 2005). The landmarks are taken farthest first, each
// as far as can be from those before it. Their distances come from Dijkstra's search with slices of the
// distance in place of a heap (buckets as of Dial 1969, wider than one step as in the delta stepping of Meyer
// and Sanders 2003): what a slice holds is taken in any order, and again when it got nearer, which costs less
// than keeping all of it in order. Cost: one search of the whole network and 4 bytes a node for each
// landmark; a bound reads two rows of them.
#include "host/server/graph/Landmarks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace Tarvik::Server {

std::vector<float> DistancesFrom(const ArcTable& table, std::uint32_t node, std::vector<std::uint32_t>* by) {
    constexpr float kSliceNm = 16.0F;
    constexpr float kNotReached = std::numeric_limits<float>::infinity();
    const auto sliceOf = [](float nm) { return static_cast<std::size_t>(nm / kSliceNm); };
    std::vector<float> best(table.start.size() - 1, kNotReached);
    std::vector<float> passedOn(best.size(), kNotReached);
    std::vector<std::vector<std::uint32_t>> slices(1, {node});
    best[node] = 0.0F;
    if (by != nullptr) {
        by->assign(best.size(), kNoEdge);
    }
    for (std::size_t slice = 0; slice < slices.size(); ++slice) {
        for (std::size_t i = 0; i < slices[slice].size(); ++i) {
            const std::uint32_t at = slices[slice][i];
            const float nm = best[at];
            if (passedOn[at] <= nm) {
                continue;
            }
            passedOn[at] = nm;
            for (std::uint32_t k = table.start[at]; k < table.start[at + 1]; ++k) {
                const Arc& arc = table.arcs[k];
                if (nm + arc.nm >= best[arc.to]) {
                    continue;
                }
                best[arc.to] = nm + arc.nm;
                if (by != nullptr) {
                    (*by)[arc.to] = arc.edge;
                }
                const std::size_t there = sliceOf(best[arc.to]);
                slices.resize(std::max(slices.size(), there + 1));
                slices[there].push_back(arc.to);
            }
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
    std::vector<float> distances(nodes * count);
    for (std::size_t k = 0; k < count; ++k) {
        for (std::size_t i = 0; i < nodes; ++i) {
            distances[i * count + k] = columns[k][i];
        }
    }
    distances_ = FrozenArray(std::move(distances));
}

Landmarks::Landmarks(FrozenArray<float> distances, std::size_t nodes)
    : count_(nodes == 0 ? 0 : distances.Size() / nodes), distances_(std::move(distances)) {}

float Landmarks::Bound(std::uint32_t a, std::uint32_t b) const {
    // Four at a time, which the machine does in one step.
    constexpr std::size_t kLanes = 4;
    std::array<float, kLanes> best{};
    const float* fromA = distances_.View().data() + a * count_;
    const float* fromB = distances_.View().data() + b * count_;
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
