// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ObjectPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>

#include "host/plugins/seamap/widget/HaloTexts.h"
#include "host/plugins/seamap/widget/ImageStore.h"

namespace Tarvik::Seamap {

namespace {

constexpr double kMargin = 32;          ///< pixels around the window in which things are still drawn
constexpr double kManyDetail = 1.5;     ///< the same where there are many lines
constexpr std::size_t kManyLines = 50;  ///< from here on wide pens are too slow
constexpr int kRim = 140, kQuietRim = 50, kQuietAlpha = 110;  ///< of 255
constexpr double kArrowSpacing = 140;                         ///< pixels between the arrows of a line
constexpr double kTextGap = 4;
constexpr double kDash = 6, kGap = 4;  ///< pixels

QPolygonF PolygonOf(const PolylineRun& run) {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(run.points.size()));
    for (const PixelPoint& point : run.points) {
        polygon.append(QPointF(point.x, point.y));
    }
    return polygon;
}

}  // namespace

void ObjectPainter::Draw(const ChartObjects& objects, const ObjectKey* highlighted) {
    std::vector<Stroke> lines;
    const ChartLabel* marked = nullptr;
    const auto isMarked = [&](const ChartObject& object) {
        return highlighted && object.key == *highlighted;
    };
    for (const auto& [place, object] : objects.InOrder()) {
        if (const auto* line = std::get_if<ChartLine>(&object.shape)) {
            lines.push_back({line, isMarked(object), objects.ToneOf(object.key)});
        }
    }
    // Quiet lines below, the voyage that stands out above all.
    const auto rank = [](const Stroke& stroke) {
        return stroke.tone == ChartObjects::Tone::Quiet   ? 0
               : stroke.tone == ChartObjects::Tone::Plain ? 1
                                                          : 2;
    };
    std::stable_sort(lines.begin(), lines.end(),
                     [rank](const Stroke& a, const Stroke& b) { return rank(a) < rank(b); });
    DrawLines(lines);
    for (const auto& [place, object] : objects.InOrder()) {
        if (const auto* label = std::get_if<ChartLabel>(&object.shape)) {
            DrawPoint(*label, isMarked(object));
            if (isMarked(object)) {
                marked = label;
            }
        }
        if (const auto* image = std::get_if<ChartImage>(&object.shape)) {
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

void ObjectPainter::DrawLines(const std::vector<Stroke>& lines) {
    painter_.setRenderHint(QPainter::Antialiasing, true);
    painter_.setBrush(Qt::NoBrush);
    const bool thin = lines.size() >= kManyLines;
    for (const Stroke& stroke : lines) {
        DrawLine(stroke, thin && stroke.tone != ChartObjects::Tone::Loud);
    }
}

void ObjectPainter::DrawLine(const Stroke& stroke, bool thin) {
    const ChartLine& line = *stroke.line;
    const double width = line.width + (stroke.highlighted ? 1 : 0);
    const auto turns = view_.TurnsOf(line.minX, line.maxX, line.width);
    QPen pen(QColor(look_.palette.ObjectColour(line.colour)), thin ? 1 : width, Qt::SolidLine,
             line.dashed ? Qt::FlatCap : Qt::RoundCap, Qt::RoundJoin);
    const bool quiet = stroke.tone == ChartObjects::Tone::Quiet && !stroke.highlighted;
    if (quiet) {
        QColor faint = pen.color();
        faint.setAlpha(kQuietAlpha);
        pen.setColor(faint);
    }
    QColor rim(look_.palette.halo);
    rim.setAlpha(stroke.highlighted ? 255 : quiet ? kQuietRim : kRim);
    const QPen under(rim, width + (stroke.highlighted ? 4 : 2), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (line.dashed) {
        pen.setDashPattern({kDash / pen.widthF(), kGap / pen.widthF()});
    }
    for (int turn = turns.first; turn <= turns.last; ++turn) {
        for (const PolylineRun& run :
             ClipPolyline(line.points, view_, turn, kMargin, thin ? kManyDetail : kLineDetail)) {
            const QPolygonF way = PolygonOf(run);
            if (!thin) {
                painter_.setPen(under);
                painter_.drawPolyline(way);
            }
            // Dashes belong to the line and not to the window: they stay in place while the view moves.
            if (line.dashed) {
                pen.setDashOffset(std::fmod(run.start, kDash + kGap) / pen.widthF());
            }
            painter_.setPen(pen);
            if (!thin || line.width == 1 || quiet) {
                painter_.drawPolyline(way);
                if (!thin && !quiet) {
                    DrawArrows(run, pen.color());
                }
                continue;
            }
            // Two fine lines side by side look like a wide one and stay on the fast path.
            painter_.translate(-0.33, -0.33);
            painter_.drawPolyline(way);
            painter_.translate(0.66, 0.66);
            painter_.drawPolyline(way);
            painter_.translate(-0.33, -0.33);
        }
    }
}

void ObjectPainter::DrawArrows(const PolylineRun& run, const QColor& colour) {
    static const QPolygonF kArrow({{0, -5.5}, {4.5, 4.5}, {0, 2}, {-4.5, 4.5}});
    painter_.setPen(QPen(QColor(look_.palette.halo), 1));
    painter_.setBrush(colour);
    for (const CourseMark& mark : CourseMarks(run, kArrowSpacing)) {
        painter_.save();
        painter_.translate(mark.at.x, mark.at.y);
        painter_.rotate(mark.degrees);
        painter_.drawPolygon(kArrow);
        painter_.restore();
    }
    painter_.setBrush(Qt::NoBrush);
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
    if (label.text.empty() || !IsSeen(centre)) {
        return;
    }
    const QFontMetricsF metrics(painter_.font());
    const QString text = QString::fromStdString(label.text);
    const double width = metrics.horizontalAdvance(text), height = metrics.height();
    const double away = label.size + kTextGap;
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
    return centre.x > -kMargin && centre.y > -kMargin && centre.x < view_.Width() + kMargin &&
           centre.y < view_.Height() + kMargin;
}

}  // namespace Tarvik::Seamap
