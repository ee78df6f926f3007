// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/LineLayer.h"

#include <QPainter>
#include <algorithm>

#include "host/plugins/seamap/widget/LinePainter.h"

namespace Tarvik::Seamap {

void LineLayer::ShowTints(bool shown) {
    tints_ = shown;
}

LineStroke LineLayer::StrokeOf(const ChartObjects& objects, const ChartObject& object,
                               const ChartLine& line) const {
    LineStroke stroke{&line, objects.ToneOf(object.key)};
    const VoyagePlan* plan = tints_ ? objects.Plans().Find(object.key.layer, object.key.id) : nullptr;
    if (plan != nullptr) {
        stroke.tint = Skin::TintOf(plan->tint, palette_->theme);
    }
    return stroke;
}

/// All lines as they lie above one another: quiet ones below, the voyage that stands out above all.
std::vector<LineStroke> LineLayer::StrokesOf(const ChartObjects& objects) const {
    std::vector<LineStroke> strokes;
    for (const auto& [place, object] : objects.InOrder()) {
        if (const auto* line = std::get_if<ChartLine>(&object.shape)) {
            strokes.push_back(StrokeOf(objects, object, *line));
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

void LineLayer::Prepare(const MercatorView& view, const ChartPalette& palette, const ChartObjects& objects,
                        qreal pixelRatio) {
    if (IsGood(view, palette, objects, pixelRatio)) {
        return;
    }
    view_ = view;
    palette_ = &palette;
    revision_ = objects.Revision();
    plans_ = objects.Plans().Revision();
    pixelRatio_ = pixelRatio;
    madeWithTints_ = tints_;
    Make(objects, pixelRatio);
}

void LineLayer::Draw(QPainter& painter, const MercatorView& view, const ChartPalette& palette,
                     const ChartObjects& objects, const ObjectKey* highlighted) {
    Prepare(view, palette, objects, painter.device()->devicePixelRatioF());
    if (!picture_.isNull()) {
        painter.drawImage(0, 0, picture_);
    }
    const ChartObject* pointedAt = highlighted ? objects.Find(*highlighted) : nullptr;
    if (const auto* line = pointedAt ? std::get_if<ChartLine>(&pointedAt->shape) : nullptr) {
        LineStroke stroke = StrokeOf(objects, *pointedAt, *line);
        stroke.highlighted = true;
        LinePainter(view, palette).Draw(painter, stroke);
    }
}

bool LineLayer::IsGood(const MercatorView& view, const ChartPalette& palette, const ChartObjects& objects,
                       qreal pixelRatio) const {
    return made_ > 0 && view_ == view && palette_ == &palette && revision_ == objects.Revision() &&
           pixelRatio_ == pixelRatio && madeWithTints_ == tints_ &&
           (!tints_ || plans_ == objects.Plans().Revision());
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
