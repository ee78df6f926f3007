// SPDX-License-Identifier: MIT
#include "host/geo/LandIndex.h"

#include <algorithm>
#include <cmath>

#include "host/geo/Sphere.h"

namespace Tarvik::Server {

namespace {

using Grid = DegreeGrid<4>;

std::size_t CellOf(int column, int row) {
    return static_cast<std::size_t>(row) * Grid::kColumns + static_cast<std::size_t>(column);
}

template <class Segment>
double Side(const Segment& line, double px, double py) {
    return (line.x2 - line.x1) * (py - line.y1) - (line.y2 - line.y1) * (px - line.x1);
}

double CrossingAt180(GeoPoint a, GeoPoint b, double border) {
    const double t = (border - a.x) / (b.x - a.x);
    return a.y + t * (b.y - a.y);
}

}  // namespace

LandIndex::LandIndex(const std::vector<std::vector<GeoPoint>>& rings) {
    std::size_t total = 0;
    for (const auto& ring : rings) {
        total += ring.size();
    }
    segments_.reserve(total + rings.size());
    for (const auto& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            AddSegment(ring[i], ring[(i + 1) % ring.size()]);
        }
    }
    FillCells();
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

template <typename Visit>
void LandIndex::VisitCells(const Segment& s, Visit visit) const {
    const int rowFirst = Grid::RowOf(std::min(s.y1, s.y2));
    const int rowLast = Grid::RowOf(std::max(s.y1, s.y2));
    const double slope = s.y2 == s.y1 ? 0.0 : (s.x2 - s.x1) / (s.y2 - s.y1);
    for (int row = rowFirst; row <= rowLast; ++row) {
        double left = std::min(s.x1, s.x2);
        double right = std::max(s.x1, s.x2);
        if (rowFirst != rowLast) {
            const double bottom = static_cast<double>(row) / Grid::kCellsPerDegree - 90.0;
            const double top = bottom + 1.0 / Grid::kCellsPerDegree;
            const double xa =
                s.x1 + (std::clamp(bottom, std::min(s.y1, s.y2), std::max(s.y1, s.y2)) - s.y1) * slope;
            const double xb =
                s.x1 + (std::clamp(top, std::min(s.y1, s.y2), std::max(s.y1, s.y2)) - s.y1) * slope;
            left = std::min(xa, xb);
            right = std::max(xa, xb);
        }
        const int columnLast = Grid::ColumnOf(right + 1e-9);
        for (int column = Grid::ColumnOf(left - 1e-9); column <= columnLast; ++column) {
            if (visit(column, row)) {
                return;
            }
        }
    }
}

void LandIndex::FillCells() {
    cellStart_.assign(static_cast<std::size_t>(Grid::kColumns) * Grid::kRows + 1, 0);
    for (const Segment& s : segments_) {
        VisitCells(s, [this](int column, int row) {
            ++cellStart_[CellOf(column, row) + 1];
            return false;
        });
    }
    for (std::size_t i = 1; i < cellStart_.size(); ++i) {
        cellStart_[i] += cellStart_[i - 1];
    }
    cellItems_.resize(cellStart_.back());
    std::vector<std::uint32_t> next(cellStart_.begin(), cellStart_.end() - 1);
    for (std::uint32_t i = 0; i < segments_.size(); ++i) {
        VisitCells(segments_[i], [&](int column, int row) {
            cellItems_[next[CellOf(column, row)]++] = i;
            return false;
        });
    }
}

bool LandIndex::CellBlocks(int column, int row, const Segment& s) const {
    const std::size_t cell = CellOf(column, row);
    for (std::uint32_t k = cellStart_[cell]; k < cellStart_[cell + 1]; ++k) {
        const Segment& o = segments_[cellItems_[k]];
        if (std::max(o.x1, o.x2) < std::min(s.x1, s.x2) || std::min(o.x1, o.x2) > std::max(s.x1, s.x2)) {
            continue;
        }
        if (std::max(o.y1, o.y2) < std::min(s.y1, s.y2) || std::min(o.y1, o.y2) > std::max(s.y1, s.y2)) {
            continue;
        }
        const double d1 = Side(s, o.x1, o.y1);
        const double d2 = Side(s, o.x2, o.y2);
        const double d3 = Side(o, s.x1, s.y1);
        const double d4 = Side(o, s.x2, s.y2);
        if (d1 * d2 <= 0.0 && d3 * d4 <= 0.0) {
            return true;
        }
    }
    return false;
}

bool LandIndex::Walk(const Segment& s) const {
    bool blocked = false;
    VisitCells(s, [&](int column, int row) { return blocked = CellBlocks(column, row, s); });
    return blocked;
}

bool LandIndex::BlocksStraight(GeoPoint a, GeoPoint b) const {
    if (cellStart_.empty()) {
        return false;
    }
    const double shift = 360.0 * std::floor((a.x + 180.0) / 360.0);
    a.x -= shift;
    b.x -= shift;
    if (b.x >= -180.0 && b.x <= 180.0) {
        return Walk({a.x, a.y, b.x, b.y});
    }
    const double border = b.x > 180.0 ? 180.0 : -180.0;
    const double y = CrossingAt180(a, b, border);
    return Walk({a.x, a.y, border, y}) || Walk({-border, y, b.x - 2.0 * border, b.y});
}

bool LandIndex::Blocks(GeoPoint a, GeoPoint b) const {
    const std::vector<GeoPoint> points = GreatCircle(a, b);
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (BlocksStraight(points[i - 1], points[i])) {
            return true;
        }
    }
    return false;
}

bool LandIndex::IsLand(GeoPoint p) const {
    if (cellStart_.empty()) {
        return false;
    }
    p.x = WrapLongitude(p.x);
    const int column = Grid::ColumnOf(p.x);
    bool inside = false;
    for (int row = Grid::RowOf(p.y); row < Grid::kRows; ++row) {
        const std::size_t cell = CellOf(column, row);
        for (std::uint32_t k = cellStart_[cell]; k < cellStart_[cell + 1]; ++k) {
            const Segment& o = segments_[cellItems_[k]];
            if ((o.x1 <= p.x) == (o.x2 <= p.x)) {
                continue;
            }
            const double y = o.y1 + (p.x - o.x1) / (o.x2 - o.x1) * (o.y2 - o.y1);
            if (y > p.y && Grid::RowOf(y) == row) {
                inside = !inside;
            }
        }
    }
    return inside;
}

bool LandIndex::IsClear(GeoPoint p, double nm) const {
    for (int i = 0; i < 12; ++i) {
        GeoPoint end = Destination(p, i * 30.0, nm);
        end.x += 360.0 * std::round((p.x - end.x) / 360.0);
        if (BlocksStraight(p, end)) {
            return false;
        }
    }
    return true;
}

}  // namespace Tarvik::Server
