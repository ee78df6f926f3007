// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "host/data/builder/CoastCorners.h"
#include "host/geo/Sphere.h"

namespace Tarvik::Data {

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

/// A corner found on a coast: the index of its cape on the ring, and the place.
struct PlacedCorner {
    std::size_t index = 0;
    GeoPoint at;
};

/// A coast whose corners are looked for, and how far off ships pass it.
struct Coast {
    const Ring& ring;
    bool landToTheLeft = false;  ///< of the ring's direction
    double offsetNm = 0;
    const Server::LandIndex& land;
};

/// Adds the capes between successive corners of a ring that hide them from each other: the point that stands
/// out farthest to sea is moved off at right angles to the line between them, and both halves are looked at
/// again. Without these a ship makes a detour wherever two corners just miss each other's sight.
void AddHiddenCapes(const Coast& coast, const std::vector<PlacedCorner>& placed, CornerSet& found);

}  // namespace Tarvik::Data
