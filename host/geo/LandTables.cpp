// SPDX-License-Identifier: MIT
// Making the index of the coast: a grid of cells of a quarter degree, each with the numbers of the pieces
// that touch it, in one table of all cells, sorted by counting: first how many a cell has, then where each
// goes. A second table lists the pieces within the widest margin of a cell. Own data layout of the usual
// uniform grid. Cost: two passes over the cells of each piece, memory of a number for each of them and one
// for each cell.
#include "host/geo/LandTables.h"

#include <cmath>
#include <utility>

namespace Tarvik::Server {

namespace {

constexpr std::size_t kCells = static_cast<std::size_t>(LandGrid::kColumns) * LandGrid::kRows;

/// Column of a longitude; those past ±180 run on.
int ColumnAt(double x) {
    return static_cast<int>(std::floor((x + 180.0) * LandGrid::kCellsPerDegree));
}

void AddPiece(GeoPoint a, GeoPoint b, std::vector<CoastPiece>& pieces) {
    if (a == b) {
        return;
    }
    const double jump = b.x - a.x;
    if (std::abs(jump) <= 180.0) {
        pieces.push_back({a.x, a.y, b.x, b.y});
        return;
    }
    const double border = jump > 0 ? -180.0 : 180.0;
    const GeoPoint unwrapped{b.x - std::copysign(360.0, jump), b.y};
    const double y = unwrapped.x == a.x ? a.y : LatitudeAt(border, a, unwrapped);
    AddPiece(a, {border, y}, pieces);
    AddPiece({-border, y}, b, pieces);
}

void AddRings(const std::vector<std::vector<GeoPoint>>& rings, std::vector<CoastPiece>& pieces) {
    for (const auto& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            AddPiece(ring[i], ring[(i + 1) % ring.size()], pieces);
        }
    }
}

/// A table of what `visitAll(i, visit)` visits for every i below `count`.
template <typename VisitAll>
CoastCells CellsOf(std::size_t count, VisitAll visitAll) {
    std::vector<std::uint32_t> start(kCells + 1, 0);
    for (std::uint32_t i = 0; i < count; ++i) {
        visitAll(i, [&](int column, int row) { ++start[CellOf(column, row) + 1]; });
    }
    for (std::size_t i = 1; i < start.size(); ++i) {
        start[i] += start[i - 1];
    }
    std::vector<std::uint32_t> items(start.back());
    std::vector<std::uint32_t> next(start.begin(), start.end() - 1);
    for (std::uint32_t i = 0; i < count; ++i) {
        visitAll(i, [&](int column, int row) { items[next[CellOf(column, row)]++] = i; });
    }
    return {FrozenArray(std::move(start)), FrozenArray(std::move(items))};
}

/// Visits the cells within the margin of a piece.
template <typename Visit>
void VisitNear(const CoastPiece& s, Visit visit) {
    constexpr double kRise = kMaxCoastMarginNm / kNmPerDegree;
    const double north = std::max(s.y1, s.y2) + kRise;
    const double south = std::min(s.y1, s.y2) - kRise;
    const double wide =
        kRise / std::max(0.05, std::cos(std::max(std::abs(north), std::abs(south)) * kDegree));
    const int last = ColumnAt(std::max(s.x1, s.x2) + wide);
    for (int row = LandGrid::RowOf(south); row <= LandGrid::RowOf(north); ++row) {
        for (int column = ColumnAt(std::min(s.x1, s.x2) - wide); column <= last; ++column) {
            visit((column + LandGrid::kColumns) % LandGrid::kColumns, row);
        }
    }
}

bool Fits(const CoastCells& cells, std::size_t pieces) {
    const auto start = cells.start.View();
    const auto items = cells.items.View();
    if (start.size() != kCells + 1 || start.front() != 0 || start.back() != items.size()) {
        return false;
    }
    return std::is_sorted(start.begin(), start.end()) &&
           (items.empty() || *std::max_element(items.begin(), items.end()) < pieces);
}

}  // namespace

LandTables TablesOfLand(const std::vector<std::vector<GeoPoint>>& rings,
                        const std::vector<std::vector<GeoPoint>>& areas) {
    std::vector<CoastPiece> pieces;
    LandTables tables;
    AddRings(rings, pieces);
    tables.landPieces = static_cast<std::uint32_t>(pieces.size());
    AddRings(areas, pieces);
    tables.cells = CellsOf(pieces.size(), [&pieces](std::uint32_t i, const auto& visit) {
        VisitCells(pieces[i], [&visit](int column, int row) {
            visit(column, row);
            return false;
        });
    });
    tables.near = CellsOf(tables.landPieces,
                          [&pieces](std::uint32_t i, const auto& visit) { VisitNear(pieces[i], visit); });
    tables.pieces = FrozenArray(std::move(pieces));
    return tables;
}

std::string FaultOf(const LandTables& tables) {
    const bool fits = tables.landPieces <= tables.pieces.Size() && Fits(tables.cells, tables.pieces.Size()) &&
                      Fits(tables.near, tables.landPieces);
    return fits ? std::string() : "the cells of the coast name pieces that do not exist";
}

}  // namespace Tarvik::Server
