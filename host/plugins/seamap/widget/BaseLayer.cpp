// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/BaseLayer.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

#include "host/plugins/seamap/core/Graticule.h"
#include "host/plugins/seamap/widget/Beside.h"
#include "host/plugins/seamap/widget/CanvasPixels.h"
#include "host/plugins/seamap/widget/LandPainter.h"

namespace Tarvik::Seamap {

namespace {

/// The net lies lightly over land and sea.
constexpr int kGraticuleAlpha = 150;
PixelRect PixelsOf(const QRect& rectangle, double scale) {
    return {int(std::floor(rectangle.left() * scale)), int(std::floor(rectangle.top() * scale)),
            int(std::ceil((rectangle.left() + rectangle.width()) * scale)),
            int(std::ceil((rectangle.top() + rectangle.height()) * scale))};
}

}  // namespace

void BaseLayer::SetLand(CoastData land) {
    land_ = std::move(land);
    coming_ = {};
    picture_ = QPixmap();
}

void BaseLayer::ShowGraticule(bool shown) {
    graticule_ = shown;
    picture_ = QPixmap();
}

const QPixmap& BaseLayer::Picture(const MercatorView& view, const ChartPalette& palette, qreal pixelRatio) {
    if (coming_.valid()) {
        SetLand(coming_.get());
    }
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
    const double scale = canvas.devicePixelRatio();
    const PixelBoard board = BoardOf(canvas);
    const CoastData::Level* land = land_.IsEmpty() ? nullptr : &land_.For(view_.WorldSize());
    for (const QRect& part : region) {
        const std::vector<PixelRect> bands = BandsOf(PixelsOf(part, scale));
        Beside::Each(bands.size(), [&](std::size_t band) {
            LandPainter(land, view_, *palette_, board, scale).Draw(bands[band]);
        });
    }
    if (graticule_) {
        QPainter painter(&canvas);
        for (const QRect& part : region) {
            painter.setClipRect(part);
            DrawGraticule(painter, part);
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
