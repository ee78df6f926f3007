// SPDX-License-Identifier: MIT
// The shape of coasts. Outlines are thinned by Douglas and Peucker's method ("Algorithms for the reduction of
// the number of points required to represent a digitized line", 1973), n log n on the whole.
#include "host/geo/RingShape.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/geo/Sphere.h"

namespace Tarvik::Data {

namespace {

using Server::kDegree;

/// Distance in NM of p from the line a-b in the plane at p's latitude.
double OffLine(GeoPoint p, GeoPoint a, GeoPoint b) {
    const double c = std::cos(p.y * kDegree);
    const double ux = (b.x - a.x) * c;
    const double uy = b.y - a.y;
    const double wx = (p.x - a.x) * c;
    const double wy = p.y - a.y;
    const double square = ux * ux + uy * uy;
    const double t = square == 0.0 ? 0.0 : std::clamp((ux * wx + uy * wy) / square, 0.0, 1.0);
    return std::hypot(wx - t * ux, wy - t * uy) * Server::kNmPerDegree;
}

void KeepBetween(const Ring& ring, std::size_t first, std::size_t last, double tolerance,
                 std::vector<char>& keep) {
    std::vector<std::pair<std::size_t, std::size_t>> open{{first, last}};
    while (!open.empty()) {
        const auto [a, b] = open.back();
        open.pop_back();
        double worst = tolerance;
        std::size_t at = 0;
        for (std::size_t i = a + 1; i < b; ++i) {
            const double off = OffLine(ring[i], ring[a], ring[b % ring.size()]);
            if (off > worst) {
                worst = off;
                at = i;
            }
        }
        if (at == 0) {
            continue;
        }
        keep[at] = 1;
        open.emplace_back(a, at);
        open.emplace_back(at, b);
    }
}

}  // namespace

GeoPoint DirectionTo(GeoPoint from, GeoPoint to) {
    const double dx = (to.x - from.x) * std::cos(from.y * kDegree);
    const double dy = to.y - from.y;
    const double length = std::hypot(dx, dy);
    return length == 0.0 ? GeoPoint{} : GeoPoint{dx / length, dy / length};
}

Ring Unwrapped(const Ring& ring) {
    Ring out;
    for (const GeoPoint p : ring) {
        const double shift = out.empty() ? 0.0 : 360.0 * std::round((out.back().x - p.x) / 360.0);
        out.push_back({p.x + shift, p.y});
    }
    return out;
}

std::vector<std::size_t> OutlineOf(const Ring& ring, double toleranceNm) {
    std::vector<std::size_t> out;
    if (ring.size() < 3) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            out.push_back(i);
        }
        return out;
    }
    std::size_t far = 0;
    double best = -1.0;
    for (std::size_t i = 1; i < ring.size(); ++i) {
        const double nm = std::hypot(ring[i].x - ring[0].x, ring[i].y - ring[0].y);
        if (nm > best) {
            best = nm;
            far = i;
        }
    }
    std::vector<char> keep(ring.size(), 0);
    keep[0] = keep[far] = 1;
    KeepBetween(ring, 0, far, toleranceNm, keep);
    KeepBetween(ring, far, ring.size(), toleranceNm, keep);
    for (std::size_t i = 0; i < ring.size(); ++i) {
        if (keep[i] != 0) {
            out.push_back(i);
        }
    }
    return out;
}

Ring SimplifyRing(const Ring& ring, double toleranceNm) {
    Ring out;
    for (const std::size_t i : OutlineOf(ring, toleranceNm)) {
        out.push_back(ring[i]);
    }
    return out;
}

double LeftOf(GeoPoint p, GeoPoint a, GeoPoint b) {
    const double c = std::cos(p.y * kDegree);
    const double ux = (b.x - a.x) * c;
    const double uy = b.y - a.y;
    const double length = std::hypot(ux, uy);
    return length == 0.0 ? 0.0 : (ux * (p.y - a.y) - uy * (p.x - a.x) * c) / length * Server::kNmPerDegree;
}

bool RunsLeft(const Ring& ring) {
    double twiceArea = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const GeoPoint a = ring[i];
        const GeoPoint b = ring[(i + 1) % ring.size()];
        twiceArea += a.x * b.y - b.x * a.y;
    }
    return twiceArea > 0.0;
}

bool IsInside(GeoPoint p, const Ring& ring) {
    bool inside = false;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const GeoPoint a = ring[i];
        const GeoPoint b = ring[(i + 1) % ring.size()];
        if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x)) {
            inside = !inside;
        }
    }
    return inside;
}

std::vector<GeoPoint> CornersOutside(const Ring& ring, double nm) {
    // Outwards lies to the right of a ring that has its inside to the left.
    const double side = RunsLeft(ring) ? 1.0 : -1.0;
    std::vector<GeoPoint> places;
    places.reserve(ring.size());
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const GeoPoint before = DirectionTo(ring[(i + ring.size() - 1) % ring.size()], ring[i]);
        const GeoPoint after = DirectionTo(ring[i], ring[(i + 1) % ring.size()]);
        const double bearing =
            std::atan2(side * (before.y + after.y), -side * (before.x + after.x)) / kDegree;
        places.push_back(Server::RoundPoint(Server::Destination(ring[i], bearing, nm)));
    }
    return places;
}

}  // namespace Tarvik::Data
