// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/BaseLayer.h"

#include <QPainter>
#include <cmath>

#include "host/plugins/seamap/core/Graticule.h"
#include "host/plugins/seamap/core/PolylineClip.h"
#include "host/plugins/seamap/widget/CanvasPixels.h"

namespace Tarvik::Seamap {

namespace {

/// Shapes that reach further out of the window than this are cut before they are drawn.
constexpr double kFarOutside = 4000;
constexpr double kCutMargin = 16;
/// The net lies lightly over land and sea.
constexpr int kGraticuleAlpha = 150;
/// Pixels between points that are told apart.
constexpr double kCoastDetail = 1;
constexpr double kFillDetail = 0;  ///< leaving points out would tear open the seams between cells

bool IsSeen(const CoastData::Shape& shape, const MercatorView& view, int turn, const QRect& clip) {
    const PixelPoint upper = view.ToScreen(WorldPoint{shape.minX, shape.minY}, turn);
    const PixelPoint lower = view.ToScreen(WorldPoint{shape.maxX, shape.maxY}, turn);
    return lower.x >= clip.left() - 2 && upper.x <= clip.right() + 3 && lower.y >= clip.top() - 2 &&
           upper.y <= clip.bottom() + 3;
}

PixelRect PixelsOf(const QRect& rectangle, double scale) {
    return {int(std::floor(rectangle.left() * scale)), int(std::floor(rectangle.top() * scale)),
            int(std::ceil((rectangle.left() + rectangle.width()) * scale)),
            int(std::ceil((rectangle.top() + rectangle.height()) * scale))};
}

bool ReachesFar(const CoastData::Shape& shape, const MercatorView& view, int turn) {
    const PixelPoint upper = view.ToScreen(WorldPoint{shape.minX, shape.minY}, turn);
    const PixelPoint lower = view.ToScreen(WorldPoint{shape.maxX, shape.maxY}, turn);
    return upper.x < -kFarOutside || upper.y < -kFarOutside || lower.x > view.Width() + kFarOutside ||
           lower.y > view.Height() + kFarOutside;
}

}  // namespace

void BaseLayer::SetLand(CoastData land) {
    land_ = std::move(land);
    picture_ = QPixmap();
}

void BaseLayer::ShowGraticule(bool shown) {
    graticule_ = shown;
    picture_ = QPixmap();
}

const QPixmap& BaseLayer::Picture(const MercatorView& view, const ChartPalette& palette, qreal pixelRatio) {
    const QSize size = QSize(view.Width(), view.Height()) * pixelRatio;
    QRegion missing(0, 0, view.Width(), view.Height());
    const bool same = !picture_.isNull() && picture_.size() == size &&
                      picture_.devicePixelRatio() == pixelRatio && palette_ == &palette &&
                      view_.WorldSize() == view.WorldSize() && pixelRatio == std::floor(pixelRatio);
    if (!same) {
        if (picture_.size() != size) {
            picture_ = QPixmap(size);
        }
        picture_.setDevicePixelRatio(pixelRatio);
    } else if (!Shift(view, missing)) {
        return picture_;
    }
    view_ = view;
    palette_ = &palette;
    // The pixels are taken out of the picture and put back: nothing is copied, as nobody else has them.
    QImage canvas = picture_.toImage();
    picture_ = QPixmap();
    if (canvas.format() != QImage::Format_ARGB32_Premultiplied) {
        canvas.convertTo(QImage::Format_RGB32);
    }
    Draw(canvas, missing);
    picture_ = QPixmap::fromImage(std::move(canvas));
    return picture_;
}

bool BaseLayer::Shift(const MercatorView& view, QRegion& missing) {
    std::int64_t dx = view_.Left() - view.Left();
    // The corner is kept within one turn: the shorter way round is the one that was panned.
    if (dx > view.WorldSize() / 2) {
        dx -= view.WorldSize();
    }
    if (dx < -view.WorldSize() / 2) {
        dx += view.WorldSize();
    }
    const std::int64_t dy = view_.Top() - view.Top();
    if (dx == 0 && dy == 0) {
        return false;
    }
    if (std::abs(dx) >= view.Width() || std::abs(dy) >= view.Height()) {
        return true;
    }
    const int x = static_cast<int>(dx), y = static_cast<int>(dy);
    const int ratio = static_cast<int>(picture_.devicePixelRatio());
    picture_.scroll(x * ratio, y * ratio, picture_.rect());
    missing -= QRect(x, y, view.Width(), view.Height());
    return true;
}

void BaseLayer::Draw(QImage& canvas, const QRegion& region) {
    scale_ = canvas.devicePixelRatio();
    const PixelBoard board = BoardOf(canvas);
    QPainter painter(&canvas);
    for (const QRect& rectangle : region) {
        clip_ = rectangle;
        painter.setClipRect(rectangle);
        painter.fillRect(rectangle, QColor(palette_->sea));
        Plotter plotter(board, PixelsOf(rectangle, scale_));
        DrawLand(plotter);
        if (graticule_) {
            DrawGraticule(painter, rectangle);
        }
    }
}

void BaseLayer::DrawLand(Plotter& plotter) {
    if (land_.IsEmpty()) {
        return;
    }
    const CoastData::Level& level = land_.For(view_.WorldSize());
    DrawCells(plotter, level);
    DrawCoasts(plotter, level);
}

void BaseLayer::DrawCells(Plotter& plotter, const CoastData::Level& level) {
    for (const CoastData::Shape& shape : level.cells) {
        const auto turns = view_.TurnsOf(shape.minX, shape.maxX);
        for (int turn = turns.first; turn <= turns.last; ++turn) {
            if (!IsSeen(shape, view_, turn, clip_)) {
                continue;
            }
            Trace(level.PointsOf(shape), turn, kFillDetail);
            if (ReachesFar(shape, view_, turn)) {
                trace_ = ClipPolygon(std::move(trace_), view_.Width(), view_.Height(), kCutMargin);
            }
            Enlarge();
            plotter.Fill(trace_, OpaquePixel(palette_->land));
        }
    }
}

void BaseLayer::DrawCoasts(Plotter& plotter, const CoastData::Level& level) {
    for (const CoastData::Shape& shape : level.coasts) {
        const auto turns = view_.TurnsOf(shape.minX, shape.maxX);
        for (int turn = turns.first; turn <= turns.last; ++turn) {
            if (!IsSeen(shape, view_, turn, clip_)) {
                continue;
            }
            if (ReachesFar(shape, view_, turn)) {
                DrawLongCoast(plotter, level.PointsOf(shape), turn);
                continue;
            }
            Trace(level.PointsOf(shape), turn, kCoastDetail);
            Enlarge();
            plotter.Stroke(trace_, {OpaquePixel(palette_->coast)});
        }
    }
}

void BaseLayer::DrawLongCoast(Plotter& plotter, std::span<const WorldPoint> points, int turn) {
    for (PolylineRun& run : ClipPolyline(points, view_, turn, kCutMargin, kCoastDetail)) {
        trace_ = std::move(run.points);
        Enlarge();
        plotter.Stroke(trace_, {OpaquePixel(palette_->coast)});
    }
}

void BaseLayer::Trace(std::span<const WorldPoint> points, int turn, double detail) {
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

void BaseLayer::Enlarge() {
    if (scale_ != 1) {
        for (PixelPoint& point : trace_) {
            point = {point.x * scale_, point.y * scale_};
        }
    }
}

void BaseLayer::DrawGraticule(QPainter& painter, const QRect& bounds) const {
    const Graticule net(view_);
    painter.setRenderHint(QPainter::Antialiasing, false);
    QColor colour(palette_->graticule);
    colour.setAlpha(kGraticuleAlpha);
    painter.setPen(QPen(colour, 0));
    for (const GraticuleLine& line : net.Meridians()) {
        const int x = static_cast<int>(std::lround(line.pixel));
        painter.drawLine(x, bounds.top(), x, bounds.bottom());
    }
    for (const GraticuleLine& line : net.Parallels()) {
        const int y = static_cast<int>(std::lround(line.pixel));
        painter.drawLine(bounds.left(), y, bounds.right(), y);
    }
}

}  // namespace Tarvik::Seamap
