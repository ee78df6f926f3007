// SPDX-License-Identifier: MIT
/// The legs of a way: cut at the route points that it passes, and at the date line.
#include <algorithm>
#include <cmath>
#include <tuple>

#include "host/server/graph/Gate.h"
#include "host/server/graph/PassageReach.h"
#include "host/server/graph/PathShape.h"

namespace Tarvik::Server {

namespace {

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
