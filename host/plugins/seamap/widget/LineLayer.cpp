// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/LineLayer.h"

#include <QPainter>
#include <algorithm>

#include "host/plugins/seamap/widget/LinePainter.h"

namespace Tarvik::Seamap {

namespace {

/// All lines as they lie above one another: quiet ones below, the voyage that stands out above all.
std::vector<LineStroke> StrokesOf(const ChartObjects& objects) {
    std::vector<LineStroke> strokes;
    for (const auto& [place, object] : objects.InOrder()) {
        if (const auto* line = std::get_if<ChartLine>(&object.shape)) {
            strokes.push_back({line, objects.ToneOf(object.key)});
        }
    }
    const auto rank = [](const LineStroke& stroke) {
        return stroke.tone == ChartObjects::Tone::Quiet   ? 0
               : stroke.tone == ChartObjects::Tone::Plain ? 1
                                                          : 2;
    };
    std::stable_sort(strokes.begin(), strokes.end(),
                     [rank](const LineStroke& a, const LineStroke& b) { return rank(a) < rank(b); });
    return strokes;
}

}  // namespace

void LineLayer::Draw(QPainter& painter, const MercatorView& view, const ChartPalette& palette,
                     const ChartObjects& objects, const ObjectKey* highlighted) {
    const qreal pixelRatio = painter.device()->devicePixelRatioF();
    if (!IsGood(view, palette, objects, pixelRatio)) {
        view_ = view;
        palette_ = &palette;
        revision_ = objects.Revision();
        pixelRatio_ = pixelRatio;
        Make(objects, pixelRatio);
    }
    if (!picture_.isNull()) {
        painter.drawImage(0, 0, picture_);
    }
    const ChartObject* pointedAt = highlighted ? objects.Find(*highlighted) : nullptr;
    if (const auto* line = pointedAt ? std::get_if<ChartLine>(&pointedAt->shape) : nullptr) {
        LinePainter(view, palette).Draw(painter, {line, objects.ToneOf(*highlighted), true});
    }
}

bool LineLayer::IsGood(const MercatorView& view, const ChartPalette& palette, const ChartObjects& objects,
                       qreal pixelRatio) const {
    return made_ > 0 && view_ == view && palette_ == &palette && revision_ == objects.Revision() &&
           pixelRatio_ == pixelRatio;
}

void LineLayer::Make(const ChartObjects& objects, qreal pixelRatio) {
    ++made_;
    const std::vector<LineStroke> strokes = StrokesOf(objects);
    if (strokes.empty()) {
        picture_ = QImage();
        return;
    }
    const QSize size = (QSizeF(view_.Width(), view_.Height()) * pixelRatio).toSize();
    if (picture_.size() != size) {
        picture_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
    }
    picture_.setDevicePixelRatio(pixelRatio);
    picture_.fill(0);
    const LinePainter lines(view_, *palette_);
    const bool thin = strokes.size() >= kMany;
    QPainter painter(&picture_);
    for (const LineStroke& stroke : strokes) {
        if (thin && stroke.tone != ChartObjects::Tone::Loud) {
            lines.DrawThin(picture_, pixelRatio, stroke);
        } else {
            lines.Draw(painter, stroke);
        }
    }
}

}  // namespace Tarvik::Seamap
