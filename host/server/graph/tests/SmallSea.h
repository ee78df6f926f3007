// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "host/server/graph/SeaNetwork.h"

namespace Tarvik::Server {

/// A sea with one square island between two ports, 40001 in the west and 40002 in the east. The way north
/// past it (route point 1) is shorter than the way south (2); a canal through it (3) is shortest, but shut.
/// Ports 40003 and 40004 lie on both sides of the date line, 40005 lies in a pond of its own; no way joins
/// these three groups.
inline NetworkData SmallSea() {
    const GeoPoint places[] = {{-10, 0}, {0, 12},   {0, -14},   {10, 0},
                               {0, 0},   {175, 10}, {-175, 10}, {100, 10}};
    NetworkData data;
    data.nodes.assign(std::begin(places), std::end(places));
    data.land = {{{-3, -5}, {3, -5}, {3, 5}, {-3, 5}}};
    data.routePoints = {
        {"1", "North Cape", 1, false, {{0, 5}, {0, 40}}, {{1, 2}}},
        {"2", "South Cape", 2, false, {{0, -5}, {0, -40}}, {{0, 2}}},
        {"3", "Canal", 4, true, {{0, -5}, {0, 5}}, {{0, 1}}},
    };
    data.ports = {{"40001", "AAAAA", "West", 0},
                  {"40002", "BBBBB", "East", 3},
                  {"40003", "CCCCC", "Far East", 5},
                  {"40004", "DDDDD", "Far West", 6},
                  {"40005", "EEEEE", "Pond", 7}};
    const auto join = [&data](std::uint32_t a, std::uint32_t b, EdgeKind kind) {
        const auto nm = static_cast<float>(ArcNm(data.nodes[a], data.nodes[b]));
        const GateMask mask = GatesCrossed(GreatCircle(data.nodes[a], data.nodes[b]), data.routePoints);
        data.masks.push_back(mask);
        data.edges.push_back({a, b, nm, static_cast<std::uint16_t>(data.masks.size() - 1), kind});
    };
    for (const std::uint32_t cape : {1U, 2U}) {
        join(0, cape, EdgeKind::Sea);
        join(cape, 3, EdgeKind::Sea);
    }
    join(0, 4, EdgeKind::Chain);
    join(4, 3, EdgeKind::Chain);
    join(5, 6, EdgeKind::Sea);
    return data;
}

inline std::shared_ptr<const SeaNetwork> SmallNetwork() {
    return std::make_shared<const SeaNetwork>(SmallSea());
}

}  // namespace Tarvik::Server
