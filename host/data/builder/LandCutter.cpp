// SPDX-License-Identifier: MIT
// Land as the chart paints it: polygons cut into cells of few points. A polygon with its holes becomes one
// ring over slits, laid open at the date line, and is halved across its longer side until it is small, each
// half by the method of Sutherland and Hodgman (1974). What runs along a cut is slimmed away, or a ragged
// coast would never get small. Cost: points times the logarithm of points over those of a cell.
#include <algorithm>
#include <cmath>

#include "host/data/builder/Land.h"

namespace Tarvik::Data {

namespace {

enum class Axis { X, Y };

double Coordinate(GeoPoint p, Axis axis) {
    return axis == Axis::X ? p.x : p.y;
}

/// A clipped ring without repeated points and without points that only run along the cut line, or the cells
/// of a ragged coast never become small.
Ring Slimmed(const Ring& ring, Axis axis, double line) {
    Ring single;
    for (const GeoPoint p : ring) {
        if (single.empty() || !(single.back() == p)) {
            single.push_back(p);
        }
    }
    while (single.size() > 1 && single.front() == single.back()) {
        single.pop_back();
    }
    Ring slim;
    for (std::size_t i = 0; i < single.size(); ++i) {
        const GeoPoint before = slim.empty() ? single.back() : slim.back();
        const GeoPoint after = single[(i + 1) % single.size()];
        const bool along = Coordinate(before, axis) == line && Coordinate(single[i], axis) == line &&
                           Coordinate(after, axis) == line;
        if (!along) {
            slim.push_back(single[i]);
        }
    }
    return slim;
}

/// The part of a ring on one side of a line (the method of Sutherland and Hodgman).
Ring Clip(const Ring& ring, Axis axis, double line, bool keepAbove) {
    Ring out;
    const auto inside = [&](GeoPoint p) {
        return keepAbove ? Coordinate(p, axis) >= line : Coordinate(p, axis) <= line;
    };
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const GeoPoint a = ring[i];
        const GeoPoint b = ring[(i + 1) % ring.size()];
        if (inside(a)) {
            out.push_back(a);
        }
        if (inside(a) == inside(b)) {
            continue;
        }
        const double t = (line - Coordinate(a, axis)) / (Coordinate(b, axis) - Coordinate(a, axis));
        GeoPoint at{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
        (axis == Axis::X ? at.x : at.y) = line;
        out.push_back(at);
    }
    return Slimmed(out, axis, line);
}

/// Longitudes that run on past ±180, so that neighbours are close. A ring around the pole gets its polar
/// edge.
Ring Unwrap(const Ring& ring) {
    Ring out;
    for (const GeoPoint p : ring) {
        const double shift = out.empty() ? 0.0 : 360.0 * std::round((out.back().x - p.x) / 360.0);
        out.push_back({p.x + shift, p.y});
    }
    const double around = 360.0 * std::round((out.back().x - out.front().x) / 360.0);
    if (around == 0.0) {
        return out;
    }
    const GeoPoint first = out.front();
    out.push_back({first.x + around, first.y});
    out.push_back({first.x + around, -90.0});
    out.push_back({first.x, -90.0});
    return out;
}

/// The outer ring and its holes as one ring. The slits to the holes are run both ways, so they cover no area.
Ring WithHoles(const Polygon& polygon) {
    Ring ring = Unwrap(polygon.front());
    const GeoPoint anchor = ring.front();
    for (std::size_t i = 1; i < polygon.size(); ++i) {
        Ring hole = Unwrap(polygon[i]);
        const double shift = 360.0 * std::round((anchor.x - hole.front().x) / 360.0);
        for (GeoPoint& p : hole) {
            p.x += shift;
        }
        ring.push_back(anchor);
        ring.insert(ring.end(), hole.begin(), hole.end());
        ring.push_back(hole.front());
    }
    return ring;
}

void Box(const Ring& ring, GeoPoint& low, GeoPoint& high) {
    low = high = ring.front();
    for (const GeoPoint p : ring) {
        low = {std::min(low.x, p.x), std::min(low.y, p.y)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y)};
    }
}

LandFile::Cell ToCell(const Ring& ring) {
    LandFile::Cell cell;
    for (const GeoPoint p : ring) {
        const std::pair<float, float> point(static_cast<float>(p.x), static_cast<float>(p.y));
        if (cell.points.empty() || cell.points.back() != point) {
            cell.points.push_back(point);
        }
    }
    cell.Measure();
    return cell;
}

void Cut(const Ring& ring, std::vector<LandFile::Cell>& out) {
    if (ring.size() < 3) {
        return;
    }
    GeoPoint low;
    GeoPoint high;
    Box(ring, low, high);
    if (low.x == high.x || low.y == high.y) {
        return;
    }
    if (ring.size() <= LandFile::kMaxPoints) {
        out.push_back(ToCell(ring));
        return;
    }
    const Axis axis = high.x - low.x >= high.y - low.y ? Axis::X : Axis::Y;
    const double line = 0.5 * (Coordinate(low, axis) + Coordinate(high, axis));
    Cut(Clip(ring, axis, line, false), out);
    Cut(Clip(ring, axis, line, true), out);
}

void AddCoast(const Ring& ring, std::vector<LandFile::Cell>& out) {
    Ring line;
    const auto flush = [&] {
        if (line.size() > 1) {
            out.push_back(ToCell(line));
        }
    };
    for (std::size_t i = 0; i <= ring.size(); ++i) {
        const GeoPoint p = ring[i % ring.size()];
        // A step over the date line ends a line: both its ends lie on the date line or next to it.
        const bool step = !line.empty() && std::abs(p.x - line.back().x) > 180.0;
        const bool alongLine = !line.empty() && std::abs(p.x) == 180.0 && std::abs(line.back().x) == 180.0;
        const bool full = line.size() == LandFile::kMaxPoints;
        if (step || alongLine || full) {
            flush();
            line = full && !step && !alongLine ? Ring{line.back()} : Ring{};
        }
        line.push_back(p);
    }
    flush();
}

}  // namespace

std::vector<LandFile::Cell> CutIntoCells(const std::vector<Polygon>& land) {
    std::vector<LandFile::Cell> cells;
    for (const Polygon& polygon : land) {
        const Ring whole = WithHoles(polygon);
        for (const double turn : {-360.0, 0.0, 360.0}) {
            Ring ring = whole;
            for (GeoPoint& p : ring) {
                p.x += turn;
            }
            GeoPoint low;
            GeoPoint high;
            Box(ring, low, high);
            if (high.x <= -180.0 || low.x >= 180.0) {
                continue;
            }
            if (low.x < -180.0) {
                ring = Clip(ring, Axis::X, -180.0, true);
            }
            if (high.x > 180.0) {
                ring = Clip(ring, Axis::X, 180.0, false);
            }
            Cut(ring, cells);
        }
    }
    return cells;
}

std::vector<LandFile::Cell> CutIntoCoasts(const std::vector<Polygon>& land) {
    std::vector<LandFile::Cell> coasts;
    for (const Polygon& polygon : land) {
        for (const Ring& ring : polygon) {
            AddCoast(ring, coasts);
        }
    }
    return coasts;
}

}  // namespace Tarvik::Data
