// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/HitTest.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "host/plugins/seamap/core/PolylineClip.h"

namespace Tarvik::Seamap {

double DistanceToSegment(PixelPoint point, PixelPoint from, PixelPoint to) {
    const double dx = to.x - from.x, dy = to.y - from.y;
    const double square = dx * dx + dy * dy;
    double share = 0;
    if (square > 0) {
        share = std::clamp(((point.x - from.x) * dx + (point.y - from.y) * dy) / square, 0.0, 1.0);
    }
    return std::hypot(point.x - from.x - share * dx, point.y - from.y - share * dy);
}

std::size_t LegNear(const ChartLine& line, PixelPoint pixel, const MercatorView& view) {
    std::size_t leg = 1;
    double nearest = std::numeric_limits<double>::infinity();
    const auto turns = view.TurnsOf(line.minX, line.maxX, line.width);
    for (int turn = turns.first; turn <= turns.last; ++turn) {
        for (std::size_t i = 1; i < line.points.size(); ++i) {
            const double away = DistanceToSegment(pixel, view.ToScreen(line.points[i - 1], turn),
                                                  view.ToScreen(line.points[i], turn));
            if (away < nearest) {
                nearest = away;
                leg = i;
            }
        }
    }
    return leg;
}

const ChartObject* HitTest::At(PixelPoint pixel) const {
    const ChartObject* best = nullptr;
    double nearest = kTolerance;
    bool bestIsLine = true;
    for (const auto& [place, object] : objects_.InOrder()) {
        const bool line = std::holds_alternative<ChartLine>(object.shape);
        if (line && !bestIsLine) {
            continue;
        }
        const double away =
            std::visit([&](const auto& shape) { return Distance(shape, pixel); }, object.shape);
        if (away > kTolerance || (line == bestIsLine && away > nearest)) {
            continue;
        }
        best = &object;
        nearest = away;
        bestIsLine = line;
    }
    return best;
}

double HitTest::Distance(const ChartLine& line, PixelPoint pixel) const {
    double nearest = std::numeric_limits<double>::infinity();
    const int reach = static_cast<int>(kTolerance) + line.width;
    const auto turns = view_.TurnsOf(line.minX, line.maxX, reach);
    for (int turn = turns.first; turn <= turns.last; ++turn) {
        for (const PolylineRun& run : ClipPolyline(line.points, view_, turn, reach, 0.5)) {
            for (std::size_t i = 1; i < run.points.size(); ++i) {
                nearest = std::min(nearest, DistanceToSegment(pixel, run.points[i - 1], run.points[i]));
            }
        }
    }
    return std::max(nearest - line.width / 2.0, 0.0);
}

double HitTest::Distance(const ChartLabel& label, PixelPoint pixel) const {
    const PixelPoint centre = view_.ToScreen(label.position);
    return std::max(std::hypot(centre.x - pixel.x, centre.y - pixel.y) - label.size, 0.0);
}

double HitTest::Distance(const ChartImage& image, PixelPoint pixel) const {
    const PixelPoint centre = view_.ToScreen(image.position);
    const PixelPoint half = halfSize_(image.image);
    const double dx = std::max(std::fabs(centre.x - pixel.x) - half.x, 0.0);
    const double dy = std::max(std::fabs(centre.y - pixel.y) - half.y, 0.0);
    return std::hypot(dx, dy);
}

}  // namespace Tarvik::Seamap
