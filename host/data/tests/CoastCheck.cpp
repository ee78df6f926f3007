// SPDX-License-Identifier: MIT
#include "host/data/tests/CoastCheck.h"

#include <algorithm>
#include <cmath>

namespace Tarvik::Data {

namespace {

int CellOf(double degrees) {
    return static_cast<int>(std::floor(degrees));
}

double Cross(GeoPoint a, GeoPoint b, GeoPoint p) {
    return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

/// Distance of a place from a piece, in degrees of latitude.
double Distance(GeoPoint p, GeoPoint a, GeoPoint b) {
    const double shrink = std::cos(p.y * M_PI / 180.0);
    const double ux = (b.x - a.x) * shrink;
    const double uy = b.y - a.y;
    const double wx = (p.x - a.x) * shrink;
    const double wy = p.y - a.y;
    const double square = ux * ux + uy * uy;
    const double t = square == 0.0 ? 0.0 : std::clamp((ux * wx + uy * wy) / square, 0.0, 1.0);
    return std::hypot(wx - t * ux, wy - t * uy);
}

}  // namespace

void LineCells::Add(GeoPoint a, GeoPoint b) {
    for (int x = CellOf(std::min(a.x, b.x)); x <= CellOf(std::max(a.x, b.x)); ++x) {
        for (int y = CellOf(std::min(a.y, b.y)); y <= CellOf(std::max(a.y, b.y)); ++y) {
            cells_[{x, y}].emplace_back(a, b);
        }
    }
}

std::vector<GeoPoint> LineCells::Meetings(GeoPoint a, GeoPoint b) const {
    std::vector<GeoPoint> found;
    for (int x = CellOf(std::min(a.x, b.x)); x <= CellOf(std::max(a.x, b.x)); ++x) {
        for (int y = CellOf(std::min(a.y, b.y)); y <= CellOf(std::max(a.y, b.y)); ++y) {
            const auto cell = cells_.find({x, y});
            if (cell == cells_.end()) {
                continue;
            }
            for (const auto& [c, d] : cell->second) {
                const double sideC = Cross(a, b, c);
                const double sideD = Cross(a, b, d);
                if (sideC * sideD > 0 || Cross(c, d, a) * Cross(c, d, b) > 0 || sideC == sideD) {
                    continue;
                }
                const double t = sideC / (sideC - sideD);
                found.push_back({c.x + t * (d.x - c.x), c.y + t * (d.y - c.y)});
            }
        }
    }
    return found;
}

bool LineCells::PassesNear(GeoPoint p, double degrees) const {
    for (int x = CellOf(p.x) - 1; x <= CellOf(p.x) + 1; ++x) {
        for (int y = CellOf(p.y) - 1; y <= CellOf(p.y) + 1; ++y) {
            const auto cell = cells_.find({x, y});
            if (cell == cells_.end()) {
                continue;
            }
            for (const auto& [a, b] : cell->second) {
                if (Distance(p, a, b) <= degrees) {
                    return true;
                }
            }
        }
    }
    return false;
}

LineCells CoastOf(const Server::NetworkData& data) {
    LineCells coast;
    for (const auto& ring : data.land) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const GeoPoint a = ring[i];
            const GeoPoint b = ring[(i + 1) % ring.size()];
            if (std::abs(a.x - b.x) < 180.0) {
                coast.Add(a, b);
            }
        }
    }
    return coast;
}

LineCells HandMadeWays(const Server::NetworkData& data) {
    LineCells ways;
    for (const Server::NetworkEdge& e : data.edges) {
        const GeoPoint a = data.nodes[e.a];
        const GeoPoint b = data.nodes[e.b];
        if (e.kind != Server::EdgeKind::Sea && std::abs(a.x - b.x) < 180.0) {
            ways.Add(a, b);
        }
    }
    return ways;
}

}  // namespace Tarvik::Data
