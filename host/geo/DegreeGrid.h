// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

namespace Tarvik::Server {

/// The globe in square cells of degrees: columns count eastwards from 180 W, rows northwards from the south
/// pole. `CellsPerDegree` is the number of cells along a degree.
template <int CellsPerDegree>
struct DegreeGrid {
    static constexpr int kCellsPerDegree = CellsPerDegree;
    static constexpr int kColumns = 360 * CellsPerDegree;
    static constexpr int kRows = 180 * CellsPerDegree;

    /// Column of a longitude from -180 to 180 degrees; what lies outside belongs to the outermost column.
    static int ColumnOf(double x) {
        return std::clamp(static_cast<int>(std::floor((x + 180.0) * CellsPerDegree)), 0, kColumns - 1);
    }
    /// Row of a latitude; what lies outside belongs to the outermost row.
    static int RowOf(double y) {
        return std::clamp(static_cast<int>(std::floor((y + 90.0) * CellsPerDegree)), 0, kRows - 1);
    }
};

}  // namespace Tarvik::Server
