// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/LandPainter.h"

#include <algorithm>
#include <cmath>

#include "host/plugins/seamap/core/PolylineClip.h"
#include "host/plugins/seamap/widget/CanvasPixels.h"

namespace Tarvik::Seamap {

namespace {

/// Shapes that reach further out of the window than this are cut before they are drawn.
constexpr double kFarOutside = 4000;
constexpr double kCutMargin = 16;
/// Pixels between points that are told apart.
constexpr double kCoastDetail = 1;
constexpr double kFillDetail = 0;  ///< leaving points out would tear open the seams between cells

bool IsSeen(const CoastData::Shape& shape, const MercatorView& view, int turn, const QRect& clip) {
    const PixelPoint upper = view.ToScreen(WorldPoint{shape.minX, shape.minY}, turn);
    const PixelPoint lower = view.ToScreen(WorldPoint{shape.maxX, shape.maxY}, turn);
    return lower.x >= clip.left() - 2 && upper.x <= clip.right() + 3 && lower.y >= clip.top() - 2 &&
           upper.y <= clip.bottom() + 3;
}

/// The pixels of the window that a part of the picture touches.
QRect WindowOf(const PixelRect& part, double scale) {
    const QPoint from(int(std::floor(part.left / scale)), int(std::floor(part.top / scale)));
    return {from, QPoint(int(std::ceil(part.right / scale)), int(std::ceil(part.bottom / scale)))};
}

bool ReachesFar(const CoastData::Shape& shape, const MercatorView& view, int turn) {
    const PixelPoint upper = view.ToScreen(WorldPoint{shape.minX, shape.minY}, turn);
    const PixelPoint lower = view.ToScreen(WorldPoint{shape.maxX, shape.maxY}, turn);
    return upper.x < -kFarOutside || upper.y < -kFarOutside || lower.x > view.Width() + kFarOutside ||
           lower.y > view.Height() + kFarOutside;
}

}  // namespace

void LandPainter::Draw(const PixelRect& part) {
    clip_ = WindowOf(part, scale_);
    Plotter plotter(board_, part);
    plotter.Clear(OpaquePixel(palette_.sea));
    if (level_ != nullptr) {
        DrawCells(plotter);
        DrawCoasts(plotter);
    }
}

void LandPainter::DrawCells(Plotter& plotter) {
    for (const CoastData::Shape& shape : level_->cells) {
        const auto turns = view_.TurnsOf(shape.minX, shape.maxX);
        for (int turn = turns.first; turn <= turns.last; ++turn) {
            if (!IsSeen(shape, view_, turn, clip_)) {
                continue;
            }
            Trace(level_->PointsOf(shape), turn, kFillDetail);
            if (ReachesFar(shape, view_, turn)) {
                trace_ = ClipPolygon(std::move(trace_), view_.Width(), view_.Height(), kCutMargin);
            }
            Enlarge();
            plotter.Fill(trace_, OpaquePixel(palette_.land));
        }
    }
}

void LandPainter::DrawCoasts(Plotter& plotter) {
    for (const CoastData::Shape& shape : level_->coasts) {
        const auto turns = view_.TurnsOf(shape.minX, shape.maxX);
        for (int turn = turns.first; turn <= turns.last; ++turn) {
            if (!IsSeen(shape, view_, turn, clip_)) {
                continue;
            }
            if (ReachesFar(shape, view_, turn)) {
                DrawLongCoast(plotter, level_->PointsOf(shape), turn);
                continue;
            }
            Trace(level_->PointsOf(shape), turn, kCoastDetail);
            Enlarge();
            plotter.Stroke(trace_, {OpaquePixel(palette_.coast)});
        }
    }
}

void LandPainter::DrawLongCoast(Plotter& plotter, std::span<const WorldPoint> points, int turn) {
    for (PolylineRun& run : ClipPolyline(points, view_, turn, kCutMargin, kCoastDetail)) {
        trace_ = std::move(run.points);
        Enlarge();
        plotter.Stroke(trace_, {OpaquePixel(palette_.coast)});
    }
}

void LandPainter::Trace(std::span<const WorldPoint> points, int turn, double detail) {
    trace_.clear();
    const auto size = static_cast<double>(view_.WorldSize());
    const double left = static_cast<double>(view_.Left()) - turn * size;
    const auto top = static_cast<double>(view_.Top());
    const double least = detail * detail;
    PixelPoint last;
    for (const WorldPoint& point : points) {
        const PixelPoint here{point.x * size - left, point.y * size - top};
        const double x = here.x - last.x, y = here.y - last.y;
        if (!trace_.empty() && x * x + y * y < least && &point != &points.back()) {
            continue;
        }
        trace_.push_back(here);
        last = here;
    }
}

void LandPainter::Enlarge() {
    if (scale_ != 1) {
        for (PixelPoint& point : trace_) {
            point = {point.x * scale_, point.y * scale_};
        }
    }
}

}  // namespace Tarvik::Seamap
