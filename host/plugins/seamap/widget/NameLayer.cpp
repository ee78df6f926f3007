// SPDX-License-Identifier: MIT
/// Names on the chart without overlap. Method: greedy in the order of importance; a name is drawn where its
/// water is wide enough for it (a port from some zoom on), where it lies whole in the window, and where no
/// object, furniture or more important name stands. Cost: one projection a name, and a look at the neighbours
/// for those in the window.
#include "host/plugins/seamap/widget/NameLayer.h"

#include <QFontMetricsF>
#include <QPainter>
#include <array>
#include <cmath>

#include "host/plugins/seamap/widget/HaloTexts.h"

namespace Tarvik::Seamap {

namespace {

constexpr double kEdge = 4;      ///< pixels that a name keeps off the window's edge
constexpr double kDot = 2.5;     ///< radius of a port's dot
constexpr double kDotReach = 6;  ///< from a dot's middle, where a click still meets its port
constexpr double kDotGap = 4;    ///< between a dot and its name
constexpr double kBetween = 3;   ///< pixels around a name in which nothing else is written
constexpr int kOceanSize = 15, kWaterSize = 12, kPortSize = 11;
constexpr double kOceanSpacing = 3;

LabelBox Widened(const LabelBox& box, double by) {
    return {box.left - by, box.top - by, box.width + 2 * by, box.height + 2 * by};
}

LabelBox WindowOf(const MercatorView& view) {
    return {kEdge, kEdge, view.Width() - 2 * kEdge, view.Height() - 2 * kEdge};
}

}  // namespace

QFont NameLayer::FontOf(ChartName::Kind kind) {
    QFont font;
    if (kind == ChartName::Kind::Port) {
        font.setPixelSize(kPortSize);
        return font;
    }
    font.setItalic(true);
    font.setPixelSize(kind == ChartName::Kind::Ocean ? kOceanSize : kWaterSize);
    if (kind == ChartName::Kind::Ocean) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, kOceanSpacing);
    }
    return font;
}

void NameLayer::SetNames(const std::vector<ChartName>& names) {
    drawn_.clear();
    entries_.clear();
    entries_.reserve(names.size());
    for (const ChartName& name : names) {
        const QString text = QString::fromStdString(name.text);
        entries_.push_back({name, text, QFontMetricsF(FontOf(name.kind)).horizontalAdvance(text)});
    }
}

bool NameLayer::PlaceWater(const Entry& entry, const MercatorView& view, LabelRoom& room, Placed& placed) {
    const double height = QFontMetricsF(FontOf(entry.name.kind)).height();
    placed.box = {std::round(placed.place.x - entry.width / 2), std::round(placed.place.y - height / 2),
                  entry.width, height};
    return WindowOf(view).Holds(placed.box) && room.IsFree(placed.box);
}

bool NameLayer::PlacePort(const Entry& entry, const MercatorView& view, LabelRoom& room, Placed& placed) {
    const LabelBox dot{placed.place.x - kDot, placed.place.y - kDot, 2 * kDot, 2 * kDot};
    if (!room.IsFree(dot)) {
        return false;
    }
    double width = entry.width;
    const QFontMetricsF metrics(FontOf(entry.name.kind));
    if (!entry.name.code.empty() && ChartName::HasCodeAt(view.MilesPerPixel(entry.name.position.y))) {
        placed.text += " " + QString::fromStdString(entry.name.code);
        width = metrics.horizontalAdvance(placed.text);
    }
    const double height = metrics.height();
    const double away = kDot + kDotGap;
    const std::array<PixelPoint, 4> corners{{{away, -height / 2},
                                             {-away - width, -height / 2},
                                             {-width / 2, -away - height},
                                             {-width / 2, away}}};
    for (const PixelPoint& corner : corners) {
        placed.box = {std::round(placed.place.x + corner.x), std::round(placed.place.y + corner.y), width,
                      height};
        if (WindowOf(view).Holds(placed.box) && room.IsFree(placed.box)) {
            room.Take(dot);
            return true;
        }
    }
    return false;
}

std::vector<NameLayer::Placed> NameLayer::Place(const MercatorView& view, LabelRoom& room) const {
    std::vector<Placed> all;
    const LabelBox window = WindowOf(view);
    for (const Entry& entry : entries_) {
        if (!entry.name.IsShownAt(view.MilesPerPixel(entry.name.position.y), entry.width)) {
            continue;
        }
        Placed placed{&entry.name, entry.text, {}, view.ToScreen(entry.name.position)};
        if (!window.Holds({placed.place.x, placed.place.y, 0, 0})) {
            continue;
        }
        const bool found = entry.name.kind == ChartName::Kind::Port ? PlacePort(entry, view, room, placed)
                                                                    : PlaceWater(entry, view, room, placed);
        if (found) {
            room.Take(Widened(placed.box, kBetween));
            all.push_back(std::move(placed));
        }
    }
    return all;
}

const ChartName* NameLayer::PortAt(PixelPoint pixel) const {
    const ChartName* named = nullptr;
    for (const Placed& placed : drawn_) {
        if (placed.name->kind != ChartName::Kind::Port) {
            continue;
        }
        // A dot lies closer to its port than a name that runs over it.
        if (std::hypot(pixel.x - placed.place.x, pixel.y - placed.place.y) <= kDotReach) {
            return placed.name;
        }
        if (placed.box.Holds({pixel.x, pixel.y, 0, 0})) {
            named = placed.name;
        }
    }
    return named;
}

void NameLayer::Draw(QPainter& painter, const MercatorView& view, const ChartPalette& palette,
                     HaloTexts& texts, LabelRoom& room) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    const QColor quiet(palette.secondaryText);
    const QColor halo(palette.halo);
    drawn_ = Place(view, room);
    for (const Placed& placed : drawn_) {
        painter.setFont(FontOf(placed.name->kind));
        if (placed.name->kind == ChartName::Kind::Port) {
            painter.setPen(QPen(QColor(palette.outline), 1));
            painter.setBrush(quiet);
            painter.drawEllipse(QPointF(placed.place.x, placed.place.y), kDot, kDot);
        }
        const double ascent = std::round(QFontMetricsF(painter.font()).ascent());
        texts.Draw(painter, {placed.box.left, placed.box.top + ascent}, placed.text, quiet, halo);
    }
    painter.restore();
}

}  // namespace Tarvik::Seamap
