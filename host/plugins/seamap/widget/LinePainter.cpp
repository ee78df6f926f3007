// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/LinePainter.h"

#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <cmath>

#include "host/plugins/seamap/core/Plotter.h"
#include "host/plugins/seamap/widget/CanvasPixels.h"

namespace Tarvik::Seamap {

namespace {

constexpr double kManyDetail = 1.5;        ///< pixels between points where there are many lines
constexpr double kThin = 1.66;             ///< width of a thin line that is wider where there are few
constexpr double kArrowSpacing = 140;      ///< pixels between the arrows of a line
constexpr double kDash = 6, kGap = 4;      ///< pixels
constexpr int kRim = 140, kQuietRim = 50;  ///< of 255
constexpr int kQuietAlpha = 110, kTintAlpha = 180;  ///< of 255; fainter colours would not be told apart

bool IsQuiet(const LineStroke& stroke) {
    return stroke.tone == ChartObjects::Tone::Quiet && !stroke.highlighted;
}

double WidthOf(const LineStroke& stroke) {
    return stroke.line->width + (stroke.highlighted ? 1 : 0);
}

QPolygonF PolygonOf(const PolylineRun& run) {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(run.points.size()));
    for (const PixelPoint& point : run.points) {
        polygon.append(QPointF(point.x, point.y));
    }
    return polygon;
}

}  // namespace

QColor LinePainter::ColourOf(const LineStroke& stroke) const {
    QColor colour(stroke.tint.value_or(palette_.ObjectColour(stroke.line->colour)));
    if (IsQuiet(stroke)) {
        colour.setAlpha(stroke.tint ? kTintAlpha : kQuietAlpha);
    }
    return colour;
}

QPen LinePainter::RimOf(const LineStroke& stroke) const {
    QColor rim(palette_.halo);
    rim.setAlpha(stroke.highlighted ? 255 : IsQuiet(stroke) ? kQuietRim : kRim);
    return {rim, WidthOf(stroke) + (stroke.highlighted ? 4 : 2), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void LinePainter::Draw(QPainter& painter, const LineStroke& stroke) const {
    const ChartLine& line = *stroke.line;
    QPen pen(ColourOf(stroke), WidthOf(stroke), Qt::SolidLine, line.dashed ? Qt::FlatCap : Qt::RoundCap,
             Qt::RoundJoin);
    if (line.dashed) {
        pen.setDashPattern({kDash / pen.widthF(), kGap / pen.widthF()});
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(Qt::NoBrush);
    const auto turns = view_.TurnsOf(line.minX, line.maxX, line.width);
    for (int turn = turns.first; turn <= turns.last; ++turn) {
        for (const PolylineRun& run : ClipPolyline(line.points, view_, turn, kDrawMargin, kLineDetail)) {
            const QPolygonF way = PolygonOf(run);
            painter.setPen(RimOf(stroke));
            painter.drawPolyline(way);
            // Dashes belong to the line and not to the window: they stay in place while the view moves.
            if (line.dashed) {
                pen.setDashOffset(std::fmod(run.start, kDash + kGap) / pen.widthF());
            }
            painter.setPen(pen);
            painter.drawPolyline(way);
            if (!IsQuiet(stroke)) {
                DrawArrows(painter, run, pen.color());
            }
        }
    }
}

void LinePainter::DrawThin(QImage& canvas, qreal pixelRatio, const LineStroke& stroke) const {
    const ChartLine& line = *stroke.line;
    PlotPen pen{qPremultiply(ColourOf(stroke).rgba()),
                pixelRatio * (line.width == 1 || IsQuiet(stroke) ? 1 : kThin)};
    if (line.dashed) {
        pen.dash = kDash * pixelRatio;
        pen.gap = kGap * pixelRatio;
    }
    Plotter plotter(BoardOf(canvas), {0, 0, canvas.width(), canvas.height()});
    const auto turns = view_.TurnsOf(line.minX, line.maxX, line.width);
    for (int turn = turns.first; turn <= turns.last; ++turn) {
        for (PolylineRun& run :
             ClipPolyline(line.PointsFor(view_.WorldSize()), view_, turn, kDrawMargin, kManyDetail)) {
            for (PixelPoint& point : run.points) {
                point = {point.x * pixelRatio, point.y * pixelRatio};
            }
            plotter.Stroke(run.points, pen, run.start * pixelRatio);
        }
    }
}

void LinePainter::DrawArrows(QPainter& painter, const PolylineRun& run, const QColor& colour) const {
    static const QPolygonF kArrow({{0, -5.5}, {4.5, 4.5}, {0, 2}, {-4.5, 4.5}});
    painter.setPen(QPen(QColor(palette_.halo), 1));
    painter.setBrush(colour);
    for (const CourseMark& mark : CourseMarks(run, kArrowSpacing)) {
        painter.save();
        painter.translate(mark.at.x, mark.at.y);
        painter.rotate(mark.degrees);
        painter.drawPolygon(kArrow);
        painter.restore();
    }
    painter.setBrush(Qt::NoBrush);
}

}  // namespace Tarvik::Seamap
