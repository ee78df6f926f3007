// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ObjectPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "host/plugins/seamap/core/PolylineClip.h"
#include "host/plugins/seamap/widget/HaloTexts.h"
#include "host/plugins/seamap/widget/ImageStore.h"

namespace Tarvik::Seamap {

namespace {

constexpr double kTextGap = 4;

}  // namespace

void ObjectPainter::Draw(const ChartObjects& objects, const ObjectKey* highlighted, bool planned) {
    const ChartLabel* marked = nullptr;
    const auto isMarked = [&](const ChartObject& object) {
        return highlighted && object.key == *highlighted;
    };
    for (const auto& [place, object] : objects.InOrder()) {
        if (const auto* label = std::get_if<ChartLabel>(&object.shape)) {
            DrawPoint(*label, isMarked(object));
            if (isMarked(object)) {
                marked = label;
            }
        }
        const auto* image = std::get_if<ChartImage>(&object.shape);
        if (image && !(planned && objects.Plans().IsShip(object.key.layer, object.key.type, object.key.id))) {
            DrawImage(objects, *image, isMarked(object));
        }
    }
    QFont font = painter_.font();
    font.setPixelSize(kLineTextPixels);
    painter_.setFont(font);
    if (marked) {
        DrawText(*marked, true);
    }
    for (const auto& [place, object] : objects.InOrder()) {
        const auto* label = std::get_if<ChartLabel>(&object.shape);
        if (label && label != marked) {
            DrawText(*label, false);
        }
    }
}

void ObjectPainter::DrawPoint(const ChartLabel& label, bool highlighted) {
    const PixelPoint centre = view_.ToScreen(label.position);
    if (!IsSeen(centre)) {
        return;
    }
    const double radius = label.size + (highlighted ? 2.5 : 1);
    const QPointF middle(centre.x, centre.y);
    painter_.setPen(
        QPen(QColor(highlighted ? look_.palette.accent : look_.palette.outline), highlighted ? 2 : 1.5));
    painter_.setBrush(QColor(look_.palette.ObjectColour(label.colour)));
    painter_.drawEllipse(middle, radius, radius);
    room_.Take({centre.x - radius, centre.y - radius, 2 * radius, 2 * radius});
}

void ObjectPainter::DrawImage(const ChartObjects& objects, const ChartImage& image, bool highlighted) {
    const PixelPoint centre = view_.ToScreen(image.position);
    if (!IsSeen(centre)) {
        return;
    }
    const QPixmap& picture =
        look_.images.Picture(image.image, objects.ImagePath(image.image), look_.pixelRatio);
    const QSizeF size = picture.deviceIndependentSize();
    const QPointF corner(std::round(centre.x - size.width() / 2), std::round(centre.y - size.height() / 2));
    if (highlighted) {
        painter_.setPen(QPen(QColor(look_.palette.accent), 2));
        painter_.setBrush(Qt::NoBrush);
        const double radius = std::max(size.width(), size.height()) / 2 + 2;
        painter_.drawEllipse(QPointF(centre.x, centre.y), radius, radius);
    }
    painter_.drawPixmap(corner, picture);
    room_.Take({corner.x(), corner.y(), size.width(), size.height()});
}

void ObjectPainter::DrawText(const ChartLabel& label, bool always) {
    const PixelPoint centre = view_.ToScreen(label.position);
    if (!label.text.empty() && IsSeen(centre)) {
        DrawBeside(centre, label.size, QString::fromStdString(label.text), always);
    }
}

void ObjectPainter::DrawBeside(PixelPoint centre, double radius, const QString& text, bool always) {
    const QFontMetricsF metrics(painter_.font());
    const double width = metrics.horizontalAdvance(text), height = metrics.height();
    const double away = radius + kTextGap;
    const std::array<PixelPoint, 4> corners{{{away, -height / 2},
                                             {-away - width, -height / 2},
                                             {-width / 2, -away - height},
                                             {-width / 2, away}}};
    for (const PixelPoint& corner : corners) {
        const LabelBox box{std::round(centre.x + corner.x), std::round(centre.y + corner.y), width, height};
        const bool whole = LabelBox{0, 0, double(view_.Width()), double(view_.Height())}.Holds(box);
        if (!whole || (!always && !room_.IsFree(box))) {
            continue;
        }
        room_.Take(box);
        look_.texts.Draw(painter_, {box.left, box.top + std::round(metrics.ascent())}, text,
                         QColor(look_.palette.text), QColor(look_.palette.halo));
        return;
    }
}

bool ObjectPainter::IsSeen(PixelPoint centre) const {
    return centre.x > -kDrawMargin && centre.y > -kDrawMargin && centre.x < view_.Width() + kDrawMargin &&
           centre.y < view_.Height() + kDrawMargin;
}

}  // namespace Tarvik::Seamap
