// SPDX-License-Identifier: MIT
#include "host/data/builder/CoastCorners.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

#include "host/geo/Sphere.h"
#include "host/server/graph/SeaNetwork.h"

namespace Tarvik::Data {

namespace {

using Server::kDegree;

constexpr double kFineNm = 0.8;
constexpr double kOpenOffsetNm = 3.0;
/// In busy waters a straight coast gets a corner about this often too, where it bends at all.
constexpr double kGapNm = 8.0;
constexpr double kNorthEnd = 79.0;

/// How finely a coast is followed and how far off ships pass it. The distance is larger than the tolerance,
/// so that the ways between capes clear what was left out of the coast.
struct Measure {
    double toleranceNm;
    double offsetNm;
};
constexpr Measure kWild{4.0, 6.0};
constexpr Measure kUsed{2.0, kOpenOffsetNm};
constexpr Measure kIce{12.0, 16.0};

GeoPoint Unit(GeoPoint from, GeoPoint to) {
    const double dx = (to.x - from.x) * std::cos(from.y * kDegree);
    const double dy = to.y - from.y;
    const double length = std::hypot(dx, dy);
    return length == 0.0 ? GeoPoint{} : GeoPoint{dx / length, dy / length};
}

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

Ring Unwrapped(const Ring& ring) {
    Ring out;
    for (const GeoPoint p : ring) {
        const double shift = out.empty() ? 0.0 : 360.0 * std::round((out.back().x - p.x) / 360.0);
        out.push_back({p.x + shift, p.y});
    }
    return out;
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

/// Corners found so far, looked up by place to keep them apart.
class CornerSet {
  public:
    /// The corner nearer than `nm` to a place; null when there is none. Valid until the next `add`.
    Corner* Near(GeoPoint p, double nm) {
        const auto [cx, cy] = Cell(p);
        for (int x = cx - 1; x <= cx + 1; ++x) {
            for (int y = cy - 1; y <= cy + 1; ++y) {
                const auto it = cells_.find({x, y});
                if (it == cells_.end()) {
                    continue;
                }
                for (const std::size_t other : it->second) {
                    if (Server::ArcNm(p, corners[other].at) < nm) {
                        return &corners[other];
                    }
                }
            }
        }
        return nullptr;
    }
    void Add(const Corner& corner) {
        cells_[Cell(corner.at)].push_back(corners.size());
        corners.push_back(corner);
    }
    std::vector<Corner> corners;

  private:
    static std::pair<int, int> Cell(GeoPoint p) {
        return {static_cast<int>(std::floor(p.x * 4.0)), static_cast<int>(std::floor(p.y * 8.0))};
    }
    std::map<std::pair<int, int>, std::vector<std::size_t>> cells_;
};

std::optional<GeoPoint> MoveSeaward(const Ring& ring, std::size_t i, double nm,
                                    const Server::LandIndex& index) {
    const GeoPoint v = ring[i];
    const GeoPoint a = Unit(v, ring[(i + ring.size() - 1) % ring.size()]);
    const GeoPoint b = Unit(v, ring[(i + 1) % ring.size()]);
    const GeoPoint sum{-(a.x + b.x), -(a.y + b.y)};
    if (std::hypot(sum.x, sum.y) < 0.02) {
        return std::nullopt;  // the coast runs straight on here
    }
    const double bearing = std::atan2(sum.x, sum.y) / kDegree;
    const GeoPoint out =
        Server::RoundPoint(Server::Destination({Server::WrapLongitude(v.x), v.y}, bearing, nm));
    if (index.IsLand(out) || !index.IsClear(out, 0.7 * nm)) {
        return std::nullopt;
    }
    return out;
}

void AddCorner(const Ring& ring, std::size_t i, GeoPoint at, double apart, CornerSet& found) {
    const GeoPoint v = ring[i];
    const Corner corner{at, Unit(v, ring[(i + ring.size() - 1) % ring.size()]),
                        Unit(v, ring[(i + 1) % ring.size()]), false};
    // One place stands for both capes then, and ways may bend round either.
    if (Corner* other = found.Near(at, apart)) {
        other->shared = true;
    } else {
        found.Add(corner);
    }
}

/// Capes with room to pass; only those in busy waters when `busy` is given.
void AddOpenCorners(const Ring& ring, const Server::LandIndex& index, double offsetNm, const BusyWaters* busy,
                    CornerSet& found) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
        if (busy != nullptr && !busy->Contains(ring[i])) {
            continue;
        }
        for (const double nm : {offsetNm, 0.5 * offsetNm}) {
            const auto at = MoveSeaward(ring, i, nm, index);
            if (!at) {
                continue;
            }
            AddCorner(ring, i, *at, nm * 0.7, found);
            break;
        }
    }
}

void AddNarrowCorners(const Ring& ring, const Server::LandIndex& index, const BusyWaters& busy,
                      CornerSet& found) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
        if (!busy.Contains(ring[i])) {
            continue;
        }
        if (const auto open = MoveSeaward(ring, i, kOpenOffsetNm, index)) {
            if (found.Near(*open, kGapNm) == nullptr) {
                AddCorner(ring, i, *open, kGapNm, found);
            }
            continue;
        }
        for (const double nm : {0.8, 0.4, 0.2}) {
            const auto at = MoveSeaward(ring, i, nm, index);
            if (!at) {
                continue;
            }
            AddCorner(ring, i, *at, 1.2, found);
            break;
        }
    }
}

bool InReach(const Ring& ring) {
    return std::any_of(ring.begin(), ring.end(),
                       [](GeoPoint p) { return p.y > Server::kSouthLimit && p.y < kNorthEnd; });
}

}  // namespace

Ring SimplifyRing(const Ring& ring, double toleranceNm) {
    if (ring.size() < 3) {
        return ring;
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
    Ring out;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        if (keep[i] != 0) {
            out.push_back(ring[i]);
        }
    }
    return out;
}

std::vector<Corner> FindCorners(const std::vector<Polygon>& land, const Server::LandIndex& index,
                                const Waters& waters) {
    CornerSet found;
    for (const Polygon& polygon : land) {
        for (const Ring& raw : polygon) {
            if (!InReach(raw)) {
                continue;
            }
            const Ring ring = Unwrapped(raw);
            const bool ice = ring.front().y > Server::kNorthLimit;
            const Measure& wild = ice ? kIce : kWild;
            AddOpenCorners(SimplifyRing(ring, wild.toleranceNm), index, wild.offsetNm, nullptr, found);
            if (ice) {
                continue;
            }
            AddOpenCorners(SimplifyRing(ring, kUsed.toleranceNm), index, kUsed.offsetNm, &waters.used, found);
            AddNarrowCorners(SimplifyRing(ring, kFineNm), index, waters.busy, found);
        }
    }
    std::erase_if(found.corners,
                  [](const Corner& c) { return c.at.y > kNorthEnd || c.at.y < Server::kSouthLimit; });
    return found.corners;
}

}  // namespace Tarvik::Data
