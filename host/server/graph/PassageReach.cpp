// SPDX-License-Identifier: MIT
// What a passage is good for: Dijkstra's search from each route point while the passages beside it are
// forbidden. A passage whose ways to both ends leave on one side of its gate would only be touched.
#include "host/server/graph/PassageReach.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <queue>
#include <utility>

#include "host/geo/Sphere.h"

namespace Tarvik::Server {

namespace {

constexpr double kHalfTurn = 180.0 * kDegree;
constexpr float kFar = std::numeric_limits<float>::infinity();

/// The angle of the direction to a place, counted from east through north.
double AngleTo(GeoPoint from, GeoPoint to) {
    const double east = std::remainder(to.x - from.x, 360.0) * std::cos(from.y * kDegree);
    return std::atan2(to.y - from.y, east);
}

/// The angles of the gate's two arms at a place on it.
std::pair<double, double> ArmsOf(const std::vector<GeoPoint>& gate, GeoPoint at) {
    const auto vertex = std::find_if(gate.begin(), gate.end(), [at](GeoPoint p) {
        return p.y == at.y && std::remainder(p.x - at.x, 360.0) == 0.0;
    });
    if (vertex == gate.begin()) {
        const double arm = AngleTo(at, gate[1]);
        return {arm + kHalfTurn, arm};
    }
    if (vertex == gate.end() || vertex + 1 == gate.end()) {
        const double arm = AngleTo(at, vertex == gate.end() ? gate.front() : *(vertex - 1));
        return {arm, arm + kHalfTurn};
    }
    return {AngleTo(at, *(vertex - 1)), AngleTo(at, *(vertex + 1))};
}

}  // namespace

std::uint8_t SideOfGate(const RoutePoint& point, GeoPoint at, GeoPoint next) {
    const auto turned = [](double angle) {
        const double rest = std::fmod(angle, 2.0 * kHalfTurn);
        return rest < 0.0 ? rest + 2.0 * kHalfTurn : rest;
    };
    const auto [first, second] = ArmsOf(point.gate, at);
    return turned(AngleTo(at, next) - first) < turned(second - first) ? 1 : 2;
}

std::vector<ReachEntry> ReachFrom(const NetworkData& data, const ArcTable& table, const RoutePoint& point,
                                  const GateMask& forbidden, const std::vector<std::uint32_t>& targets) {
    std::vector<char> blocked(data.masks.size());
    for (std::size_t i = 0; i < blocked.size(); ++i) {
        blocked[i] = (data.masks[i] & forbidden).any() ? 1 : 0;
    }
    std::vector<ReachEntry> best(data.nodes.size(), {kFar, 0});
    using Item = std::pair<float, std::uint32_t>;
    std::priority_queue<Item, std::vector<Item>, std::greater<>> open;
    best[point.node] = {0.0F, 0};
    open.emplace(0.0F, point.node);
    while (!open.empty()) {
        const auto [nm, at] = open.top();
        open.pop();
        if (nm > best[at].nm) {
            continue;
        }
        for (std::uint32_t k = table.start[at]; k < table.start[at + 1]; ++k) {
            const Arc& arc = table.arcs[k];
            if (nm + arc.nm >= best[arc.to].nm || blocked[arc.mask] != 0) {
                continue;
            }
            const std::uint8_t side =
                at == point.node ? SideOfGate(point, data.nodes[at], data.nodes[arc.to]) : best[at].side;
            best[arc.to] = {nm + arc.nm, side};
            open.emplace(best[arc.to].nm, arc.to);
        }
    }
    std::vector<ReachEntry> result;
    result.reserve(targets.size());
    for (const std::uint32_t target : targets) {
        result.push_back(best[target]);
    }
    return result;
}

}  // namespace Tarvik::Server
