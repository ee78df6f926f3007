// SPDX-License-Identifier: MIT
#include "host/data/builder/CoastCorners.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "host/data/builder/CornerSet.h"
#include "host/geo/RingShape.h"
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
constexpr Measure kWild{4.0, 12.0};
constexpr Measure kUsed{2.0, 6.0};
constexpr Measure kIce{12.0, 16.0};

std::optional<GeoPoint> MoveSeaward(const Ring& ring, std::size_t i, double nm,
                                    const Server::LandIndex& index) {
    const GeoPoint v = ring[i];
    const GeoPoint a = DirectionTo(v, ring[(i + ring.size() - 1) % ring.size()]);
    const GeoPoint b = DirectionTo(v, ring[(i + 1) % ring.size()]);
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

/// A corner seaward of a ring's point; one nearer than `apart` miles to it stands for both capes instead.
GeoPoint AddCorner(const Ring& ring, std::size_t i, GeoPoint at, double apart, CornerSet& found) {
    const GeoPoint v = ring[i];
    const Corner corner{at, DirectionTo(v, ring[(i + ring.size() - 1) % ring.size()]),
                        DirectionTo(v, ring[(i + 1) % ring.size()]), false};
    // One place stands for both capes then, and ways may bend round either.
    if (Corner* other = found.Near(at, apart)) {
        other->shared = true;
        return other->at;
    }
    found.Add(corner);
    return at;
}

Ring PointsAt(const Ring& ring, const std::vector<std::size_t>& indices) {
    Ring out;
    for (const std::size_t i : indices) {
        out.push_back(ring[i]);
    }
    return out;
}

/// Capes with room to pass; only those in busy waters when `busy` is given. `outline` names the capes by
/// their index on the ring.
std::vector<PlacedCorner> AddOpenCorners(const Coast& coast, const std::vector<std::size_t>& outline,
                                         const BusyWaters* busy, CornerSet& found) {
    const Ring shape = PointsAt(coast.ring, outline);
    std::vector<PlacedCorner> placed;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        if (busy != nullptr && !busy->Contains(shape[i])) {
            continue;
        }
        for (const double nm : {coast.offsetNm, 0.5 * coast.offsetNm}) {
            const auto at = MoveSeaward(shape, i, nm, coast.land);
            if (!at) {
                continue;
            }
            placed.push_back({outline[i], AddCorner(shape, i, *at, nm * 0.7, found)});
            break;
        }
    }
    return placed;
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

std::vector<Corner> FindCorners(const std::vector<Polygon>& land, const Server::LandIndex& index,
                                const Waters& waters) {
    CornerSet found;
    for (const Polygon& polygon : land) {
        for (const Ring& raw : polygon) {
            if (!InReach(raw)) {
                continue;
            }
            const Ring ring = Unwrapped(raw);
            const bool landToTheLeft = RunsLeft(ring) == (&raw == &polygon.front());
            const bool ice = ring.front().y > Server::kNorthLimit;
            const auto follow = [&](const Measure& measure, const BusyWaters* busy) {
                const Coast coast{ring, landToTheLeft, measure.offsetNm, index};
                const std::vector<PlacedCorner> placed =
                    AddOpenCorners(coast, OutlineOf(ring, measure.toleranceNm), busy, found);
                AddHiddenCapes(coast, placed, found);
            };
            follow(ice ? kIce : kWild, nullptr);
            if (ice) {
                continue;
            }
            follow(kUsed, &waters.used);
            AddNarrowCorners(SimplifyRing(ring, kFineNm), index, waters.busy, found);
        }
    }
    std::erase_if(found.corners,
                  [](const Corner& c) { return c.at.y > kNorthEnd || c.at.y < Server::SouthLimit(c.at.x); });
    return found.corners;
}

}  // namespace Tarvik::Data
