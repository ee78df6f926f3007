// SPDX-License-Identifier: MIT
#include "host/server/graph/PathShape.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <tuple>

#include "host/server/graph/Gate.h"
#include "host/server/graph/PassageReach.h"

namespace Tarvik::Server {

namespace {

/// How many nodes in a row may be hidden before the view ahead is given up.
constexpr std::size_t kPatience = 3;
/// How many other places to turn are tried, and what one must save.
constexpr std::size_t kTurnsTried = 12;
constexpr double kWorthNm = 0.05;

struct Pass {
    std::size_t index = 0;
    double t = 0.0;
    GeoPoint at;
    const RoutePoint* point = nullptr;
};

std::vector<Pass> Passes(const std::vector<GeoPoint>& way, const SeaNetwork& network) {
    const NetworkData& data = network.data();
    const GateMask near = network.CellsOfGates().Near(way);
    std::vector<Pass> found;
    for (std::size_t i = 0; i < data.routePoints.size(); ++i) {
        if (!near[i]) {
            continue;
        }
        const RoutePoint& point = data.routePoints[i];
        const GeoPoint here = data.nodes[point.node];
        const auto same = [here](GeoPoint p) {
            return p.y == here.y && std::remainder(p.x - here.x, 360.0) == 0.0;
        };
        const auto it = std::find_if(way.begin(), way.end(), same);
        if (it != way.end()) {
            found.push_back({static_cast<std::size_t>(it - way.begin()), 0.0, *it, &point});
        } else if (const auto crossing = FirstCrossing(way, point.gate)) {
            found.push_back({crossing->index, crossing->t, crossing->at, &point});
        }
    }
    std::sort(found.begin(), found.end(), [](const Pass& a, const Pass& b) {
        return std::tie(a.index, a.t, a.point->id) < std::tie(b.index, b.t, b.point->id);
    });
    return found;
}

RouteLeg Finished(std::string from, std::string end, std::vector<GeoPoint> points) {
    if (points.size() == 1) {
        points.push_back(points.front());
    }
    RouteLeg leg{std::move(from), std::move(end), PathShape::CutAtDateLine(points), 0.0};
    leg.distanceKm = PathShape::LengthKm(leg.points);
    return leg;
}

}  // namespace

PathShape::Run PathShape::RunOf(std::vector<GeoPoint> points) {
    Run run{std::move(points), {}};
    run.vectors.reserve(run.points.size());
    for (const GeoPoint p : run.points) {
        run.vectors.push_back(ToVector(p));
    }
    return run;
}

bool PathShape::IsOpen(GeoPoint a, GeoPoint b, const GateMask& forbidden) const {
    const SightLine& line = SightLineOf(network_, a, b);
    return line.clear && (line.crossed & forbidden).none();
}

std::size_t PathShape::BetterTurn(const Run& run, std::size_t before, std::size_t turn, std::size_t behind,
                                  const GateMask& forbidden) const {
    const auto by = [&](std::size_t i) {
        return ArcNm(run.vectors[before], run.vectors[i]) + ArcNm(run.vectors[i], run.vectors[behind]);
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
        const bool first = i == before + 1 || IsOpen(run.points[before], run.points[i], forbidden);
        if (first && (i + 1 == behind || IsOpen(run.points[i], run.points[behind], forbidden))) {
            return i;
        }
    }
    return turn;
}

void PathShape::AppendTaut(std::vector<GeoPoint> places, const GateMask& forbidden,
                           std::vector<GeoPoint>& out) const {
    // What is left out depends on the end to begin at: it is the same one whichever way the ship goes.
    const bool turned =
        std::tie(places.back().x, places.back().y) < std::tie(places.front().x, places.front().y);
    if (turned) {
        std::reverse(places.begin(), places.end());
    }
    const Run run = RunOf(std::move(places));
    const std::vector<GeoPoint>& points = run.points;
    std::vector<std::size_t> kept{0};
    std::size_t at = 0;
    while (at + 1 < points.size()) {
        std::size_t next = at + 1;
        std::size_t hidden = 0;
        for (std::size_t j = at + 2; j < points.size() && hidden < kPatience; ++j) {
            if (IsOpen(points[at], points[j], forbidden)) {
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
                   [&points](std::size_t i) { return points[i]; });
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
    std::vector<GeoPoint> run{corners.front()};
    const auto flush = [&] {
        AppendTaut(run, barred, corners);
        run = {corners.back()};
    };
    for (std::size_t i = 0; i < path.edges.size(); ++i) {
        const std::uint32_t node = path.nodes[i + 1];
        if (data.edges[path.edges[i]].kind == EdgeKind::Sea) {
            run.push_back(data.nodes[node]);
            if (std::find(pinned.begin(), pinned.end(), node) != pinned.end()) {
                flush();
            }
            continue;
        }
        flush();
        corners.push_back(data.nodes[node]);
        run = {corners.back()};
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

std::vector<RouteLeg> PathShape::Split(const std::vector<GeoPoint>& way, const std::string& fromId,
                                       const std::string& endId) const {
    std::vector<RouteLeg> legs;
    std::string from = fromId;
    std::vector<GeoPoint> points{way.front()};
    std::size_t next = 1;
    const auto append = [&points](GeoPoint p) {
        if (!(points.back() == p)) {
            points.push_back(p);
        }
    };
    for (const Pass& pass : Passes(way, network_)) {
        if (pass.point->id == fromId || pass.point->id == endId) {
            continue;
        }
        for (; next <= pass.index; ++next) {
            append(way[next]);
        }
        const GeoPoint at = RoundPoint(pass.at);
        append(at);
        legs.push_back(Finished(from, pass.point->id, std::move(points)));
        points = {at};
        from = pass.point->id;
    }
    for (; next < way.size(); ++next) {
        append(way[next]);
    }
    legs.push_back(Finished(from, endId, std::move(points)));
    return legs;
}

std::vector<GeoPoint> PathShape::CutAtDateLine(const std::vector<GeoPoint>& way) {
    std::vector<GeoPoint> cut;
    for (std::size_t i = 0; i < way.size(); ++i) {
        const GeoPoint here{WrapLongitude(way[i].x), way[i].y};
        if (i > 0) {
            const double before = std::floor((way[i - 1].x + 180.0) / 360.0);
            const double after = std::floor((way[i].x + 180.0) / 360.0);
            if (before != after) {
                const double line = 360.0 * std::max(before, after) - 180.0;
                const double t = (line - way[i - 1].x) / (way[i].x - way[i - 1].x);
                const double y = RoundPoint({0.0, way[i - 1].y + t * (way[i].y - way[i - 1].y)}).y;
                const double side = after > before ? 180.0 : -180.0;
                if (cut.back() == GeoPoint{side, y} || cut.back() == GeoPoint{-side, y}) {
                    cut.pop_back();
                }
                cut.push_back({side, y});
                cut.push_back({-side, y});
                if (here == cut.back()) {
                    continue;
                }
            }
        }
        cut.push_back(RoundPoint(here));
    }
    return cut;
}

double PathShape::LengthKm(const std::vector<GeoPoint>& way) {
    double km = 0.0;
    for (std::size_t i = 1; i < way.size(); ++i) {
        km += GeodesicKm(way[i - 1], way[i]);
    }
    return km;
}

}  // namespace Tarvik::Server
