// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>

#include "host/geo/GeoPoint.h"

/// The cells of a quarter degree in which LandIndex keeps the pieces of the coast, for its making and its
/// answers.
namespace Tarvik::Server {

using LandGrid = DegreeGrid<4>;

/// A cell's number, row after row.
inline std::size_t CellOf(int column, int row) {
    return static_cast<std::size_t>(row) * LandGrid::kColumns + static_cast<std::size_t>(column);
}

/// Latitude at which a step from a to b passes the longitude `border`.
inline double CrossingAt180(GeoPoint a, GeoPoint b, double border) {
    const double t = (border - a.x) / (b.x - a.x);
    return a.y + t * (b.y - a.y);
}

/// Calls `visit` with the column and row of each cell that the segment touches, until it says true.
template <class Segment, class Visit>
void VisitCells(const Segment& s, Visit visit) {
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
