// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/MeasureLayer.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>

#include <tarvik/skin/Palette.h>

#include "host/plugins/seamap/core/PolylineClip.h"

namespace Tarvik::Seamap {

namespace {

constexpr double kMargin = 16;  ///< pixels around the window in which ways are still drawn
constexpr double kDot = 3.5;
constexpr double kAway = 8;  ///< pixels from a place to its text
constexpr double kRing = 9;  ///< radius of the mark

/// The place in the middle of a leg's way.
GeoPoint MiddleOf(const std::vector<GeoPoint>& way) {
    if (way.size() == 2) {
        const WorldPoint a = Project(way[0]);
        const WorldPoint b = Project(way[1]);
        return Unproject({(a.x + b.x) / 2, (a.y + b.y) / 2});
    }
    return way[way.size() / 2];
}

}  // namespace

void MeasureLayer::DrawLeg(QPainter& painter, const MercatorView& view, const MeasuredLeg& leg, Track track) {
    std::vector<WorldPoint> points;
    for (const GeoPoint& point : WayOf(leg, track)) {
        points.push_back(Project(point));
    }
    const auto [west, east] = std::minmax_element(
        points.begin(), points.end(), [](const WorldPoint& a, const WorldPoint& b) { return a.x < b.x; });
    const auto turns = view.TurnsOf(west->x, east->x, 2);
    for (int turn = turns.first; turn <= turns.last; ++turn) {
        for (const PolylineRun& run : ClipPolyline(points, view, turn, kMargin, kLineDetail)) {
            QPolygonF line;
            for (const PixelPoint& point : run.points) {
                line.append(QPointF(point.x, point.y));
            }
            painter.drawPolyline(line);
        }
    }
}

void MeasureLayer::DrawText(QPainter& painter, QPointF start, const std::string& text,
                            const ChartPalette& palette) {
    QFont font = painter.font();
    font.setPixelSize(Skin::kTablePixels);
    painter.setFont(font);
    texts_.Draw(painter, start, QString::fromStdString(text), QColor(palette.text), QColor(palette.halo));
}

void MeasureLayer::Draw(QPainter& painter, const MercatorView& view, const ChartPalette& palette,
                        const Measure& measure, std::optional<GeoPoint> pointer) {
    if (!measure.IsRunning()) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(Qt::NoBrush);
    QPen pen(QColor(palette.accent), 2);
    painter.setPen(pen);
    auto legs = measure.Legs();
    for (const MeasuredLeg& leg : legs) {
        DrawLeg(painter, view, leg, measure.track);
    }
    if (pointer && measure.LegTo(*pointer).miles > 0) {
        legs.push_back(measure.LegTo(*pointer));
        pen.setStyle(Qt::DashLine);
        painter.setPen(pen);
        DrawLeg(painter, view, legs.back(), measure.track);
    }
    painter.setPen(QPen(QColor(palette.outline), 1.5));
    painter.setBrush(QColor(palette.accent));
    for (const GeoPoint& point : measure.Points()) {
        const PixelPoint at = view.ToScreen(point);
        painter.drawEllipse(QPointF(at.x, at.y), kDot, kDot);
    }
    for (const MeasuredLeg& leg : legs) {
        const PixelPoint at = view.ToScreen(MiddleOf(WayOf(leg, measure.track)));
        DrawText(painter, {at.x + kAway, at.y - kAway}, LegText(leg), palette);
    }
    painter.restore();
}

void MeasureLayer::DrawMark(QPainter& painter, const MercatorView& view, const ChartPalette& palette,
                            GeoPoint place) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(Qt::NoBrush);
    const PixelPoint at = view.ToScreen(place);
    const QPointF middle(at.x, at.y);
    for (const auto& [colour, width] : {std::pair(palette.halo, 5.0), std::pair(palette.accent, 2.0)}) {
        painter.setPen(QPen(QColor(colour), width));
        painter.drawEllipse(middle, kRing, kRing);
    }
    painter.setBrush(QColor(palette.accent));
    painter.drawEllipse(middle, 1.5, 1.5);
    DrawText(painter, {at.x + kRing + kAway, at.y + Skin::kTablePixels / 2.0 - 2}, FormatPosition(place),
             palette);
    painter.restore();
}

}  // namespace Tarvik::Seamap
