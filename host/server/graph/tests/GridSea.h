// SPDX-License-Identifier: MIT
#pragma once

#include "host/geo/Sphere.h"
#include "host/server/graph/NetworkData.h"

namespace Tarvik::Server {

/// A grid of 20 by 20 places a degree apart with some squares missing, the same every time.
inline NetworkData GridSea() {
    constexpr std::uint32_t kSide = 20;
    NetworkData data;
    data.masks.resize(2);
    data.masks[1][0] = true;
    data.routePoints = {{"1", "Middle", 0, false, {{9.5, -1}, {9.5, 30}}, {}}};
    for (std::uint32_t row = 0; row < kSide; ++row) {
        for (std::uint32_t column = 0; column < kSide; ++column) {
            data.nodes.push_back({static_cast<double>(column), static_cast<double>(row)});
        }
    }
    std::uint32_t seed = 7;
    const auto chance = [&seed] { return (seed = seed * 1664525U + 1013904223U) >> 16; };
    const auto join = [&](std::uint32_t a, std::uint32_t b) {
        if (chance() % 4 == 0) {
            return;
        }
        const std::uint16_t mask = data.nodes[a].x == 9 && data.nodes[b].x == 10 ? 1 : 0;
        data.edges.push_back(
            {a, b, static_cast<float>(ArcNm(data.nodes[a], data.nodes[b])), mask, EdgeKind::Sea});
    };
    for (std::uint32_t i = 0; i < kSide * kSide; ++i) {
        if (i % kSide + 1 < kSide) {
            join(i, i + 1);
        }
        if (i + kSide < kSide * kSide) {
            join(i, i + kSide);
        }
    }
    return data;
}

}  // namespace Tarvik::Server
