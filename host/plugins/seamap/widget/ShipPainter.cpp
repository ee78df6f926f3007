// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/ShipPainter.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace Tarvik::Seamap {

namespace {

constexpr int kSize = 18, kSmallSize = 8;  ///< edges of pictures in pixels
constexpr int kMany = 3000;                ///< ships in view from which they are small
constexpr int kHeadings = 72;              ///< pictures of a colour: one every 5 degrees
constexpr int kRound = kHeadings;          ///< the picture without a heading
constexpr int kCell = 3, kSmallCell = 6;   ///< pixels within which ships hide each other
constexpr double kRing = 11;               ///< radius of the ring around the one pointed at

}  // namespace

void ShipPainter::Draw(QPainter& painter, const ChartShips& ships, const MercatorView& view,
                       const std::pair<std::string, std::string>& highlighted) {
    small_ = AreMany(ships, view);
    const int columns = view.Width() / kCell + 2;
    const int rows = view.Height() / kCell + 2;
    cells_.assign(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), 0);
    for (const auto& [type, list] : ships.ByType()) {
        for (const ChartShip& ship : list) {
            const bool marked = ship.id == highlighted.second && type == highlighted.first;
            const auto turns = view.TurnsOf(ship.world.x, ship.world.x, kSize);
            for (int turn = turns.first; turn <= turns.last; ++turn) {
                const PixelPoint at = view.ToScreen(ship.world, turn);
                if (marked) {
                    painter.setPen(QPen(QColor(palette_->accent), 2));
                    painter.setBrush(Qt::NoBrush);
                    painter.drawEllipse(QPointF(at.x, at.y), kRing, kRing);
                }
                if (TakeCell(at, view) || marked) {
                    painter.drawPixmap(
                        QPointF(std::round(at.x) - kSize / 2.0, std::round(at.y) - kSize / 2.0),
                        Picture(ship.colour, ship.heading));
                }
            }
        }
    }
}

bool ShipPainter::AreMany(const ChartShips& ships, const MercatorView& view) {
    int seen = 0;
    for (const auto& [type, list] : ships.ByType()) {
        for (const ChartShip& ship : list) {
            const auto turns = view.TurnsOf(ship.world.x, ship.world.x);
            const PixelPoint at = view.ToScreen(ship.world, turns.first);
            seen += turns.first <= turns.last && at.y >= 0 && at.y <= view.Height() ? 1 : 0;
        }
    }
    return seen > kMany;
}

void ShipPainter::DrawShip(QPainter& painter, PixelPoint at, const ChartShip& ship) {
    const int half = (small_ ? kSmallSize : kSize) / 2;
    painter.drawPixmap(
        QPoint(static_cast<int>(std::lround(at.x)) - half, static_cast<int>(std::lround(at.y)) - half),
        Picture(ship.colour, ship.heading));
}

void ShipPainter::Adopt(const ChartPalette& palette, qreal pixelRatio) {
    if (palette_ != &palette || pixelRatio_ != pixelRatio) {
        pictures_.clear();
        palette_ = &palette;
        pixelRatio_ = pixelRatio;
    }
}

bool ShipPainter::TakeCell(PixelPoint at, const MercatorView& view) {
    if (at.x < -kSize || at.y < -kSize || at.x > view.Width() + kSize || at.y > view.Height() + kSize) {
        return false;
    }
    // The cells at the edges stand for all beyond them.
    const int edge = small_ ? kSmallCell : kCell;
    const int columns = view.Width() / edge + 2;
    const int x = std::clamp(static_cast<int>(at.x) / edge, 0, columns - 1);
    const int y = std::clamp(static_cast<int>(at.y) / edge, 0, view.Height() / edge + 1);
    char& cell =
        cells_[static_cast<std::size_t>(y) * static_cast<std::size_t>(columns) + static_cast<std::size_t>(x)];
    const bool free = cell == 0;
    cell = 1;
    return free;
}

const QPixmap& ShipPainter::Picture(std::int32_t colour, double heading) {
    const int index =
        heading < 0 ? kRound : static_cast<int>(std::lround(heading / (360.0 / kHeadings))) % kHeadings;
    const int place = small_ ? index + kHeadings + 1 : index;
    QPixmap& picture = pictures_[colour][static_cast<std::size_t>(place)];
    if (!picture.isNull()) {
        return picture;
    }
    const int size = small_ ? kSmallSize : kSize;
    picture = QPixmap(QSize(size, size) * pixelRatio_);
    picture.setDevicePixelRatio(pixelRatio_);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(palette_->outline), 1));
    painter.setBrush(QColor(palette_->ObjectColour(colour)));
    painter.translate(size / 2.0, size / 2.0);
    painter.scale(double(size) / kSize, double(size) / kSize);
    if (index == kRound) {
        painter.drawEllipse(QPointF(0, 0), 3.5, 3.5);
    } else {
        painter.rotate(index * 360.0 / kHeadings);
        painter.drawPolygon(QPolygonF({{0, -8}, {4, 6}, {0, 3.5}, {-4, 6}}));
    }
    return picture;
}

}  // namespace Tarvik::Seamap
