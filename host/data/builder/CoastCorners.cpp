// SPDX-License-Identifier: MIT
#include "host/data/builder/CoastCorners.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

#include "host/server/graph/SeaNetwork.h"
#include "host/server/graph/Sphere.h"

namespace Tarvik::Data {
namespace {

using Server::kDegree;

constexpr double kCoarseNm = 2.0;
constexpr double kFineNm = 0.8;
constexpr double kIceNm = 8.0;
constexpr double kOpenOffsetNm = 3.0;
constexpr double kNorthEnd = 79.0;

GeoPoint unit(GeoPoint from, GeoPoint to) {
    const double dx = (to.x - from.x) * std::cos(from.y * kDegree);
    const double dy = to.y - from.y;
    const double length = std::hypot(dx, dy);
    return length == 0.0 ? GeoPoint{} : GeoPoint{dx / length, dy / length};
}

/// Distance in NM of p from the line a-b in the plane at p's latitude.
double offLine(GeoPoint p, GeoPoint a, GeoPoint b) {
    const double c = std::cos(p.y * kDegree);
    const double ux = (b.x - a.x) * c;
    const double uy = b.y - a.y;
    const double wx = (p.x - a.x) * c;
    const double wy = p.y - a.y;
    const double square = ux * ux + uy * uy;
    const double t = square == 0.0 ? 0.0 : std::clamp((ux * wx + uy * wy) / square, 0.0, 1.0);
    return std::hypot(wx - t * ux, wy - t * uy) * Server::kNmPerDegree;
}

Ring unwrapped(const Ring& ring) {
    Ring out;
    for (const GeoPoint p : ring) {
        const double shift = out.empty() ? 0.0 : 360.0 * std::round((out.back().x - p.x) / 360.0);
        out.push_back({p.x + shift, p.y});
    }
    return out;
}

void keepBetween(const Ring& ring, size_t first, size_t last, double tolerance, std::vector<char>& keep) {
    std::vector<std::pair<size_t, size_t>> open{{first, last}};
    while (!open.empty()) {
        const auto [a, b] = open.back();
        open.pop_back();
        double worst = tolerance;
        size_t at = 0;
        for (size_t i = a + 1; i < b; ++i) {
            const double off = offLine(ring[i], ring[a], ring[b % ring.size()]);
            if (off > worst) {
                worst = off;
                at = i;
            }
        }
        if (at == 0) continue;
        keep[at] = 1;
        open.emplace_back(a, at);
        open.emplace_back(at, b);
    }
}

/// Corners found so far, looked up by place to keep them apart.
class CornerSet {
  public:
    bool hasNear(GeoPoint p, double nm) const {
        const auto [cx, cy] = cell(p);
        for (int x = cx - 1; x <= cx + 1; ++x) {
            for (int y = cy - 1; y <= cy + 1; ++y) {
                const auto it = cells_.find({x, y});
                if (it == cells_.end()) continue;
                for (const GeoPoint other : it->second) {
                    if (Server::arcNm(p, other) < nm) return true;
                }
            }
        }
        return false;
    }
    void add(const Corner& corner) {
        cells_[cell(corner.at)].push_back(corner.at);
        corners.push_back(corner);
    }
    std::vector<Corner> corners;

  private:
    static std::pair<int, int> cell(GeoPoint p) {
        return {static_cast<int>(std::floor(p.x * 4.0)), static_cast<int>(std::floor(p.y * 8.0))};
    }
    std::map<std::pair<int, int>, std::vector<GeoPoint>> cells_;
};

std::optional<GeoPoint> moveSeaward(const Ring& ring, size_t i, double nm, const Server::LandIndex& index) {
    const GeoPoint v = ring[i];
    const GeoPoint a = unit(v, ring[(i + ring.size() - 1) % ring.size()]);
    const GeoPoint b = unit(v, ring[(i + 1) % ring.size()]);
    const GeoPoint sum{-(a.x + b.x), -(a.y + b.y)};
    if (std::hypot(sum.x, sum.y) < 0.05) return std::nullopt;  // the coast runs straight on here
    const double bearing = std::atan2(sum.x, sum.y) / kDegree;
    const GeoPoint out =
        Server::roundPoint(Server::destination({Server::wrapLongitude(v.x), v.y}, bearing, nm));
    if (index.isLand(out) || !index.isClear(out, 0.7 * nm)) return std::nullopt;
    return out;
}

void addCorner(const Ring& ring, size_t i, GeoPoint at, double apart, CornerSet& found) {
    if (found.hasNear(at, apart)) return;
    const GeoPoint v = ring[i];
    found.add({at, unit(v, ring[(i + ring.size() - 1) % ring.size()]), unit(v, ring[(i + 1) % ring.size()])});
}

void addOpenCorners(const Ring& ring, const Server::LandIndex& index, CornerSet& found) {
    for (size_t i = 0; i < ring.size(); ++i) {
        for (const double nm : {kOpenOffsetNm, 1.5}) {
            const auto at = moveSeaward(ring, i, nm, index);
            if (!at) continue;
            addCorner(ring, i, *at, nm * 0.5, found);
            break;
        }
    }
}

void addNarrowCorners(const Ring& ring, const Server::LandIndex& index, CornerSet& found) {
    for (size_t i = 0; i < ring.size(); ++i) {
        if (ring[i].y > Server::kNorthLimit || moveSeaward(ring, i, kOpenOffsetNm, index)) continue;
        for (const double nm : {0.8, 0.4, 0.2}) {
            const auto at = moveSeaward(ring, i, nm, index);
            if (!at) continue;
            addCorner(ring, i, *at, 1.2, found);
            break;
        }
    }
}

bool inReach(const Ring& ring) {
    return std::any_of(ring.begin(), ring.end(),
                       [](GeoPoint p) { return p.y > Server::kSouthLimit && p.y < kNorthEnd; });
}

}  // namespace

Ring simplifyRing(const Ring& ring, double toleranceNm) {
    if (ring.size() < 3) return ring;
    size_t far = 0;
    double best = -1.0;
    for (size_t i = 1; i < ring.size(); ++i) {
        const double nm = std::hypot(ring[i].x - ring[0].x, ring[i].y - ring[0].y);
        if (nm > best) {
            best = nm;
            far = i;
        }
    }
    std::vector<char> keep(ring.size(), 0);
    keep[0] = keep[far] = 1;
    keepBetween(ring, 0, far, toleranceNm, keep);
    keepBetween(ring, far, ring.size(), toleranceNm, keep);
    Ring out;
    for (size_t i = 0; i < ring.size(); ++i) {
        if (keep[i] != 0) out.push_back(ring[i]);
    }
    return out;
}

std::vector<Corner> findCorners(const std::vector<Polygon>& land, const Server::LandIndex& index) {
    CornerSet found;
    for (const Polygon& polygon : land) {
        for (const Ring& raw : polygon) {
            if (!inReach(raw)) continue;
            const Ring ring = unwrapped(raw);
            const bool ice = ring.front().y > Server::kNorthLimit;
            addOpenCorners(simplifyRing(ring, ice ? kIceNm : kCoarseNm), index, found);
            if (!ice) addNarrowCorners(simplifyRing(ring, kFineNm), index, found);
        }
    }
    std::erase_if(found.corners,
                  [](const Corner& c) { return c.at.y > kNorthEnd || c.at.y < Server::kSouthLimit; });
    return found.corners;
}

}  // namespace Tarvik::Data
