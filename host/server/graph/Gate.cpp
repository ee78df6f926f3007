// SPDX-License-Identifier: MIT
#include "host/server/graph/Gate.h"

#include <algorithm>
#include <cmath>

namespace Tarvik::Server {

std::optional<double> CrossingShare(GeoPoint a, GeoPoint b, GeoPoint c, GeoPoint d) {
    const double shift = 360.0 * std::round((a.x - c.x) / 360.0);
    c.x += shift;
    d.x += shift;
    if (std::max(a.x, b.x) < std::min(c.x, d.x) || std::min(a.x, b.x) > std::max(c.x, d.x)) {
        return std::nullopt;
    }
    if (std::max(a.y, b.y) < std::min(c.y, d.y) || std::min(a.y, b.y) > std::max(c.y, d.y)) {
        return std::nullopt;
    }
    const double ux = d.x - c.x;
    const double uy = d.y - c.y;
    const double sideA = ux * (a.y - c.y) - uy * (a.x - c.x);
    const double sideB = ux * (b.y - c.y) - uy * (b.x - c.x);
    if ((sideA > 0.0) == (sideB > 0.0)) {
        return std::nullopt;
    }
    const double vx = b.x - a.x;
    const double vy = b.y - a.y;
    const double sideC = vx * (c.y - a.y) - vy * (c.x - a.x);
    const double sideD = vx * (d.y - a.y) - vy * (d.x - a.x);
    if (sideC * sideD > 0.0) {
        return std::nullopt;
    }
    return sideA / (sideA - sideB);
}

std::optional<GateCrossing> FirstCrossing(const std::vector<GeoPoint>& way,
                                          const std::vector<GeoPoint>& gate) {
    const auto [low, high] =
        std::minmax_element(gate.begin(), gate.end(), [](GeoPoint a, GeoPoint b) { return a.y < b.y; });
    for (std::size_t i = 1; i < way.size(); ++i) {
        // Most pieces of a long way lie in other latitudes, whatever turns lie between the longitudes.
        if (std::max(way[i - 1].y, way[i].y) < low->y || std::min(way[i - 1].y, way[i].y) > high->y) {
            continue;
        }
        std::optional<double> best;
        for (std::size_t g = 1; g < gate.size(); ++g) {
            const std::optional<double> t = CrossingShare(way[i - 1], way[i], gate[g - 1], gate[g]);
            if (t && (!best || *t < *best)) {
                best = t;
            }
        }
        if (!best) {
            continue;
        }
        const GeoPoint a = way[i - 1];
        const GeoPoint b = way[i];
        return GateCrossing{i - 1, *best, {a.x + *best * (b.x - a.x), a.y + *best * (b.y - a.y)}};
    }
    return std::nullopt;
}

}  // namespace Tarvik::Server
