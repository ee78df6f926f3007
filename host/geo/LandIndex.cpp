// SPDX-License-Identifier: MIT
// Making the index of the coast: a grid of cells of a quarter degree, each with the numbers of the pieces
// that touch it, in one table of all cells (counted first, then filled). A second table lists the pieces
// within the widest margin of a cell. Own data layout of the usual uniform grid. Cost: two passes over the
// cells of each piece, memory of a number for each of them and one for each cell. The answers are in
// LandQueries.cpp.
#include "host/geo/LandIndex.h"

#include <algorithm>
#include <cmath>

#include "host/geo/LandGrid.h"
#include "host/geo/Sphere.h"

namespace Tarvik::Server {

namespace {

/// Column of a longitude; those past ±180 run on.
int ColumnAt(double x) {
    return static_cast<int>(std::floor((x + 180.0) * LandGrid::kCellsPerDegree));
}

}  // namespace

/// A table of what `visitAll(i, visit)` visits for every i below `count`.
template <typename VisitAll>
LandIndex::CellTable LandIndex::TableOf(std::size_t count, VisitAll visitAll) {
    CellTable table;
    table.start.assign(static_cast<std::size_t>(LandGrid::kColumns) * LandGrid::kRows + 1, 0);
    for (std::uint32_t i = 0; i < count; ++i) {
        visitAll(i, [&](int column, int row) { ++table.start[CellOf(column, row) + 1]; });
    }
    for (std::size_t i = 1; i < table.start.size(); ++i) {
        table.start[i] += table.start[i - 1];
    }
    table.items.resize(table.start.back());
    std::vector<std::uint32_t> next(table.start.begin(), table.start.end() - 1);
    for (std::uint32_t i = 0; i < count; ++i) {
        visitAll(i, [&](int column, int row) { table.items[next[CellOf(column, row)]++] = i; });
    }
    return table;
}

LandIndex::LandIndex(const std::vector<std::vector<GeoPoint>>& rings,
                     const std::vector<std::vector<GeoPoint>>& areas) {
    std::size_t total = 0;
    for (const auto& ring : rings) {
        total += ring.size();
    }
    segments_.reserve(total + rings.size());
    AddRings(rings);
    landSegments_ = segments_.size();
    AddRings(areas);
    FillCells();
    FillNearCells();
}

void LandIndex::AddRings(const std::vector<std::vector<GeoPoint>>& rings) {
    for (const auto& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            AddSegment(ring[i], ring[(i + 1) % ring.size()]);
        }
    }
}

void LandIndex::AddSegment(GeoPoint a, GeoPoint b) {
    if (a == b) {
        return;
    }
    const double jump = b.x - a.x;
    if (std::abs(jump) <= 180.0) {
        segments_.push_back({a.x, a.y, b.x, b.y});
        return;
    }
    const double border = jump > 0 ? -180.0 : 180.0;
    const GeoPoint unwrapped{b.x - std::copysign(360.0, jump), b.y};
    const double y = unwrapped.x == a.x ? a.y : CrossingAt180(a, unwrapped, border);
    AddSegment(a, {border, y});
    AddSegment({-border, y}, b);
}

void LandIndex::FillCells() {
    cells_ = TableOf(segments_.size(), [this](std::uint32_t i, const auto& visit) {
        VisitCells(segments_[i], [&](int column, int row) {
            visit(column, row);
            return false;
        });
    });
}

void LandIndex::FillNearCells() {
    constexpr double kRise = kMaxMarginNm / kNmPerDegree;
    near_ = TableOf(landSegments_, [this](std::uint32_t i, const auto& visit) {
        const Segment& s = segments_[i];
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
    });
}

}  // namespace Tarvik::Server
