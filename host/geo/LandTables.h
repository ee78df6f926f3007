// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "host/geo/FrozenArray.h"
#include "host/geo/GeoPoint.h"
#include "host/geo/Sphere.h"

namespace Tarvik::Server {

/// The cells in which the coast is kept: a quarter degree.
using LandGrid = DegreeGrid<4>;
/// The largest margin that the tables know the coast for.
inline constexpr double kMaxCoastMarginNm = 4.0;

/// A straight piece in longitude and latitude; in the tables none runs past ±180.
struct CoastPiece {
    double x1, y1, x2, y2;
};

/// Which pieces may concern what lies in a cell: numbers, cell after cell.
struct CoastCells {
    FrozenArray<std::uint32_t> start;  ///< one more than there are cells
    FrozenArray<std::uint32_t> items;
};

/// The coast, cut at ±180 and told by cells: all that questions about the land need.
struct LandTables {
    FrozenArray<CoastPiece> pieces;
    std::uint32_t landPieces = 0;  ///< those of closed areas come behind
    CoastCells cells;              ///< the pieces that touch a cell
    CoastCells near;               ///< those of the land within `kMaxCoastMarginNm` of it
};

/// The tables of the land's rings and of areas that are closed to ways, but are no land.
LandTables TablesOfLand(const std::vector<std::vector<GeoPoint>>& rings,
                        const std::vector<std::vector<GeoPoint>>& areas);

/// What in tables that were read does not fit together; empty when all fits.
std::string FaultOf(const LandTables& tables);

/// The number of a cell.
inline std::size_t CellOf(int column, int row) {
    return static_cast<std::size_t>(row) * LandGrid::kColumns + static_cast<std::size_t>(column);
}

/// Calls `visit(column, row)` for the cells that a piece touches, until it says true.
template <typename Visit>
void VisitCells(const CoastPiece& s, Visit visit) {
    const int rowFirst = LandGrid::RowOf(std::min(s.y1, s.y2));
    const int rowLast = LandGrid::RowOf(std::max(s.y1, s.y2));
    const double slope = s.y2 == s.y1 ? 0.0 : (s.x2 - s.x1) / (s.y2 - s.y1);
    for (int row = rowFirst; row <= rowLast; ++row) {
        double left = std::min(s.x1, s.x2);
        double right = std::max(s.x1, s.x2);
        if (rowFirst != rowLast) {
            const double bottom = static_cast<double>(row) / LandGrid::kCellsPerDegree - 90.0;
            const double top = bottom + 1.0 / LandGrid::kCellsPerDegree;
            const double xa =
                s.x1 + (std::clamp(bottom, std::min(s.y1, s.y2), std::max(s.y1, s.y2)) - s.y1) * slope;
            const double xb =
                s.x1 + (std::clamp(top, std::min(s.y1, s.y2), std::max(s.y1, s.y2)) - s.y1) * slope;
            left = std::min(xa, xb);
            right = std::max(xa, xb);
        }
        const int columnLast = LandGrid::ColumnOf(right + 1e-9);
        for (int column = LandGrid::ColumnOf(left - 1e-9); column <= columnLast; ++column) {
            if (visit(column, row)) {
                return;
            }
        }
    }
}

}  // namespace Tarvik::Server
