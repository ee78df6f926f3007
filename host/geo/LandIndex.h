// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/geo/GeoPoint.h"
#include "host/geo/LandTables.h"

namespace Tarvik::Server {

/// Answers whether a way crosses the coast and whether a place lies on land, from the rings of the land.
///
/// Rings are closed implicitly; a step of more than 180 degrees of longitude is one over the date line. A
/// ring that runs once around the pole (Antarctica) needs no southern edge, since land is counted by
/// crossings to the north. The coast is cut at ±180 and its pieces are kept in cells of a quarter degree.
class LandIndex {
  public:
    LandIndex() = default;
    /// `areas` are closed to ways as land is, but are no land.
    explicit LandIndex(const std::vector<std::vector<GeoPoint>>& rings,
                       const std::vector<std::vector<GeoPoint>>& areas = {})
        : LandIndex(TablesOfLand(rings, areas)) {}
    /// Of tables that were made before and fit together.
    explicit LandIndex(LandTables tables);

    /// True when the great circle from a to b, drawn in pieces of at most a degree, meets the coast or the
    /// edge of an area.
    bool Blocks(GeoPoint a, GeoPoint b) const;
    /// The same of a way that is drawn.
    bool Blocks(const std::vector<GeoPoint>& way) const;

    /// True when one straight piece in longitude and latitude meets one; longitudes may run past ±180.
    bool BlocksStraight(GeoPoint a, GeoPoint b) const;

    /// True when the great circle from a to b, without its first and last `trimNm`, comes nearer than `nm`
    /// (at most `kMaxMarginNm`) to a coast.
    bool Grazes(GeoPoint a, GeoPoint b, double nm, double trimNm) const;
    static constexpr double kMaxMarginNm = kMaxCoastMarginNm;
    /// How long the beginning and the end of a way are that may come near: there are ports and straits.
    static constexpr double kApproachNm = 6.0;

    /// True for a place inside a ring.
    bool IsLand(GeoPoint p) const;

    /// True when no coast lies within about `nm` nautical miles of the place (sampled in 12 directions).
    bool IsClear(GeoPoint p, double nm) const;

    std::size_t SegmentCount() const { return tables_.pieces.Size(); }
    const LandTables& Tables() const { return tables_; }

  private:
    bool CellBlocks(int column, int row, const CoastPiece& s) const;
    bool CellGrazes(int column, int row, const CoastPiece& s, double nm) const;
    /// Whether a coast may lie near a piece; false for most of the oceans.
    bool MayMeet(const CoastPiece& s) const;
    bool Walk(const CoastPiece& s) const;
    bool WalkNear(const CoastPiece& s, double nm) const;
    /// Calls `walk` with the piece, in two where it crosses the date line, until it says true.
    template <typename Walker>
    static bool OverDateLine(GeoPoint a, GeoPoint b, Walker walk);

    LandTables tables_;
    std::vector<std::uint8_t> busy_;  ///< by degrees: whether one of their cells has a piece in or near it
};

}  // namespace Tarvik::Server
