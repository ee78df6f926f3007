// SPDX-License-Identifier: MIT
#include "host/server/graph/PathShape.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

#include "host/server/graph/PassageReach.h"

namespace Tarvik::Server {

namespace {

/// How many nodes in a row may be hidden before the view ahead is given up.
constexpr std::size_t kPatience = 3;
/// How many other places to turn are tried, and what one must save.
constexpr std::size_t kTurnsTried = 12;
constexpr double kWorthNm = 0.05;

}  // namespace

bool PathShape::IsOpen(std::uint32_t a, std::uint32_t b, const GateMask& forbidden) const {
    const SightLine line = SightLineOf(network_, a, b);
    return line.clear && (line.crossed & forbidden).none();
}

std::size_t PathShape::BetterTurn(const Run& run, std::size_t before, std::size_t turn, std::size_t behind,
                                  const GateMask& forbidden) const {
    const auto by = [&](std::size_t i) {
        const UnitVector& here = network_.Vector(run[i]);
        return ArcNm(network_.Vector(run[before]), here) + ArcNm(here, network_.Vector(run[behind]));
    };
    const double present = by(turn) - kWorthNm;
    std::vector<std::pair<double, std::size_t>> shorter;
    for (std::size_t i = before + 1; i < behind; ++i) {
        const double nm = by(i);
        if (nm < present) {
            shorter.emplace_back(nm, i);
        }
    }
    std::sort(shorter.begin(), shorter.end());
    for (std::size_t k = 0; k < shorter.size() && k < kTurnsTried; ++k) {
        const std::size_t i = shorter[k].second;
        const bool first = i == before + 1 || IsOpen(run[before], run[i], forbidden);
        if (first && (i + 1 == behind || IsOpen(run[i], run[behind], forbidden))) {
            return i;
        }
    }
    return turn;
}

void PathShape::AppendTaut(Run run, const GateMask& forbidden, std::vector<GeoPoint>& out) const {
    const std::vector<GeoPoint>& nodes = network_.data().nodes;
    // What is left out depends on the end to begin at: it is the same one whichever way the ship goes.
    const GeoPoint first = nodes[run.front()];
    const GeoPoint last = nodes[run.back()];
    const bool turned = std::tie(last.x, last.y) < std::tie(first.x, first.y);
    if (turned) {
        std::reverse(run.begin(), run.end());
    }
    std::vector<std::size_t> kept{0};
    std::size_t at = 0;
    while (at + 1 < run.size()) {
        std::size_t next = at + 1;
        std::size_t hidden = 0;
        for (std::size_t j = at + 2; j < run.size() && hidden < kPatience; ++j) {
            if (IsOpen(run[at], run[j], forbidden)) {
                next = j;
                hidden = 0;
            } else {
                ++hidden;
            }
        }
        kept.push_back(next);
        at = next;
    }
    for (std::size_t i = 1; i + 1 < kept.size(); ++i) {
        kept[i] = BetterTurn(run, kept[i - 1], kept[i], kept[i + 1], forbidden);
    }
    if (turned) {
        std::reverse(kept.begin(), kept.end());
    }
    std::transform(kept.begin() + 1, kept.end(), std::back_inserter(out),
                   [&](std::size_t i) { return nodes[run[i]]; });
}

std::vector<GeoPoint> PathShape::Taut(const NodePath& path, const GateMask& forbidden,
                                      const std::vector<std::uint32_t>& pinned) const {
    const NetworkData& data = network_.data();
    // The search kept away from costly passages, and so must the short cut.
    GateMask barred = network_.CostlyGates();
    for (const std::uint32_t edge : path.edges) {
        barred &= ~data.masks[data.edges[edge].mask];
    }
    barred |= forbidden;
    std::vector<GeoPoint> corners{data.nodes[path.nodes.front()]};
    Run run{path.nodes.front()};
    const auto flush = [&] {
        const std::uint32_t last = run.back();
        AppendTaut(std::move(run), barred, corners);
        run = {last};
    };
    for (std::size_t i = 0; i < path.edges.size(); ++i) {
        const std::uint32_t node = path.nodes[i + 1];
        if (data.edges[path.edges[i]].kind == EdgeKind::Sea) {
            run.push_back(node);
            if (std::find(pinned.begin(), pinned.end(), node) != pinned.end()) {
                flush();
            }
            continue;
        }
        flush();
        corners.push_back(data.nodes[node]);
        run = {node};
    }
    flush();
    return corners;
}

std::vector<GeoPoint> PathShape::Densify(const std::vector<GeoPoint>& corners) {
    std::vector<GeoPoint> way{corners.front()};
    for (std::size_t i = 1; i < corners.size(); ++i) {
        const std::vector<GeoPoint> piece = GreatCircle(corners[i - 1], corners[i]);
        const double shift = way.back().x - piece.front().x;
        for (std::size_t k = 1; k < piece.size(); ++k) {
            way.push_back({piece[k].x + shift, piece[k].y});
        }
    }
    for (GeoPoint& p : way) {
        p = RoundPoint(p);
    }
    return way;
}

}  // namespace Tarvik::Server
