// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/geo/GeoPoint.h"

namespace Tarvik::Server {

/// Answers whether a way crosses the coast and whether a place lies on land, from the rings of the land.
///
/// Rings are closed implicitly; a step of more than 180 degrees of longitude is one over the date line. A
/// ring that runs once around the pole (Antarctica) needs no southern edge, since land is counted by
/// crossings to the north. The coast is cut at ±180 and its pieces are kept in cells of a quarter degree.
class LandIndex {
  public:
    LandIndex() = default;
    explicit LandIndex(const std::vector<std::vector<GeoPoint>>& rings);

    /// True when the great circle from a to b, drawn in pieces of at most a degree, meets the coast.
    bool Blocks(GeoPoint a, GeoPoint b) const;

    /// True when one straight piece in longitude and latitude meets the coast; longitudes may run past ±180.
    bool BlocksStraight(GeoPoint a, GeoPoint b) const;

    /// True for a place inside a ring.
    bool IsLand(GeoPoint p) const;

    /// True when no coast lies within about `nm` nautical miles of the place (sampled in 12 directions).
    bool IsClear(GeoPoint p, double nm) const;

    std::size_t SegmentCount() const { return segments_.size(); }

  private:
    struct Segment {
        double x1, y1, x2, y2;
    };
    void AddSegment(GeoPoint a, GeoPoint b);
    void FillCells();
    bool CellBlocks(int column, int row, const Segment& s) const;
    bool Walk(const Segment& s) const;
    template <typename Visit>
    void VisitCells(const Segment& s, Visit visit) const;

    std::vector<Segment> segments_;
    std::vector<std::uint32_t> cellStart_;
    std::vector<std::uint32_t> cellItems_;
};

}  // namespace Tarvik::Server
