// SPDX-License-Identifier: MIT
// What of lines and areas is seen in the window: lines cut at the widened window segment by segment (Liang
// and Barsky 1984), areas side by side (Sutherland and Hodgman 1974). Points nearer than the detail to the
// last one kept are left out on the way, the length of what was left out still counts, so that dashes and
// marks stay where they are when the view moves. Lines are straightened with a cone from the last point kept
// that each further point narrows (Sklansky and Gonzalez 1980). Cost: one pass over the points of a line,
// four over those of an area.
#include "host/plugins/seamap/core/PolylineClip.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace Tarvik::Seamap {

namespace {

struct Box {
    double left, top, right, bottom;
};

double SquaredDistance(PixelPoint a, PixelPoint b) {
    return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

bool Holds(const Box& box, PixelPoint point) {
    return point.x >= box.left && point.x <= box.right && point.y >= box.top && point.y <= box.bottom;
}

/// The part of the segment inside the box as shares of its length (the Liang and Barsky way); first > second:
/// none.
std::pair<double, double> InsideShares(PixelPoint a, PixelPoint b, const Box& box) {
    double from = 0, to = 1;
    const auto cut = [&](double direction, double room) {
        if (direction == 0) {
            if (room < 0) {
                from = 2;
            }
        } else if (direction < 0) {
            from = std::max(from, room / direction);
        } else {
            to = std::min(to, room / direction);
        }
    };
    cut(a.x - b.x, a.x - box.left);
    cut(b.x - a.x, box.right - a.x);
    cut(a.y - b.y, a.y - box.top);
    cut(b.y - a.y, box.bottom - a.y);
    return {from, to};
}

PixelPoint Between(PixelPoint a, PixelPoint b, double share) {
    return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
}

/// One step of polygon cutting: keeps the side on which `room` is not negative.
template <class Room>
std::vector<PixelPoint> CutSide(const std::vector<PixelPoint>& points, Room room) {
    std::vector<PixelPoint> kept;
    kept.reserve(points.size() + 4);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const PixelPoint& here = points[i];
        const PixelPoint& before = points[i == 0 ? points.size() - 1 : i - 1];
        const double roomHere = room(here), roomBefore = room(before);
        if ((roomHere >= 0) != (roomBefore >= 0)) {
            kept.push_back(Between(before, here, roomBefore / (roomBefore - roomHere)));
        }
        if (roomHere >= 0) {
            kept.push_back(here);
        }
    }
    return kept;
}

}  // namespace

std::vector<PolylineRun> ClipPolyline(std::span<const WorldPoint> points, const MercatorView& view, int turn,
                                      double margin, double detail) {
    const Box box{-margin, -margin, view.Width() + margin, view.Height() + margin};
    std::vector<PolylineRun> runs;
    if (points.size() < 2) {
        return runs;
    }
    bool open = false;
    double length = 0;
    const auto size = static_cast<double>(view.WorldSize());
    const double left = static_cast<double>(view.Left()) - turn * size;
    const auto top = static_cast<double>(view.Top());
    PixelPoint last{points[0].x * size - left, points[0].y * size - top};
    bool inside = Holds(box, last);
    for (std::size_t i = 1; i < points.size(); ++i) {
        const PixelPoint here{points[i].x * size - left, points[i].y * size - top};
        const double squared = SquaredDistance(last, here);
        if (squared < detail * detail && i + 1 < points.size()) {
            continue;
        }
        const double step = std::sqrt(squared);
        const bool wasInside = std::exchange(inside, Holds(box, here));
        const auto [from, to] = inside && wasInside ? std::pair(0.0, 1.0) : InsideShares(last, here, box);
        if (from <= to) {
            if (!open || from > 0) {
                runs.push_back({{Between(last, here, from)}, length + step * from});
            }
            runs.back().points.push_back(Between(last, here, to));
        }
        open = from <= to && to >= 1;
        length += step;
        last = here;
    }
    return runs;
}

void Straighten(std::vector<PixelPoint>& line, double tolerance) {
    const auto cross = [](PixelPoint a, PixelPoint b) { return a.x * b.y - a.y * b.x; };
    std::size_t kept = 0;
    PixelPoint left, right;  // between these directions the line from the last kept point may go on
    double reach = 0;        // how far it has gone from there; it may not come back
    for (std::size_t i = 1; i < line.size(); ++i) {
        PixelPoint way{line[i].x - line[kept].x, line[i].y - line[kept].y};
        double length = std::sqrt(way.x * way.x + way.y * way.y);
        if (reach > 0 && (cross(right, way) < 0 || cross(way, left) < 0 || length + tolerance < reach)) {
            line[++kept] = line[i - 1];
            way = {line[i].x - line[kept].x, line[i].y - line[kept].y};
            length = std::sqrt(way.x * way.x + way.y * way.y);
            reach = 0;
        }
        if (length <= tolerance) {
            continue;
        }
        const PixelPoint aside{-way.y / length * tolerance, way.x / length * tolerance};
        const PixelPoint most{way.x + aside.x, way.y + aside.y};
        const PixelPoint least{way.x - aside.x, way.y - aside.y};
        left = reach == 0 || cross(most, left) > 0 ? most : left;
        right = reach == 0 || cross(right, least) > 0 ? least : right;
        reach = std::max(reach, length);
    }
    if (line.size() > 1) {
        line[++kept] = line.back();
        line.resize(kept + 1);
    }
}

std::vector<CourseMark> CourseMarks(const PolylineRun& run, double spacing) {
    constexpr double kDegreesPerRadian = 180 / std::numbers::pi;
    constexpr double kHalf = 0.5;
    std::vector<CourseMark> marks;
    double passed = run.start;
    double next = (std::ceil(passed / spacing - kHalf) + kHalf) * spacing;
    for (std::size_t i = 1; i < run.points.size(); ++i) {
        const double dx = run.points[i].x - run.points[i - 1].x;
        const double dy = run.points[i].y - run.points[i - 1].y;
        const double length = std::hypot(dx, dy);
        for (; length > 0 && next <= passed + length; next += spacing) {
            const double share = (next - passed) / length;
            marks.push_back({{run.points[i - 1].x + share * dx, run.points[i - 1].y + share * dy},
                             std::atan2(dx, -dy) * kDegreesPerRadian});
        }
        passed += length;
    }
    return marks;
}

std::vector<PixelPoint> ClipPolygon(std::vector<PixelPoint> points, double width, double height,
                                    double margin) {
    points = CutSide(points, [=](PixelPoint p) { return p.x + margin; });
    points = CutSide(points, [=](PixelPoint p) { return width + margin - p.x; });
    points = CutSide(points, [=](PixelPoint p) { return p.y + margin; });
    points = CutSide(points, [=](PixelPoint p) { return height + margin - p.y; });
    return points;
}

}  // namespace Tarvik::Seamap
