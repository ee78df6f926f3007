// SPDX-License-Identifier: MIT
// What the index of the coast answers. A way meets the coast where a piece of it and a piece of the coast
// have their ends on different sides of each other; only pieces in the cells that the way passes are looked
// at, and none where the degrees that it passes have no coast. A place lies on land when a line from it to
// the north crosses the coast an odd number of times (the even-odd rule, Shimrat 1962). How near a way comes
// is reckoned in the plane at the place. Cost: a way the cells that it passes with the few pieces in each, a
// place the cells to its north.
#include "host/geo/LandIndex.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/geo/Sphere.h"

namespace Tarvik::Server {

namespace {

using Degrees = DegreeGrid<1>;

double Side(const CoastPiece& line, double px, double py) {
    return (line.x2 - line.x1) * (py - line.y1) - (line.y2 - line.y1) * (px - line.x1);
}

/// Square of the distance in NM of a place from a piece, in the plane at the place.
double SquareOff(const CoastPiece& s, double px, double py, double shrink) {
    const double ux = (s.x2 - s.x1) * shrink;
    const double uy = s.y2 - s.y1;
    const double wx = (px - s.x1) * shrink;
    const double wy = py - s.y1;
    const double square = ux * ux + uy * uy;
    const double t = square == 0.0 ? 0.0 : std::clamp((ux * wx + uy * wy) / square, 0.0, 1.0);
    const double dx = (wx - t * ux) * kNmPerDegree;
    const double dy = (wy - t * uy) * kNmPerDegree;
    return dx * dx + dy * dy;
}

/// Notes the degrees of whose cells one has items.
void NoteBusy(const CoastCells& cells, std::vector<std::uint8_t>& busy) {
    constexpr int kPart = LandGrid::kCellsPerDegree;
    for (int row = 0; row < LandGrid::kRows; ++row) {
        std::uint8_t* notes = busy.data() + static_cast<std::ptrdiff_t>(row / kPart) * Degrees::kColumns;
        const std::uint32_t* start = cells.start.View().data() + CellOf(0, row);
        for (int column = 0; column < Degrees::kColumns; ++column) {
            notes[column] |= start[kPart * (column + 1)] != start[kPart * column] ? 1 : 0;
        }
    }
}

}  // namespace

LandIndex::LandIndex(LandTables tables) : tables_(std::move(tables)) {
    if (!tables_.cells.start.Empty()) {
        busy_.assign(static_cast<std::size_t>(Degrees::kColumns) * Degrees::kRows, 0);
        NoteBusy(tables_.cells, busy_);
        NoteBusy(tables_.near, busy_);
    }
}

bool LandIndex::MayMeet(const CoastPiece& s) const {
    constexpr double kRounding = 1e-6;
    const int columnFirst = Degrees::ColumnOf(std::min(s.x1, s.x2) - kRounding);
    const int columnLast = Degrees::ColumnOf(std::max(s.x1, s.x2) + kRounding);
    const int rowLast = Degrees::RowOf(std::max(s.y1, s.y2) + kRounding);
    for (int row = Degrees::RowOf(std::min(s.y1, s.y2) - kRounding); row <= rowLast; ++row) {
        for (int column = columnFirst; column <= columnLast; ++column) {
            if (busy_[static_cast<std::size_t>(row) * Degrees::kColumns + static_cast<std::size_t>(column)] !=
                0) {
                return true;
            }
        }
    }
    return false;
}

bool LandIndex::CellBlocks(int column, int row, const CoastPiece& s) const {
    const std::size_t cell = CellOf(column, row);
    for (std::uint32_t k = tables_.cells.start[cell]; k < tables_.cells.start[cell + 1]; ++k) {
        const CoastPiece& o = tables_.pieces[tables_.cells.items[k]];
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

bool LandIndex::CellGrazes(int column, int row, const CoastPiece& s, double nm) const {
    const std::size_t cell = CellOf(column, row);
    const double shrink = std::cos(0.5 * (s.y1 + s.y2) * kDegree);
    const double rise = nm / kNmPerDegree;
    const double north = std::max(s.y1, s.y2) + rise;
    const double south = std::min(s.y1, s.y2) - rise;
    for (std::uint32_t k = tables_.near.start[cell]; k < tables_.near.start[cell + 1]; ++k) {
        CoastPiece o = tables_.pieces[tables_.near.items[k]];
        if (std::min(o.y1, o.y2) > north || std::max(o.y1, o.y2) < south) {
            continue;
        }
        const double shift = 360.0 * std::round((s.x1 - o.x1) / 360.0);
        o.x1 += shift;
        o.x2 += shift;
        const double wide = rise / shrink;
        if (std::min(o.x1, o.x2) > std::max(s.x1, s.x2) + wide ||
            std::max(o.x1, o.x2) < std::min(s.x1, s.x2) - wide) {
            continue;
        }
        if (SquareOff(s, o.x1, o.y1, shrink) < nm * nm || SquareOff(o, s.x1, s.y1, shrink) < nm * nm ||
            SquareOff(o, s.x2, s.y2, shrink) < nm * nm) {
            return true;
        }
    }
    return false;
}

bool LandIndex::Walk(const CoastPiece& s) const {
    if (!MayMeet(s)) {
        return false;
    }
    bool blocked = false;
    VisitCells(s, [&](int column, int row) { return blocked = CellBlocks(column, row, s); });
    return blocked;
}

bool LandIndex::WalkNear(const CoastPiece& s, double nm) const {
    if (!MayMeet(s)) {
        return false;
    }
    bool grazes = false;
    VisitCells(s, [&](int column, int row) { return grazes = CellGrazes(column, row, s, nm); });
    return grazes;
}

template <typename Walker>
bool LandIndex::OverDateLine(GeoPoint a, GeoPoint b, Walker walk) {
    const double shift = 360.0 * std::floor((a.x + 180.0) / 360.0);
    a.x -= shift;
    b.x -= shift;
    if (b.x >= -180.0 && b.x <= 180.0) {
        return walk(CoastPiece{a.x, a.y, b.x, b.y});
    }
    const double border = b.x > 180.0 ? 180.0 : -180.0;
    const double y = LatitudeAt(border, a, b);
    return walk(CoastPiece{a.x, a.y, border, y}) || walk(CoastPiece{-border, y, b.x - 2.0 * border, b.y});
}

bool LandIndex::BlocksStraight(GeoPoint a, GeoPoint b) const {
    return !tables_.cells.start.Empty() &&
           OverDateLine(a, b, [this](const CoastPiece& s) { return Walk(s); });
}

bool LandIndex::Grazes(GeoPoint a, GeoPoint b, double nm, double trimNm) const {
    const double whole = ArcNm(a, b);
    if (tables_.cells.start.Empty() || whole <= 2.0 * trimNm) {
        return false;
    }
    const std::vector<GeoPoint> points =
        GreatCircle(Between(a, b, trimNm / whole), Between(a, b, 1.0 - trimNm / whole));
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (OverDateLine(points[i - 1], points[i], [&](const CoastPiece& s) { return WalkNear(s, nm); })) {
            return true;
        }
    }
    return false;
}

bool LandIndex::Blocks(GeoPoint a, GeoPoint b) const {
    return Blocks(GreatCircle(a, b));
}

bool LandIndex::Blocks(const std::vector<GeoPoint>& way) const {
    for (std::size_t i = 1; i < way.size(); ++i) {
        if (BlocksStraight(way[i - 1], way[i])) {
            return true;
        }
    }
    return false;
}

bool LandIndex::IsLand(GeoPoint p) const {
    if (tables_.cells.start.Empty()) {
        return false;
    }
    p.x = WrapLongitude(p.x);
    const int column = LandGrid::ColumnOf(p.x);
    bool inside = false;
    for (int row = LandGrid::RowOf(p.y); row < LandGrid::kRows; ++row) {
        const std::size_t cell = CellOf(column, row);
        for (std::uint32_t k = tables_.cells.start[cell]; k < tables_.cells.start[cell + 1]; ++k) {
            if (tables_.cells.items[k] >= tables_.landPieces) {
                continue;
            }
            const CoastPiece& o = tables_.pieces[tables_.cells.items[k]];
            if ((o.x1 <= p.x) == (o.x2 <= p.x)) {
                continue;
            }
            const double y = o.y1 + (p.x - o.x1) / (o.x2 - o.x1) * (o.y2 - o.y1);
            if (y > p.y && LandGrid::RowOf(y) == row) {
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
