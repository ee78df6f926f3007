// SPDX-License-Identifier: MIT
// What of lines and areas is seen in the window: lines cut at the widened window segment by segment (Liang
// and Barsky 1984), areas side by side (Sutherland and Hodgman 1974). Points nearer than the detail to the
// last one kept are left out on the way, the length of what was left out still counts, so that dashes and
// marks stay where they are when the view moves. Cost: one pass over the points of a line, four over those of
// an area.
#include "host/plugins/seamap/core/PolylineClip.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace Tarvik::Seamap {

namespace {

struct Box {
    double left, top, right, bottom;
};

double Distance(PixelPoint a, PixelPoint b) {
    return std::sqrt((a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y));
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
    PixelPoint last = view.ToScreen(points[0], turn);
    for (std::size_t i = 1; i < points.size(); ++i) {
        const PixelPoint here = view.ToScreen(points[i], turn);
        const double step = Distance(last, here);
        if (step < detail && i + 1 < points.size()) {
            continue;
        }
        const auto [from, to] = InsideShares(last, here, box);
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
